// The small drawings of the data screens of plane cams: the mechanism with the names of its dimensions.
#pragma once

#include "platform/Dessin.h"

#include <string>

/// The arm mechanism, not to scale, with its named dimensions.
/// @param accent name of the dimension to set off ("a", "b", "O1-A", "O1-P", "P-O1-A", "galet"), or empty
void DessineSchemaBras(Dessin& dessin, const std::string& accent);

/// The translating follower on its radial line, not to scale, with the radius of its roller centre named.
/// @param accent "galet" or empty
void DessineSchemaTranslation(Dessin& dessin, const std::string& accent);
