#include "laws/DessinLoi.h"

#include "data/Textes.h"
#include "data/Unites.h"
#include "drawing/Graphe.h"
#include "drawing/LegendeDessin.h"
#include "laws/EtudesLois.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

/// A curve: the member of the law or of the motion, its name, what it measures.
struct CourbeLoi {
    double PointLoi::*membre;
    int texte; ///< text number
    Grandeur grandeur;
    Couleur couleur;
};
constexpr CourbeLoi courbes[] = {
    {&PointLoi::Course, 250, Grandeur::Sortie, Couleur::Courbe1},
    {&PointLoi::Vitesse, 225, Grandeur::Vitesse, Couleur::Courbe2},
    {&PointLoi::Accel, 226, Grandeur::Accel, Couleur::Courbe3},
};

constexpr double TraitMaxi = 1.4; ///< of a picture that fills a whole sheet

/// Largest magnitude of a curve.
double PlusGrand(const Tableau<PointLoi>& table, double PointLoi::*membre) {
    double maximum = 0;
    for (const PointLoi& point : table) maximum = std::max(maximum, std::abs(point.*membre));
    return maximum;
}

/// A curve of the study against the cam angle, in a box of its own with its extremes marked.
Graphe GrapheCourbe(const CourbeLoi& courbe) {
    Graphe graphe;
    graphe.titre = Texte(courbe.texte) + " (" + Texte(UniteLoi(courbe.grandeur)) + ")";
    graphe.couleurTitre = courbe.couleur;
    graphe.horizontal = AxeAngles(static_cast<double>(etude.resultats.NombrePoints) / etude.donnees.PointsParDegre);
    graphe.horizontal.legende = Texte(339) + " (" + Texte(UniteDegres) + ")";
    // The value that the lift starts from was typed in.
    const bool course = courbe.membre == &PointLoi::Course;
    CourbeGraphe points{{}, courbe.couleur, {}, 0, course ? Extremes::SansDepart : Extremes::Tous};
    points.points.reserve(static_cast<std::size_t>(etude.resultats.NombrePoints) + 1);
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i)
        points.points.push_back({etude.resultats.Points[i].Angle, etude.resultats.Mouvement[i].*courbe.membre});
    graphe.verticaux = {AxeAutour(points.points)};
    graphe.courbes = {std::move(points)};
    return graphe;
}

/// The unit law inside a margin.
void DessineImage(Dessin& dessin, const Tableau<PointLoi>& table, double marge) {
    if (table.BorneHaute() < 1) return;
    const double trait = std::min(0.012 * dessin.Hauteur(), TraitMaxi);
    const double largeur = dessin.Largeur() - 2 * marge, hauteur = dessin.Hauteur() - 2 * marge;
    const double milieu = dessin.Hauteur() / 2;
    dessin.Ligne({marge, milieu}, {marge + largeur, milieu}, {Couleur::Graduation, trait});
    dessin.Ligne({marge, marge}, {marge, marge + hauteur}, {Couleur::Graduation, trait});
    for (const CourbeLoi& courbe : courbes) {
        const double maximum = PlusGrand(table, courbe.membre);
        if (maximum == 0.0) continue;
        std::vector<PointDessin> points;
        for (long i = 0; i <= table.BorneHaute(); ++i)
            points.push_back({marge + largeur * static_cast<double>(i) / static_cast<double>(table.BorneHaute()),
                              milieu - hauteur / 2 * (table[i].*courbe.membre) / maximum});
        dessin.Polyligne(points, {courbe.couleur, courbe.membre == &PointLoi::Course ? 2 * trait : 1.4 * trait});
    }
}

void DessineNoms(Dessin& dessin, double y, double hauteur) {
    std::vector<EntreeLegende> entrees;
    for (const CourbeLoi& courbe : courbes)
        entrees.push_back({{courbe.couleur, 2.0}, Texte(courbe.texte), courbe.couleur});
    DessineLegende(dessin, {hauteur / 2, y}, hauteur, entrees);
}

} // namespace

void DessineLoi(Dessin& dessin, const Tableau<PointLoi>& table) {
    DessineImage(dessin, table, 0.06 * dessin.Hauteur());
}

void DessineLoiNommee(Dessin& dessin, const Tableau<PointLoi>& table) {
    const double tete = dessin.Hauteur() / 20;
    DessineNoms(dessin, tete, 0.6 * tete);
    DessineImage(dessin, table, 1.6 * tete);
}

void DessineNomsCourbes(Dessin& dessin) {
    DessineNoms(dessin, dessin.Hauteur() / 2, 0.6 * dessin.Hauteur());
}

void DessineCourbes(Dessin& dessin) {
    if (etude.resultats.Mouvement.BorneHaute() < 1 ||
        etude.resultats.Mouvement.BorneHaute() != etude.resultats.NombrePoints)
        return;
    std::vector<Graphe> graphes;
    for (const CourbeLoi& courbe : courbes) graphes.push_back(GrapheCourbe(courbe));
    DessineGraphesEmpiles(dessin, graphes);
}
