// Texts are UTF-8; what is counted or compared by character goes through here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Number of characters (code points).
long Caracteres(std::string_view texte);

/// Whether every character is whole: a file in another encoding seldom passes.
bool EstUtf8(std::string_view texte);

/// The text as it is searched for: small letters, without the accents of the western European languages and without the
/// "&" of the accelerators.
std::string Plie(std::string_view texte);

/// A text broken between its words into lines of so many characters; a longer word keeps a line of its own.
std::vector<std::string> CoupeEnLignes(const std::string& texte, long caracteres);
