// `velorin-batch inertie`: the solids of one assembly, each calculated and added to the list.
#pragma once

#include "batch/LigneCommande.h"

#include <iosfwd>

/// One JSON object on `sortie` for each data file, JSON or a list of the desktop program (.Ine).
/// @return 0 calculated, 1 for a run-time failure, 2 for a file that cannot be opened or that makes no sense
/// @throws UsageIncorrect without a file
int CommandeInertie(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs);
