// The summary of the zones, a row each, as the data screens and the results show it.
#pragma once

#include "cams/DescriptionZones.h"

#include <cstdint>
#include <string>
#include <vector>

std::vector<std::string> EntetesZones(const DescriptionZones& zones);

/// True for the columns that hold a text.
std::vector<bool> ColonnesTexteZones(const DescriptionZones& zones);

/// Text of a cell, `ligne` and `colonne` from 0. Only the first `entrees` zones have their values yet.
std::string CelluleZone(const DescriptionZones& zones, int ligne, int colonne, std::int16_t entrees);
