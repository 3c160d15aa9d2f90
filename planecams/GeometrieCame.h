// From the radii to the curves: pressure angle, the two offset profiles of the roller, their differences, and the
// checks of the finished geometry. Shared by all cams whose follower is a roller.
#pragma once

/// `Points.Rayon` to `Profil`: tangent angle, inner and outer offset curves, first and second differences.
void CalculeProfil();

/// True for a cam cut on a cylinder, whose curves are those of the developed surface.
bool CameDeveloppee();

/// Slope of the profile in degrees that a tangent angle (radians) stands for, signed: 0 where the follower rests. A
/// plane cam's angle is counted from the radius, a developed one's from the circumference.
double Pente(double angleTangent);

/// Largest slope of the profile in degrees, signed.
double PenteMaxi();

/// The arm must not cross the line from the cam centre to the pivot: sets `Erreur` and says so when it does.
/// @throws ErreurExecution division by zero for a CoteA of 0.
void ControleBrasCentre();

/// Radii of curvature of the pitch curve and of both profiles, and the box that lists where they are too small for the
/// roller. The calculation goes on.
void ControleCourbure();
