// The steps of the start-up, up to the main window.
#pragma once

#include "data/Configuration.h"

#include <filesystem>

/// Everything that the main window needs, in the order in which each stands on the one before: folders, database,
/// laws, configuration, texts.
/// @param executable folder of the running executable
/// @throws ErreurExecution missing or unreadable database or configuration.
Configuration Demarre(const std::filesystem::path& executable);
