// Notes beside values: each is told once, under a number that its values refer to.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

class Notes {
public:
    /// @param valeur name of the value that the note stands beside
    void Ajoute(std::string_view valeur, const std::string& texte);

    bool Vide() const { return textes_.empty(); }
    /// What stands behind the caption of a value: " (1,3)", or nothing.
    std::string Renvoi(std::string_view valeur) const;
    /// The notes that a value refers to, a line each.
    std::string Textes(std::string_view valeur) const;
    /// All of them in lines of so many characters at most, words whole; the first of each begins with "(1) ".
    /// @param largeur 0 for lines of any length
    std::vector<std::string> Lignes(int largeur = 0) const;

private:
    std::vector<std::string> textes_;
    std::vector<std::pair<std::string, std::size_t>> renvois_; ///< name of a value, subscript of its text
};
