// The small drawings of the data screens of cylindrical cams: the cylinder with its groove, seen square to its axis,
// and the follower with the names of its dimensions. Not to scale.
#pragma once

#include "platform/Dessin.h"

#include <string>

/// @param accent name of the dimension to set off ("D", "galet"), or empty
void DessineSchemaCyl(Dessin& dessin, const std::string& accent);

/// @param accent "a", "O1-P", "D", "galet" or empty
void DessineSchemaCylOsc(Dessin& dessin, const std::string& accent);
