// `velorin-batch etude`: reads study files and runs the pipeline of their kind.
#pragma once

#include "batch/LigneCommande.h"

#include <iosfwd>

/// One JSON object a file and a line on `sortie`; a file that cannot be opened gives a line on `erreurs` instead, and
/// the others are calculated all the same.
/// @return the worst status of the files: 0 calculated, 1 refused or failed, 2 cannot be opened
/// @throws UsageIncorrect without a file
int CommandeEtude(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs);
