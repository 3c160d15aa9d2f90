// The scalars that are entered for a kind of cam: a table of rows in the order of its study files, and the groups in
// which data screen and printed data show them. A number stands once in each.
#pragma once

#include "core/Champ.h"
#include "core/Etude.h"

#include <array>
#include <span>
#include <string_view>

using ChampEtude = Champ<DonneesEtude>;

/// Masks of lengths, angles and masses, and of forces, in study files.
inline constexpr const char* MasqueDonnee = "###.##";
inline constexpr const char* MasqueForce = "####.##";

/// A panel of a data screen, and its block in the printed data.
struct GroupeDonnees {
    static constexpr std::size_t MaximumChamps = 8;

    const char* panneau;                           ///< name of the panel
    int titre;                                     ///< text number of its caption
    std::array<const char*, MaximumChamps> champs; ///< names of its rows in the order of entry, none behind the last
    bool suite = false;                            ///< printed as part of the block before, its caption indented
    bool pesanteur = false;      ///< the direction of gravity: entered beside an arrow, printed without a caption
    const char* suiteTitre = ""; ///< what follows the caption on paper

    constexpr std::span<const char* const> Champs() const {
        std::size_t nombre = 0;
        while (nombre < MaximumChamps && champs[nombre] != nullptr) ++nombre;
        return {champs.data(), nombre};
    }
};

/// True when every row of the table stands in one of the groups, and in one only.
constexpr bool Repartis(std::span<const GroupeDonnees> groupes, std::span<const ChampEtude> champs) {
    std::size_t places = 0;
    for (const GroupeDonnees& groupe : groupes) places += groupe.Champs().size();
    for (const ChampEtude& champ : champs) {
        int fois = 0;
        for (const GroupeDonnees& groupe : groupes)
            for (const std::string_view nom : groupe.Champs()) fois += nom == champ.nom ? 1 : 0;
        if (fois != 1) return false;
    }
    return places == champs.size();
}
