// The drawing of a plane cam that turns, with its roller and its arm.
#pragma once

#include "platform/Dessin.h"

/// The cam of the present results turned clockwise by `angle` degrees (0..360) from its start: both profiles, the pitch
/// curve, the roller where the follower holds it, the arm and its pivot. Y runs up.
void DessineCamePlate(Dessin& dessin, double angle);
