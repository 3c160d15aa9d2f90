// The direction of gravity, shown by an arrow.
#pragma once

#include "platform/Dessin.h"

/// @param angle of the arrow from the x axis, degrees, counter-clockwise
void DessinePesanteur(Dessin& dessin, double angle);
