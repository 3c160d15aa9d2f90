// Last stage of the plane-cam pipelines: mass and inertia of the cam, roller force and cam torque at every point.
#pragma once

/// Forces and torques of the arm cam.
/// @throws ErreurExecution division by zero for an arm O1-P of length 0.
void CalculeForcesBras();

/// Forces and torques of the cam with a translating follower.
void CalculeForcesLineaire();
