// The graphs of the results of a study: which columns of the record they show against the cam angle.
#pragma once

#include "drawing/Graphe.h"

#include <span>
#include <vector>

struct TypeEtude;

/// One curve: what it is called, its value at point `i`, and the magnitude that reaches the upper edge.
struct Courbe {
    int legende; ///< text number, unit included
    double maximum;
    double (*valeur)(long i); ///< 0..`NombrePoints`
    long premier = 0;         ///< the first point that has a value
};

/// The graphs of the results, as the study record stands.
std::vector<Courbe> CourbesGalet();  ///< radius, speed and acceleration of the roller centre
std::vector<Courbe> CourbesBras();   ///< angle, speed and acceleration of the arm
std::vector<Courbe> CourbesForce();  ///< roller force
std::vector<Courbe> CourbesCouple(); ///< cam torque

std::vector<Courbe> CourbeRayon(); ///< radius of the roller centre alone

/// The colours of the curves of a graph, in their order.
inline constexpr Couleur CouleursCourbes[] = {Couleur::Courbe1, Couleur::Courbe2, Couleur::Courbe3};

/// The cam angle of the study, with its caption.
AxeGraphe AxeAngleCame();

/// The points of a curve against the cam angle.
CourbeGraphe PointsCourbe(const Courbe& courbe, Couleur couleur);

/// Up to three curves in one box, each to its own scale around mid-height; nothing before a study is calculated.
void DessineGraphique(Dessin& dessin, std::span<const Courbe> courbes);

/// The same quantity of each cam of a study of several in one box.
void DessineGraphiqueCames(Dessin& dessin, const TypeEtude& type, std::vector<Courbe> (*courbes)());
