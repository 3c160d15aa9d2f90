// `velorin-batch loi`: the unit table of one law.
#pragma once

#include "batch/LigneCommande.h"

#include <iosfwd>

/// One JSON object on `sortie`.
/// @return 0 calculated, 1 refused or failed
/// @throws UsageIncorrect without a name, or for a number of steps or a symmetry coefficient that makes no sense
int CommandeLoi(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs);
