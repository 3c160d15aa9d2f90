// A graph. What it shows is plain data, its words and its numbers given; screens, law studies, calculators and paper
// have it drawn by the same procedure and differ only in where it lies on the surface.
#pragma once

#include "drawing/AxeGraphe.h"
#include "platform/Dessin.h"

#include <span>
#include <string>
#include <vector>

/// Which extreme values of a curve are marked, with their value and their place: the first highest and the first
/// lowest, neither of them when it is 0, which is on the axis, or when the curve is flat.
enum class Extremes {
    Aucun,
    SansDepart, ///< nor when it is the first point
    Tous,
};

struct CourbeGraphe {
    std::string nom; ///< for the legend; a curve without one has no entry
    Couleur couleur = Couleur::Courbe1;
    std::vector<PointDessin> points; ///< in the units of its axes
    std::size_t axe = 0;             ///< which vertical axis it follows
    Extremes extremes = Extremes::Aucun;
};

/// A value that the curves should not pass: a dashed line across the graph, its caption above its right end.
struct LimiteGraphe {
    double valeur = 0;
    std::string legende;
    std::size_t axe = 0;
    Couleur couleur = Couleur::Repere;
};

struct Graphe {
    std::string titre;
    Couleur couleurTitre = Couleur::Texte;
    AxeGraphe horizontal;
    std::vector<AxeGraphe> verticaux; ///< one at least: the first stands on the left, the others on the right
    std::vector<CourbeGraphe> courbes;
    std::vector<LimiteGraphe> limites;
};

/// Where a graph lies on its surface and how it is drawn; lengths in the unit of the surface.
struct PlaceGraphe {
    double gauche, droite, haut, bas; ///< the box of the curves
    double texte;                     ///< height of title, legend and marks
    double nombres;                   ///< height of the values along the axes
    double titre;                     ///< from the upper edge up to the title, or the legend
    double sousAxe;                   ///< from the lower edge down to the values of the horizontal axis
    double coteAxe;                   ///< from a side out to the values of a vertical axis
    double entreAxes;                 ///< from the values of one right axis to those of the next
    PointDessin legende;              ///< of the horizontal axis
    Ancrage ancrageLegende;
    double hauteurLegende;
    double traitGrille, traitAxe, traitCourbe;
    double cran = 0;    ///< length of the stroke outside the box at a graduation
    bool cadre = false; ///< a frame around the box
};

/// The whole surface, with room for as many axes and curves as the graph has.
PlaceGraphe PlaceEntiere(const Dessin& dessin, const Graphe& graphe);

/// Draws the graph; points outside the box of a graph are drawn where they fall.
void DessineGraphe(Dessin& dessin, const Graphe& graphe, const PlaceGraphe& place);

/// Draws graphs one below the other over the same horizontal axis, which is written below the last one.
void DessineGraphesEmpiles(Dessin& dessin, std::span<const Graphe> graphes);
