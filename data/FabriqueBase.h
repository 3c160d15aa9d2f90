// Builds the catalogue database out of the reviewable tables (`.tsv`, one file a table).
#pragma once

#include <filesystem>

/// Writes the database anew at `destination` from the tables in `dossier`: the first line of a table names its fields,
/// an empty cell is a null. Its version is a number that follows from what the tables hold.
/// @throws ErreurExecution file not found; type mismatch (a text in a number field, a line with another number of
///         cells); access refused (a key that stands twice).
void FabriqueBase(const std::filesystem::path& dossier, const std::filesystem::path& destination);
