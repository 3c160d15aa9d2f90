// What the desktop program and the batch companion do alike before anything else: find the folders that they work with
// and open the catalogue.
#pragma once

#include "data/BaseDonnees.h"

#include <filesystem>

/// The folder of the program, where the delivered database and configuration, the worked examples and the help stand.
extern std::filesystem::path CheminAppli;

/// Where the database and the configuration stand that the user works with and changes.
extern std::filesystem::path CheminUtilisateur;

/// The folder that file dialogues show first.
extern std::filesystem::path CheminEtudes;

/// The catalogue; open from start-up to the end.
extern BaseDonnees LaBase;

/// File name and password of the catalogue, and folder of the worked examples.
inline constexpr const char* NomBase = "BaseDatos.Mdb";
inline constexpr const char* MotDePasseBase = "Tq8mRw4Z";
inline constexpr const char* NomDossierEtudes = "Profils";

/// Directory of the running executable.
std::filesystem::path DossierExecutable();

/// Where the system keeps what belongs to the present user.
struct DossiersSysteme {
    std::filesystem::path donnees;   ///< data of programs
    std::filesystem::path documents; ///< what he saves himself
};

/// Sets the three folders. In a copy that can be moved, the database stands beside the executable, and everything is
/// done in that folder. A copy in a folder that this user cannot write to, and an installed program, whose executable
/// stands in `bin` and its folder in `share/velorin` beside it, leave the user a folder `velorin` among his data, and
/// his documents for the studies.
void PrendDossiers(const std::filesystem::path& executable, const DossiersSysteme& systeme);
