// From the zones to the motion: height of the roller centre along the cam's axis, its speeds, and the roller speed.
// The extreme values keep the subscript of the point at which they stand.
#pragma once

/// Zones (heights, mm) to `Points`.
void MouvementCyl();

/// Zones (arm angles, degrees) to `Mouvement` and `Points`, with the thickness of the cam, which is also what
/// `RayonMax` takes.
void MouvementCylOsc();

/// Largest magnitude of the arm's angle in the motion table, degrees.
double AngleBrasExtreme();
