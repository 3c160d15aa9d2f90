// What stands beside the report of a calculation: each text once.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

inline void Note(std::vector<std::string>& notes, const std::string& texte) {
    if (std::find(notes.begin(), notes.end(), texte) == notes.end()) notes.push_back(texte);
}
