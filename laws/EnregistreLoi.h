// Saving a law study: the question which kind of file is wanted, the file dialogue, the file.
#pragma once

#include <optional>
#include <string>

/// Asks for the kind and the name, and writes the law study of the record.
/// @param nom name proposed for the file, without extension
/// @return name of the file without its folder, and what a reader will make of a law that is not 720 points over 360
///         degrees; none when the user gave up or the law does not fit into the file
/// @throws ErreurExecution disk full; access refused; input/output.
std::optional<std::string> EnregistreLoi(const std::string& nom);
