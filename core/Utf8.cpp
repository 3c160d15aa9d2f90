#include "core/Utf8.h"

#include <algorithm>
#include <sstream>

namespace {

bool Suite(char octet) {
    return (octet & 0xC0) == 0x80;
}

/// Bytes of the character that begins with `octet`; 0 for a byte that begins none.
std::size_t LongueurCaractere(unsigned char octet) {
    if (octet < 0x80) return 1;
    if (octet < 0xC2) return 0; // a continuation, or a longer form of a shorter one
    if (octet < 0xE0) return 2;
    if (octet < 0xF0) return 3;
    return octet < 0xF5 ? 4 : 0;
}

/// Base letters of U+00C0 to U+00DF and U+00E0 to U+00FF alike, 0 where there is none.
constexpr char LettresBase[] = "aaaaaa\0ceeeeiiii\0nooooo\0ouuuuy\0";

} // namespace

long Caracteres(std::string_view texte) {
    return std::count_if(texte.begin(), texte.end(), [](char c) { return !Suite(c); });
}

bool EstUtf8(std::string_view texte) {
    for (std::size_t i = 0; i < texte.size();) {
        const std::size_t longueur = LongueurCaractere(static_cast<unsigned char>(texte[i]));
        const std::string_view suite = texte.substr(i + 1, longueur == 0 ? 0 : longueur - 1);
        if (longueur == 0 || i + longueur > texte.size() || !std::all_of(suite.begin(), suite.end(), Suite))
            return false;
        i += longueur;
    }
    return true;
}

std::string Plie(std::string_view texte) {
    std::string plie;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const char c = texte[i];
        if (c == '&') continue;
        const bool latin = c == '\xC3' && i + 1 < texte.size() && Suite(texte[i + 1]);
        const char base = latin ? LettresBase[texte[i + 1] & 0x1F] : '\0';
        if (base != '\0') {
            plie += base;
            ++i;
        } else {
            plie += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        }
    }
    return plie;
}

std::vector<std::string> CoupeEnLignes(const std::string& texte, long caracteres) {
    std::vector<std::string> lignes;
    std::istringstream mots(texte);
    for (std::string mot; mots >> mot;) {
        if (lignes.empty() || Caracteres(lignes.back()) + 1 + Caracteres(mot) > caracteres)
            lignes.push_back(mot);
        else
            lignes.back() += " " + mot;
    }
    return lignes;
}
