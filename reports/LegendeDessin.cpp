#include "reports/LegendeDessin.h"

#include "data/Textes.h"

void DessineLegende(Dessin& dessin, PointDessin depart, double hauteur, std::span<const EntreeLegende> entrees) {
    const double longueur = 1.7 * hauteur, blanc = 0.5 * hauteur, ecart = 1.8 * hauteur;
    double x = depart.x;
    for (const EntreeLegende& entree : entrees) {
        const std::string& nom = Texte(entree.texte);
        dessin.Ligne({x, depart.y}, {x + longueur, depart.y}, entree.trait);
        x += longueur + blanc;
        dessin.Texte({x, depart.y}, nom, Ancrage::Gauche, hauteur, entree.encre);
        x += dessin.LargeurTexte(nom, hauteur) + ecart;
    }
}
