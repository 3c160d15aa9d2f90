// The printer of the workstation: one for the whole run of the program, with the settings that the user last gave it.
#pragma once

class QPrinter;
class QWidget;

/// @throws std::logic_error never; a workstation without a printer gives one that can only lay out pages.
QPrinter& ImprimanteDuPoste();

/// True when a printer is installed.
bool ImprimanteInstallee();

/// Asks for the printer and the paper that later documents are printed with.
void ConfigureImprimante(QWidget* parent);
