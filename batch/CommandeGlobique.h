// `velorin-batch indexeur-globique` and `oscillateur-globique`: the capacities of globoidal cams.
#pragma once

#include "batch/LigneCommande.h"

#include <iosfwd>

/// One JSON object on `sortie` for each data file.
/// @return 0 calculated, 1 refused or failed, 2 for a file that cannot be opened or that makes no sense
/// @throws UsageIncorrect without a file
int CommandeIndexeurGlobique(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs);
int CommandeOscillateurGlobique(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs);
