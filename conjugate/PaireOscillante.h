// The pair of conjugate cams: two plane cams with an oscillating arm, calculated one after the other from one motion.
#pragma once

/// The whole calculation, from the zones to the torques of both cams, which are left in `etude.passes`: guide, then
/// follower. `Erreur` tells whether there are results; nothing is left of a calculation that fails.
///
/// The arm R2 stands `AngleBras` degrees behind R1. Forces are those of the inertia at O1 alone, and their maxima those
/// of both cams.
/// @throws ErreurExecution whatever stops the arithmetic.
void CalculeCamesConjuguees();
