// The files that a calculated study writes on request: points, scripts, printed reports.
#pragma once

#include "batch/LigneCommande.h"

/// Writes what the options ask for, from the present results; each file whole or not at all.
/// @throws ErreurExecution disk full; access refused; no such folder; input/output.
void EcritSorties(const LigneCommande& ligne);
