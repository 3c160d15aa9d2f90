// The help file of the program, one per delivered language.
#pragma once

#include <filesystem>

class QWidget;

/// Chooses the help file by the working language; for a language without one, asks which to take. Any answer but "E",
/// "F" and "U", a cancel too, gives the French file.
void ChoisitAide();

/// The help file chosen last; empty before the first choice.
const std::filesystem::path& FichierAide();

/// Opens the help file in the help viewer of the system. A missing file is told.
void MontreAide();

/// F1 in this window shows the help.
void AjouteAide(QWidget& fenetre);
