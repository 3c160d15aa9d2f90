#include "drawing/Graphe.h"

#include <algorithm>

PlaceGraphe PlaceEntiere(const Dessin& dessin, const Graphe& graphe) {
    const double texte = std::clamp(dessin.Hauteur() / 24.0, dessin.Largeur() / 90.0, 13.0);
    const std::size_t axes = graphe.verticaux.size();
    PlaceGraphe p{};
    p.gauche = 6.0 * texte;
    p.droite = dessin.Largeur() - (axes > 1 ? 6.0 : 1.5) * texte - (axes > 2 ? 5.5 : 0.0) * texte;
    p.haut = 2.8 * texte;
    p.bas = dessin.Hauteur() - 3.2 * texte;
    p.texte = p.hauteurLegende = texte;
    p.nombres = 0.9 * texte;
    p.titre = 1.4 * texte;
    p.sousAxe = 0.8 * texte;
    p.coteAxe = 0.6 * texte;
    p.entreAxes = 5.5 * texte;
    p.legende = {(p.gauche + p.droite) / 2, p.bas + 2.2 * texte};
    p.ancrageLegende = Ancrage::Centre;
    p.traitGrille = 1.0;
    p.traitAxe = 1.2;
    p.traitCourbe = 1.6;
    return p;
}

void DessineGraphesEmpiles(Dessin& dessin, std::span<const Graphe> graphes) {
    const double texte = std::min(dessin.Largeur() / 62, dessin.Hauteur() / 54);
    const double hauteur = (dessin.Hauteur() - 3.2 * texte) / static_cast<double>(graphes.size());
    PlaceGraphe p{};
    p.gauche = 6.5 * texte;
    p.droite = dessin.Largeur() - 1.5 * texte;
    p.texte = p.hauteurLegende = texte;
    p.nombres = 0.9 * texte;
    p.titre = p.sousAxe = 0.9 * texte;
    p.coteAxe = 0.6 * texte;
    p.entreAxes = 5.5 * texte;
    p.legende = {dessin.Largeur() / 2, dessin.Hauteur() - 0.8 * texte};
    p.ancrageLegende = Ancrage::Centre;
    p.traitGrille = 0.08 * texte;
    p.traitAxe = 0.1 * texte;
    p.traitCourbe = 0.14 * texte;
    for (std::size_t rang = 0; rang < graphes.size(); ++rang) {
        p.haut = hauteur * static_cast<double>(rang) + 2.2 * texte;
        p.bas = hauteur * static_cast<double>(rang + 1) - 0.4 * texte;
        Graphe graphe = graphes[rang];
        if (rang + 1 < graphes.size()) {
            graphe.horizontal.legende.clear();
            for (Graduation& graduation : graphe.horizontal.graduations) graduation.texte.clear();
        }
        DessineGraphe(dessin, graphe, p);
    }
}
