// Labels that stand behind a caption: a number that cannot be typed into, and a unit.
#pragma once

#include "core/Notes.h"

#include <QLabel>

/// A read-only number, right-aligned in figures of one width, which can be copied.
/// @param gabarit the widest number that it has room for
QLabel* FaitValeur(const char* nom, const char* gabarit);

/// A unit, or what else is said beside a value.
QLabel* FaitUnite(const QString& texte = {});

/// Room for notes below the values that they belong to; none is taken while there are none.
QLabel* FaitNotes();
void MontreNotes(QLabel& etiquette, const Notes& notes);
