// Files are read whole and written whole or not at all.
#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

/// No text file of the program comes near this; a larger one was never written by it.
inline constexpr std::size_t TailleFichierMax = std::size_t{16} << 20;

/// What may stand where a file is read.
enum class Source {
    Fichier, ///< a regular file; anything else is refused at once, and never waited for
    Flux,    ///< also a pipe, read to its end
};

/// The whole content of a file, bytes as they stand.
/// @throws ErreurExecution file not found; access refused; input/output; file too large above `TailleFichierMax`.
std::string LitFichierEntier(const std::filesystem::path& chemin, Source source = Source::Fichier);

struct FichierAEcrire {
    std::filesystem::path chemin;
    std::string contenu;
};

/// Writes `contenu` into a temporary file beside `chemin`, flushes it to the device and renames it over `chemin`: a
/// full disk, a refusal or a kill at any moment leaves the old file as it was, and what a killed run left behind is
/// removed by the next write of that name. A link is followed; owner and permissions stay. A pipe or a device is
/// written through.
/// @throws ErreurExecution disk full; access refused; input/output. The detail is the path.
void EcritFichierEntier(const std::filesystem::path& chemin, std::string_view contenu);

/// The same for files that belong together: all of them are written, or none.
void EcritFichiersEntiers(std::span<const FichierAEcrire> fichiers);
