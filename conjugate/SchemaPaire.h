// The small drawing of the data screen: the pair with the names of its dimensions.
#pragma once

#include "platform/Dessin.h"

#include <string>

/// The double arm on its two cams, not to scale.
/// @param accent name of the dimension to set off ("a", "b", "R1", "G1", "R2", "G2", "angle"), or empty
void DessineSchemaPaire(Dessin& dessin, const std::string& accent);
