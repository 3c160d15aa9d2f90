// What is worth telling about a sequence of zones that can be calculated all the same.
#pragma once

#include "cams/DescriptionZones.h"

#include <cstdint>
#include <string>
#include <vector>

/// A line for each zone that starts elsewhere than the one before ends and, once all are entered, for a sum of cam
/// angles other than a whole turn and for a motion that ends elsewhere than it starts.
/// @param entrees the zones that have their values yet, from the first
std::vector<std::string> RemarquesZones(const DescriptionZones& zones, std::int16_t entrees);

/// Sum of the cam angles of the first `entrees` zones, degrees.
double SommeAngles(std::int16_t entrees);
