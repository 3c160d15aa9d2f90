// An axis of a graph: the values at its ends, and what is written along it.
#pragma once

#include "platform/Dessin.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

struct Graduation {
    double valeur;
    std::string texte; ///< empty where only the line is drawn
};

struct AxeGraphe {
    double mini = 0, maxi = 1;
    std::vector<Graduation> graduations;
    std::string legende; ///< of the horizontal axis
    std::string unite;   ///< of a horizontal axis behind the place of an extreme, of a vertical one below its values
    Couleur couleur = Couleur::TexteDiscret; ///< of its values
};

/// From 0 to `total` degrees, graduated at a round part of a turn.
AxeGraphe AxeAngles(double total);

/// Around 0, which lies in its middle. The maximum is written, and what lies a whole number of steps from 0 below it;
/// a maximum of 0 or less leaves only the 0, and 0 is drawn as if it were 1.
AxeGraphe AxeSymetrique(double maximum, double pas, std::string_view masque);

/// From round value to round value around the values of a curve, with room for the marks of the extremes; around 0 too,
/// unless the values lie far from it.
AxeGraphe AxeAutour(std::span<const PointDessin> courbe);

/// The first lowest and the first highest point of a curve, one at least; a value that is 0 but for its rounding is 0.
struct ExtremesCourbe {
    PointDessin mini, maxi;
};
ExtremesCourbe ChercheExtremes(std::span<const PointDessin> courbe);

/// `valeur` with so many decimals.
std::string TexteDecimales(double valeur, int decimales);
