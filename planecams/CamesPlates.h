// The pipelines of the plane cams.
#pragma once

/// The whole calculation of the plane cam with an oscillating arm, from the zones to the torques. `Erreur` tells
/// whether the results are to be shown.
/// @throws ErreurExecution whatever stops the arithmetic; the zones are back in degrees and no table is left.
void CalculeCameAngulaire();

/// The same for the plane cam with a translating follower.
void CalculeCameLineaire();
