// Drawings to scale on paper, millimetres.
#pragma once

#include "drawing/Etendue.h"

#include <string>

/// The largest scale of technical drawings at which the drawing fits, in paper millimetres for one of the mechanism;
/// the smallest there is for a drawing that fits at none.
double ChoisitEchelle(const Etendue& etendue, double largeur, double hauteur);

/// Length of the bar below a drawing, mm of paper.
inline constexpr double LongueurRegle = 50;

/// The bar at the lower right of the surface, to check that the printer has not resized the page.
/// @param texte what it measures
void DessineRegle(Dessin& dessin, const std::string& texte, double hauteurTexte, const Trait& trait);
