// The report of the pair on paper.
#pragma once

#include "conjugate/IndexeurConjugue.h"
#include "platform/Imprimante.h"

/// Prints the lines of the report as they are, below them what stands beside it on the screen, and the graphs on a page
/// of their own.
void ImprimeConjugue(Imprimante& imprimante, const ResultatConjugue& resultat);
