// From the zones to the point tables: motion of the follower, radius of the roller centre and its speeds.
//
// The mechanism of the oscillating arm: cam centre O at the origin, arm pivot O1 at (CoteA, CoteB) mm from it, roller
// centre P on the arm at RayonO1P from O1, force point A at RayonO1A. The direction of O1-P is the arm angle plus
// AnglePO1A.
#pragma once

#include "cams/ParcoursZones.h"

/// Zones to `Mouvement` and `Points` of the arm cam, with the extreme values.
void CalculeMouvementBras();

/// The same for one of several cams that are driven by one motion: the unit laws are evaluated for the first of them.
/// @param lois empty for the first cam, and handed on to the others
void CalculeMouvementCouple(LoisZones& lois);

/// Zones to `Points` of the cam with a translating follower, with the extreme values. The zones give radii, and every
/// zone is evaluated by its law: a law file has no place here.
void CalculeMouvementLineaire();
