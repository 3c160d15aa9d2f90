// A command of the main window, said once: its menu entry, its button of the tool bar, and what it does.
#pragma once

class MdiCamA;
class QMenu;

/// What a command does, and how it is reached besides its menu entry.
struct Commande {
    void (MdiCamA::*fait)() = nullptr;
    const char* ecran = nullptr; ///< or the screen that it shows; the command is disabled while that is not built
    int aide = 0;                ///< text number of the hint in the status line and at its button; 0 for none
    const char* raccourci = "";
    const char* cle = nullptr;                  ///< key and icon of its button in the tool bar; none without one
    void (MdiCamA::*deroule)(QMenu&) = nullptr; ///< fills the drop-down menu of its button
};

/// One line of the menus. `niveau` 0 stands on the menu bar; the lines behind a menu that stand deeper are its own.
struct EntreeMenu {
    const char* nom; ///< object name
    int niveau;
    int texte;
    enum Genre { Menu, Ordre, Marque, Trait } genre;
    Commande commande = {};
};
