// `velorin-batch loi-speciale`: the study of a special law.
#pragma once

#include "batch/LigneCommande.h"

#include <iosfwd>

/// One JSON object on `sortie` for each data file.
/// @return 0 calculated, 1 refused or failed, 2 for a file that cannot be opened or that makes no sense
/// @throws UsageIncorrect for an unknown kind of law, or without a file
int CommandeLoiSpeciale(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs);
