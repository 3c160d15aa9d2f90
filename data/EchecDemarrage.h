// What a failed start says. The texts of the working language stand in the database and may not be there yet, so that
// these few are kept here, in the three languages of the program.
#pragma once

#include "core/ErreurExecution.h"

#include <string>

/// The meaning of a failed start with the file that it is about.
/// @param langue one of the delivered languages; any other gives all three, one below the other
std::string TexteEchecDemarrage(const ErreurExecution& erreur, const std::string& langue = {});
