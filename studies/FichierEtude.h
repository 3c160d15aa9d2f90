// Study files: plain text, one value a line, CR LF line ends. A file holds the data of a study, never results.
#pragma once

#include "studies/TypesEtude.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// Reads the study file at `chemin`, whose extension tells the kind, into the study record; nothing is calculated.
/// @return false when a zone's law is unknown, after the box that says so; the zones hold what was read so far.
/// @throws ErreurExecution for a missing, unreadable, short or damaged file.
bool LitFichierEtude(const std::filesystem::path& chemin);

/// As `LitFichierEtude`, on the content of a file.
bool LitEtude(std::string_view contenu, const TypeEtude& type);

/// The content of the present study's file, with the decimal separator given.
std::string ComposeFichierEtude(const TypeEtude& type, char separateur);

/// Asks for a file name and writes the present study there, whole or not at all.
/// @return where it stands; none when the user cancelled.
/// @throws ErreurExecution disk full, access refused, input/output; the study and the old file are as they were.
std::optional<std::filesystem::path> DonneesDepart();
