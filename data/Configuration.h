// The configuration file `CameAng.cfg`: which cam reports the print command makes, and the working language.
#pragma once

#include <array>
#include <filesystem>
#include <string>

inline constexpr const char* NomConfiguration = "CameAng.cfg";
inline constexpr std::size_t NombreImpressions = 7;

struct Configuration {
    std::array<bool, NombreImpressions> imprime{}; ///< check marks of the print items, in the order of the menu
    std::string langue;                            ///< name of the working language
};

/// Reads eight lines: seven times `#TRUE#` or `#FALSE#`, then the language; lines end with LF or CR LF.
/// @throws ErreurExecution file not found, access refused, input past end (lines missing), invalid content (anything
/// else).
Configuration LitConfiguration(const std::filesystem::path& chemin);

/// Writes the file whole or not at all.
/// @throws ErreurExecution disk full, access refused, input/output.
void EcritConfiguration(const std::filesystem::path& chemin, const Configuration& configuration);
