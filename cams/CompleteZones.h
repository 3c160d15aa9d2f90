// What a zone owes to the mechanism: its duration at the speed of the cam and, on an arm, the radii of the roller
// centre.
//
// The arm: cam centre O at the origin, arm pivot O1 at (CoteA, CoteB) mm from it, roller centre P on the arm at
// RayonO1P from O1. The direction of O1-P is the arm angle plus AnglePO1A.
#pragma once

#include "core/Etude.h"

/// Distance O-P for an arm of length `L` at `angle` + `decalage` degrees, its pivot at (a, b); lengths in mm.
/// Clears `Erreur`; where no such distance exists it sets `Erreur` and gives 0.
/// @throws ErreurExecution division by zero for an arm of length 0.
double RayonGaletCentre(double a, double b, double L, double angle, double decalage);

/// Signed travel of a zone, from its start value to its final value.
inline double CourseSignee(double depart, double final) {
    return final - depart;
}

/// The seconds that a zone of `angleCame` degrees lasts at `vitesseCame` Tr/min.
/// @throws ErreurExecution division by zero for a cam at rest.
inline double TempsZone(double angleCame, double vitesseCame) {
    return Divise(angleCame, vitesseCame) / 6.0;
}

/// Completes zone `z` (1..`NombreZones`) from what was entered: its duration and, on an arm, the radii of the roller
/// centre. The first zone starts at its own angle, a later one at the end of the zone before. `Erreur` is set when an
/// end of the arm's travel cannot be reached.
/// @throws ErreurExecution division by zero for a cam at rest or an arm of length 0.
void CompleteZone(int z, bool bras);

/// Completes all zones; `Erreur` is set when one of them cannot be.
void CompleteZones(bool bras);
