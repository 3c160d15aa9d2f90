// Reading a database that another program holds for itself.
#pragma once

#include <filesystem>

/// Copies a database file at a moment when no write is in flight, and waits for such a moment for up to two seconds.
/// @return the copy, in the folder of temporary files; the caller removes it
/// @throws ErreurExecution file in use when writes go on all the while; access refused; disk full. No copy is left
/// then.
std::filesystem::path CopieBase(const std::filesystem::path& chemin);
