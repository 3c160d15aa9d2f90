// The summary of the zones, a row each, as the data screens and the results show it.
#pragma once

#include "cams/DescriptionZones.h"
#include "core/TableTexte.h"

#include <cstdint>

/// The zones of the study record. Only the first `entrees` of them have their values yet.
TableTexte TableZones(const DescriptionZones& zones, std::int16_t entrees);
