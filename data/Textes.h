// The numbered texts of the working language. Every caption and message of the program is one of them.
#pragma once

#include "core/ErreurExecution.h"

#include <cstdint>
#include <string>
#include <vector>

class BaseDonnees;

/// Position of the first language column in the table of texts, behind the number and the allowed length.
inline constexpr long PremiereLangue = 2;

/// Loads the texts of `LangueTravail` out of the table `Idiomas`. A language that the table does not have is replaced
/// by the second language column.
/// @throws ErreurExecution unreadable database.
void ChargeTextes(BaseDonnees& base);

/// Text number `numero`, 1 to `NombreTextes()`; number 0 is empty.
/// @throws ErreurExecution subscript out of range.
const std::string& Texte(int numero);

std::int16_t NombreTextes();

/// Name of the working language, which is also the name of its column.
extern std::string LangueTravail;

/// The languages of which every text was there when the texts were loaded, in column order.
const std::vector<std::string>& LanguesCompletes();

/// The meaning of a run-time failure in one line, and what it is about.
std::string SensErreur(const ErreurExecution& erreur);

/// What a box tells of a run-time failure: its number and its meaning.
std::string TexteErreur(const ErreurExecution& erreur);
