// The child windows of the main window: one row per screen that is built. A command whose screen has no row is
// disabled.
#pragma once

#include <filesystem>
#include <span>
#include <string_view>

class FenetreEnfant;

struct EcranEnfant {
    const char* nom;
    FenetreEnfant* (*cree)(const char* nom); ///< opens on the study record
    /// Place among the windows that saving and printing look for, the first active one taking them; 0 for a window of a
    /// cam study, which is saved and printed as a study.
    int rang = 0;
    const char* extension = nullptr; ///< of the files that this window opens itself, with the point; none for most
};

/// All of them, in the order in which they are closed.
std::span<const EcranEnfant> LesEcrans();

/// The row of a screen; none for one that is not built.
const EcranEnfant* TrouveEcran(std::string_view nom);

/// The row of the window that opens a file itself, by its extension in any case; none for every other file.
const EcranEnfant* TrouveEcranFichier(const std::filesystem::path& fichier);
