// The points of a law study: cam angle, output, speed and acceleration, in the unit of the output.
#pragma once

#include "core/TableTexte.h"

/// As screen and page have them, under their masks.
TableTexte TablePointsLoi();

/// As the listing has them: the same decimals without the zeros behind, the angle with all of its digits.
TableTexte TableListageLoi();
