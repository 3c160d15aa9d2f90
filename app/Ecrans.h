// The child screens of the main window: one row per screen that is built. A command whose screen has no row is
// disabled.
#pragma once

#include <functional>
#include <string>
#include <string_view>

class QWidget;

/// What a child screen asks of the main window.
struct DemandesEcran {
    std::function<void()> etudeCalculee;   ///< the study is calculated: its results are to be shown
    std::function<void()> etudeRecalculee; ///< the results shown were calculated again
    std::function<void()> quitte;          ///< the screen is left
    std::function<void()> imprime;         ///< the screen is to be printed
    /// The screen wrote a file of that name.
    std::function<void(const std::string&)> fichierEnregistre;
};

struct EcranEnfant {
    const char* nom;
    const char* boutonRetour; ///< control name of its way back
    QWidget* (*cree)(const char* nom, const DemandesEcran& demandes);
};

/// The row of a screen; none for one that is not built.
const EcranEnfant* TrouveEcran(std::string_view nom);
