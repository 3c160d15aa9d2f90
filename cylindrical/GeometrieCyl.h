// From the heights to the developed cam: slope of the track, the two flanks of the groove, their differences, and the
// check of cams of more than one turn. X runs along the circumference, Y along the axis, both in mm.
#pragma once

/// Arc of the cam between two points, mm.
double ArcEntrePoints();

/// `Points.Rayon` to `Profil`.
/// @throws ErreurExecution division by zero for a cam without diameter.
void GeometrieCyl();

/// Largest slope of the track from one point to the next, degrees, signed.
double PenteVraieMaxi();

/// Neighbouring turns of the track must leave a wall between them: sets `Erreur` and says so where they do not.
void ControleSpires();
