// The steps of the start-up, up to the main window.
#pragma once

#include "data/Configuration.h"

#include <filesystem>

/// Everything that the main window needs, in the order in which each stands on the one before: database, laws,
/// configuration, texts.
/// @param dossier folder of the program
/// @throws ErreurExecution missing or unreadable database or configuration.
Configuration Demarre(const std::filesystem::path& dossier);
