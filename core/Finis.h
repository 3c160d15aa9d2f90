// Whether numbers are finite, record by record and fast enough for every point of a calculation.
#pragma once

#include "core/Tableau.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

/// True when every member of a record of plain doubles is a finite number.
template <class Fiche> bool TousFinis(const Fiche& fiche) {
    static_assert(sizeof(Fiche) % sizeof(double) == 0);
    constexpr std::uint64_t exposant = 0x7FF0000000000000, unite = 0x0010000000000000;
    std::uint64_t signes = 0;
    // An exponent of all ones, that of infinities and of what is no number, carries over into the sign.
    for (const std::uint64_t bits : std::bit_cast<std::array<std::uint64_t, sizeof(Fiche) / sizeof(double)>>(fiche))
        signes |= (bits & exposant) + unite;
    return signes >> 63 == 0;
}

/// Subscript of the first record of a table that is not all finite; -1 when there is none.
template <class Fiche> long PremierNonFini(const Tableau<Fiche>& table) {
    long i = 0;
    for (const Fiche& fiche : table) {
        if (!TousFinis(fiche)) return i;
        ++i;
    }
    return -1;
}
