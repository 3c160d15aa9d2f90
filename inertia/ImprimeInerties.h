// The printout of an assembly: a figure for each kind of solid used, marked with a letter, then for each kind a table
// of its rows, and the totals.
#pragma once

#include "inertia/Assemblage.h"
#include "platform/Imprimante.h"

/// Prints the list and ends the document. An empty list prints nothing.
/// @throws ErreurExecution input/output when the printer fails.
void ImprimeInerties(Imprimante& imprimante, const Assemblage& assemblage);
