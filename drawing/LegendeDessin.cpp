#include "drawing/LegendeDessin.h"

#include <algorithm>

namespace {

/// Length of the row, its text `hauteur` high.
double LongueurLegende(const Dessin& dessin, double hauteur, std::span<const EntreeLegende> entrees,
                       const MesuresLegende& mesures) {
    double longueur = -mesures.ecart * hauteur;
    for (const EntreeLegende& entree : entrees)
        longueur +=
            (mesures.trait + mesures.blanc + mesures.ecart) * hauteur + dessin.LargeurTexte(entree.nom, hauteur);
    return longueur;
}

/// A surface has letters of whole sizes only: a row that was reduced by its ratio may still be a little too wide.
constexpr double PasReduction = 0.95;
constexpr double ReductionMax = 0.3;

} // namespace

void DessineLegende(Dessin& dessin, PointDessin depart, double hauteur, std::span<const EntreeLegende> entrees,
                    const MesuresLegende& mesures) {
    const double place = dessin.Largeur() - depart.x, hauteurMin = ReductionMax * hauteur;
    hauteur *= std::min(1.0, place / LongueurLegende(dessin, hauteur, entrees, mesures));
    // The ratio itself may miss the surface by a rounding.
    while (hauteur > hauteurMin && LongueurLegende(dessin, hauteur, entrees, mesures) > place * (1 + 1e-9))
        hauteur *= PasReduction;
    double x = depart.x;
    for (const EntreeLegende& entree : entrees) {
        dessin.Ligne({x, depart.y}, {x + mesures.trait * hauteur, depart.y}, entree.trait);
        x += (mesures.trait + mesures.blanc) * hauteur;
        dessin.Texte({x, depart.y}, entree.nom, Ancrage::Gauche, hauteur, entree.encre);
        x += dessin.LargeurTexte(entree.nom, hauteur) + mesures.ecart * hauteur;
    }
}
