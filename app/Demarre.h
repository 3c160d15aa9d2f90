// The steps of the start-up, up to the main window.
#pragma once

#include "data/Configuration.h"
#include "data/Demarrage.h"

#include <future>

/// Everything that the main window needs, in the order in which each stands on the one before: folders, database,
/// laws, configuration, texts.
/// @throws ErreurExecution missing or unreadable database or configuration.
Configuration Demarre(const std::filesystem::path& executable, const DossiersSysteme& systeme);

/// The same on a thread of its own, while the toolkit starts: neither needs the other.
/// @param executable folder of the running executable
std::future<Configuration> CommenceDemarrage(const std::filesystem::path& executable);
