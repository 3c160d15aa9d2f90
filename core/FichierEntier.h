// Files are read whole and written whole or not at all.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

/// No text file of the program comes near this; a larger one was never written by it.
inline constexpr std::size_t TailleFichierMax = std::size_t{16} << 20;

/// The whole content of a file, bytes as they stand.
/// @throws ErreurExecution file not found; access refused; input/output; file too large above `TailleFichierMax`.
std::string LitFichierEntier(const std::filesystem::path& chemin);

/// Writes `contenu` into a temporary file beside `chemin`, flushes it to the device and renames it over `chemin`: a
/// full disk, a refusal or a kill at any moment leaves the old file as it was.
/// @throws ErreurExecution disk full; access refused; input/output. The detail is the path.
void EcritFichierEntier(const std::filesystem::path& chemin, std::string_view contenu);
