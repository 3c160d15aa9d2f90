// Law files (.Lmi): a unit law as text, one point a line, "course;speed;acceleration". A file states neither its number
// of points nor its stroke: a reader takes it as 720 points over a whole turn.
#pragma once

#include "core/Etude.h"

#include <filesystem>
#include <string>
#include <string_view>

/// The law file of `LoiUnite`, rows 0..`NombrePoints`, filled up to 722 lines with a dwell at 1.
std::string ComposeFichierLoi();

/// The listing (.Txt) of the law study in its own units, one line a point: cam angle, then `Mouvement` with 3, 5 and 5
/// decimals.
std::string ComposeListageLoi();

/// Takes the law of a file as the unit law of the one zone of a study. The first line becomes row 1 of `LoiUnite`, the
/// speeds and accelerations lose their signs, and `ListeLois` shrinks to the one row "Fichier" until the program is
/// started again: all this is settled.
/// @throws ErreurExecution input past the end for fewer than 720 lines, or whatever keeps the file from being read.
///         Nothing is changed then.
void LitFichierLoi(const std::filesystem::path& chemin);

/// As `LitFichierLoi`, on the content of a file.
void LitLoi(std::string_view contenu);

/// A message about a law that is not there, with a line that says when the laws come back where a law file has replaced
/// them.
std::string AvecLoisRemplacees(const std::string& message);

/// The three numbers of a line, cut at its first two ";", speed and acceleration without their signs. A line without
/// ";" reads as zeros.
PointLoi LitPointLoi(std::string_view ligne);
