// `velorin-batch indexeur-cylindrique`: the drum cam of an indexer.
#pragma once

#include "batch/LigneCommande.h"

#include <iosfwd>

/// One JSON object on `sortie` for each data file.
/// @return 0 calculated, 1 refused or failed, 2 for a file that cannot be opened or that makes no sense
/// @throws UsageIncorrect without a file
int CommandeIndexeurCylindrique(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs);
