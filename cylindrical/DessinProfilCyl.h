// The drawing of a developed cylindrical cam, with its roller at a position of the development.
#pragma once

#include "platform/Dessin.h"

/// The sheet of the present results: both flanks of the groove and the pitch curve of every turn, the roller at the cam
/// angle `angle` (degrees from the start of the track), and the arm where the follower has one.
void DessinProfilCyl(Dessin& dessin, double angle);
