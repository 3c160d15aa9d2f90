// Drawings to scale on paper, millimetres.
#pragma once

#include "drawing/Etendue.h"

#include <string>

/// The largest scale of technical drawings at which the drawing fits, in paper millimetres for one of the mechanism.
double ChoisitEchelle(const Etendue& etendue, double largeur, double hauteur);

/// A scale as a page states it; one below 0.01 with all its digits.
std::string TexteEchelle(double echelle);

/// Length of the bar below a drawing, mm of paper.
inline constexpr double LongueurRegle = 50;

/// The bar at the lower right of the surface, to check that the printer has not resized the page.
/// @param texte what it measures
void DessineRegle(Dessin& dessin, const std::string& texte, double hauteurTexte, const Trait& trait);
