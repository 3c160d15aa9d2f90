#include "drawing/EchellePapier.h"

#include <iterator>

namespace {

constexpr double echelles[] = {50, 20, 10, 5, 2, 1, 0.5, 0.2, 0.1, 0.05, 0.02, 0.01};

} // namespace

double ChoisitEchelle(const Etendue& e, double largeur, double hauteur) {
    for (const double echelle : echelles)
        if (echelle * e.Largeur() <= largeur && echelle * e.Hauteur() <= hauteur) return echelle;
    return *std::rbegin(echelles);
}

void DessineRegle(Dessin& dessin, const std::string& texte, double hauteurTexte, const Trait& trait) {
    constexpr double longueur = LongueurRegle, cran = 2.5;
    const double y = dessin.Hauteur() - cran, x = dessin.Largeur() - longueur;
    dessin.Ligne({x, y}, {x + longueur, y}, trait);
    for (const double bout : {x, x + longueur}) dessin.Ligne({bout, y - cran / 2}, {bout, y + cran / 2}, trait);
    dessin.Texte({x - 2, y}, texte, Ancrage::Droite, hauteurTexte);
}
