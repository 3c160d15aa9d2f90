#include "drawing/EchellePapier.h"

#include "core/Nombres.h"

#include <cmath>

namespace {

constexpr double echelles[] = {50, 20, 10, 5, 2, 1, 0.5, 0.2, 0.1, 0.05, 0.02, 0.01};

/// Below them they go on in the same steps, down to what makes a sheet of the largest number.
constexpr double pasDecade[] = {5, 2, 1};
constexpr int derniereDecade = -307;

} // namespace

double ChoisitEchelle(const Etendue& e, double largeur, double hauteur) {
    const auto tient = [&](double echelle) {
        return echelle * e.Largeur() <= largeur && echelle * e.Hauteur() <= hauteur;
    };
    for (const double echelle : echelles)
        if (tient(echelle)) return echelle;
    for (int decade = -3; decade >= derniereDecade; --decade)
        for (const double pas : pasDecade)
            if (const double echelle = pas * std::pow(10.0, decade); tient(echelle)) return echelle;
    return std::pow(10.0, derniereDecade);
}

std::string TexteEchelle(double echelle) {
    return echelle < 0.01 ? StrTrim(echelle) : Format(echelle, "0.##");
}

void DessineRegle(Dessin& dessin, const std::string& texte, double hauteurTexte, const Trait& trait) {
    constexpr double longueur = LongueurRegle, cran = 2.5;
    const double y = dessin.Hauteur() - cran, x = dessin.Largeur() - longueur;
    dessin.Ligne({x, y}, {x + longueur, y}, trait);
    for (const double bout : {x, x + longueur}) dessin.Ligne({bout, y - cran / 2}, {bout, y + cran / 2}, trait);
    dessin.Texte({x - 2, y}, texte, Ancrage::Droite, hauteurTexte);
}
