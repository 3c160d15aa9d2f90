// Last stage of the plane-cam pipelines: mass and inertia of the cam, roller force and cam torque at every point; and
// what the forces of all cams have in common.
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

/// Forces and torques of the arm cam.
/// @throws ErreurExecution division by zero for an arm O1-P of length 0.
void CalculeForcesBras();

/// Forces and torques of the cam with a translating follower.
void CalculeForcesLineaire();
