// Last stage of the pipelines: mass and inertia of the cam, what it takes to start it in 0.25 s, and at every point
// from the second on roller force and cam torque.
#pragma once

/// Forces and torques of the cam with a translating follower.
void ForcesCyl();

/// Forces and torques of the cam with an oscillating follower.
/// @throws ErreurExecution division by zero for an arm of length 0.
void ForcesCylOsc();
