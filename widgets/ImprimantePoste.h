// The printer of the workstation: one for the whole run of the program, with the settings that the user last gave it.
#pragma once

class QPrinter;
class QWidget;

/// On a workstation without a printer it can lay out pages all the same.
QPrinter& ImprimanteDuPoste();

/// True when a printer is installed.
bool ImprimanteInstallee();

/// Asks for the printer and the paper that later documents are printed with.
void ConfigureImprimante(QWidget* parent);
