// The files that a calculated study writes on request: points, scripts, printed reports.
#pragma once

#include "batch/LigneCommande.h"

/// Refuses outputs that would replace the study, the catalogue, the configuration or one another.
/// @throws UsageIncorrect with the name at fault
void VerifieSorties(const LigneCommande& ligne, const std::string& fichierEtude);

/// Writes what the options ask for, from the present results; each file whole or not at all, the two scripts together.
/// "-" is the standard output.
/// @throws ErreurExecution disk full; access refused; no such folder; input/output.
void EcritSorties(const LigneCommande& ligne);
