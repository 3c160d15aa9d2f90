// The commands of the batch companion: one table, walked by the help and by the dispatch.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

/// Runs one command line.
/// @param mots the words behind the name of the program
/// @param sortie the result; of several files, those that cannot be opened have no object there
/// @return 0 calculation done; 1 refused or failed, the result says why; 2 wrong usage or a file that cannot be opened,
///         with one line on `erreurs`
int LanceCommande(const std::vector<std::string>& mots, std::ostream& sortie, std::ostream& erreurs);
