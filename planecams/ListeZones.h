// The summary of the zones, a row each, as the data screens and the results show it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// @param bras the zones are those of an arm, and have angles beside their radii
std::vector<std::string> EntetesZones(bool bras);

/// True for the columns that hold a text.
std::vector<bool> ColonnesTexteZones(bool bras);

/// Text of a cell, `ligne` and `colonne` from 0. Only the first `entrees` zones have their values yet.
std::string CelluleZone(bool bras, int ligne, int colonne, std::int16_t entrees);
