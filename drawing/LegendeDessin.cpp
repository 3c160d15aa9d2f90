#include "drawing/LegendeDessin.h"

#include <algorithm>

void DessineLegende(Dessin& dessin, PointDessin depart, double hauteur, std::span<const EntreeLegende> entrees,
                    const MesuresLegende& mesures) {
    double longueur = -mesures.ecart * hauteur;
    for (const EntreeLegende& entree : entrees)
        longueur +=
            (mesures.trait + mesures.blanc + mesures.ecart) * hauteur + dessin.LargeurTexte(entree.nom, hauteur);
    hauteur *= std::min(1.0, (dessin.Largeur() - depart.x) / longueur);
    double x = depart.x;
    for (const EntreeLegende& entree : entrees) {
        dessin.Ligne({x, depart.y}, {x + mesures.trait * hauteur, depart.y}, entree.trait);
        x += (mesures.trait + mesures.blanc) * hauteur;
        dessin.Texte({x, depart.y}, entree.nom, Ancrage::Gauche, hauteur, entree.encre);
        x += dessin.LargeurTexte(entree.nom, hauteur) + mesures.ecart * hauteur;
    }
}
