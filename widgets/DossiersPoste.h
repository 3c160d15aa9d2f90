// The folders of the present user on this workstation.
#pragma once

#include "data/Demarrage.h"

#include <filesystem>
#include <string>

DossiersSysteme LesDossiersPoste();

/// Where programs keep what is to outlast them, and is no document of the user's.
std::filesystem::path DossierEtat();

/// Where programs keep what is gone when the user logs out, such as sockets; empty where the system gives no such
/// folder.
std::filesystem::path DossierExecution();

/// Eight hexadecimal digits for a folder, for the names of the files that belong to the program working in it.
std::string EmpreinteDossier(const std::filesystem::path& dossier);
