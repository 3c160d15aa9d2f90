// The slope of a profile, as designers read it.
#pragma once

/// Slope of the profile in degrees that a tangent angle (radians) stands for, signed: 0 where the follower rests. A
/// plane cam's angle is counted from the radius, a developed one's from the circumference.
double Pente(double angleTangent);

/// Largest slope of the profile in degrees, signed.
double PenteMaxi();
