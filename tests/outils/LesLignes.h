// The lines of a file's content.
#pragma once

#include "core/Lignes.h"

#include <string>
#include <vector>

inline std::vector<std::string> LesLignes(const std::string& contenu) {
    std::vector<std::string> lignes;
    for (Lignes reste(contenu); !reste.Fin();) lignes.emplace_back(reste.Suivante());
    return lignes;
}
