// Whether numbers are finite, record by record and fast enough for every point of a calculation.
#pragma once

#include "core/Tableau.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

/// True when all of `nombre` doubles are finite numbers. They are given as bytes, as records of plain doubles are.
inline bool TousFinis(const unsigned char* octets, std::size_t nombre) {
    constexpr std::uint64_t exposant = 0x7FF0000000000000, unite = 0x0010000000000000;
    std::uint64_t signes = 0;
    // An exponent of all ones, that of infinities and of what is no number, carries over into the sign.
    for (std::size_t i = 0; i < nombre; ++i) {
        std::uint64_t bits;
        std::memcpy(&bits, octets + i * sizeof bits, sizeof bits);
        signes |= (bits & exposant) + unite;
    }
    return signes >> 63 == 0;
}

/// The same of a record.
template <class Fiche> bool TousFinis(const Fiche& fiche) {
    static_assert(std::is_trivially_copyable_v<Fiche> && sizeof(Fiche) % sizeof(double) == 0);
    return TousFinis(reinterpret_cast<const unsigned char*>(&fiche), sizeof fiche / sizeof(double));
}

/// Subscript of the first record of a table that is not all finite; -1 when there is none.
template <class Fiche> long PremierNonFini(const Tableau<Fiche>& table) {
    constexpr long Lot = 64; ///< records looked at together: one test for all of them
    const long nombre = table.BorneHaute() + 1;
    for (long debut = 0; debut < nombre; debut += Lot) {
        const auto lot = static_cast<std::size_t>(std::min(Lot, nombre - debut));
        if (TousFinis(reinterpret_cast<const unsigned char*>(&table[debut]), lot * sizeof(Fiche) / sizeof(double)))
            continue;
        for (long i = debut;; ++i)
            if (!TousFinis(table[i])) return i;
    }
    return -1;
}
