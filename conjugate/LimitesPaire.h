// What the screen refuses of the numbers of a pair of conjugate cams. A file and the batch companion are calculated as
// they stand.
#pragma once

#include "core/Etude.h"

#include <optional>

/// A number at fault: the name of its row, and the text number of what is said.
struct FautePaire {
    const char* champ;
    int texte;
};

/// The cam must turn: zones have no duration otherwise.
std::optional<FautePaire> ChercheFauteVitesse(const DonneesEtude& donnees);

/// Pivot, arms, rollers and inertia.
std::optional<FautePaire> ChercheFautePaire(const DonneesEtude& donnees);

/// True when some of the radii, rollers and the inertia are below 0, of which `ChercheFautePaire` lets pairs through.
bool DonneesNegatives(const DonneesEtude& donnees);
