// What the desktop program and the batch companion do alike before anything else: find the folder of the program and
// open the catalogue.
#pragma once

#include "data/BaseDonnees.h"

#include <filesystem>

/// The folder of the program, where the database, the configuration and the worked examples stand.
extern std::filesystem::path CheminAppli;

/// The catalogue; open from start-up to the end.
extern BaseDonnees LaBase;

/// File name and password of the catalogue, and folder of the studies.
inline constexpr const char* NomBase = "BaseDatos.Mdb";
inline constexpr const char* MotDePasseBase = "Tq8mRw4Z";
inline constexpr const char* NomDossierEtudes = "Profils";

/// Directory of the running executable.
std::filesystem::path DossierExecutable();
