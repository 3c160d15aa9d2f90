// The files of a drum cam: the record of the study, made to be read by a person, the roller centres, and a script for a
// drawing system.
#pragma once

#include "cylindrical/IndexeurCylindrique.h"

#include <functional>
#include <string>

/// The text as typed into the field of an input, by the name of the record's member.
using TexteSaisi = std::function<std::string(const char* champ)>;

/// The date of the day, "dd mm yyyy".
std::string DateEnChiffres();

/// The record (.Tam): a line "label : value" an input.
/// @param date today, "dd mm yyyy"
/// @param sens of rotation, +1 or -1
std::string ComposeTam(const TexteSaisi& saisi, double sens, const std::string& date);

/// The roller centres (.Pnt): the rows of the motion, their cells joined by ";".
std::string ComposePntIndexeur(const ResultatIndexeurCylindrique& resultat);

/// The script (.Scr): the developed cam, the turret with its first two rollers, and the roller centres of the first
/// row. It ends there, on purpose: the thickness at the end of the row is no centre, which ends the writing without a
/// word.
std::string ComposeScrIndexeur(const IndexeurCylindrique& donnees, const ResultatIndexeurCylindrique& resultat);
