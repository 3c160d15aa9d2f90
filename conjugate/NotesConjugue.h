// What the report does not say by itself: where a figure of the calculation misleads. It stands beside the report in
// the working language.
#pragma once

#include "conjugate/IndexeurConjugue.h"

/// Adds the notes on what was calculated so far.
void NoteReserves(ResultatConjugue& resultat);
