// The drawing of a developed drum cam: the turret with its first two rollers, the cam, and every roller centre of the
// table as a roller in the colour of its number.
#pragma once

#include "cylindrical/IndexeurCylindrique.h"

/// @param epaisseur of the thinnest stroke, in the unit of the surface
void DessineDeveloppee(Dessin& dessin, const IndexeurCylindrique& donnees, const ResultatIndexeurCylindrique& resultat,
                       double hauteurTexte, double epaisseur);
