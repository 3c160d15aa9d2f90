// The tables of a study of several cams: what belongs together of each stands side by side.
#pragma once

#include "studies/TypesEtude.h"

/// Motion of the arm of the first cam, then of each cam radius, speed and acceleration of the roller centre and roller
/// speed, and last what is checked of the cams together. A row is one degree of cam angle.
TableTexte TableMouvementCames(const TypeEtude& type);

/// Of each cam roller force, torque, tangent angle and radii of curvature. A row is one degree of cam angle.
TableTexte TableEffortsCames(const TypeEtude& type);

/// The remarkable values, a column a cam.
TableTexte TableRemarquablesCames(const TypeEtude& type);

/// What is checked of the cams together.
TableTexte TableControle(const TypeEtude& type);
