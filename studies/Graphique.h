// A graph of results against the cam angle: axes, graduations, and up to three curves, each with its own vertical
// scale.
#pragma once

#include "platform/Dessin.h"

#include <span>
#include <vector>

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

/// The horizontal axis lies at mid-height; a maximum of 0 is drawn as if it were 1.
void DessineGraphique(Dessin& dessin, std::span<const Courbe> courbes);
