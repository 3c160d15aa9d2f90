// The pipelines of the cams cut on a cylinder, with a follower that translates along its axis or sits on an arm that
// swings about O1. The profile is the motion developed on the circumference, with the roller offset square to the
// slope.
#pragma once

/// The whole calculation of the cam with a translating follower, from the zones to the torques. `Erreur` tells whether
/// the results are to be shown.
/// @throws ErreurExecution whatever stops the arithmetic; the zones are back in degrees and no table is left.
void CalculeCameCylindrique();

/// The same for the cam with an oscillating follower.
void CalculeCameCylOsc();
