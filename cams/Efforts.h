// What the forces of all cams have in common: the constants, the pull of gravity, and the largest force and torque.
#pragma once

#include "core/Etude.h"

inline constexpr double Gravite = 9.81;         ///< m/s²
inline constexpr double FacteurDynamique = 1.4; ///< on the inertia term
inline constexpr double MasseVolumique = 7.8;   ///< of the steel of the cam, kg/dm³

/// Acceleration of gravity along the direction that the follower works in, m/s².
double GraviteProjetee();

/// Clears the largest force and torque, and follows them. @param repere what they keep of their place
void RemetEfforts();
void SuitEfforts(const Point& p, double repere);
