// The texts of one language as a file for a translator: UTF-8, a line a text, its number and its wording between a tab;
// a line break in a wording is written "\n". The first line names the columns.
#pragma once

#include "languages/Langues.h"

struct TexteImporte {
    long numero;
    std::string texte;
};

/// What a file holds: its wordings, or what is wrong with it, each fault with its line. With a fault there are no
/// wordings.
struct ImportLangue {
    std::vector<TexteImporte> textes;
    std::vector<std::string> fautes;
};

/// The file of a language; a text that it lacks has an empty wording.
std::string ComposeFichierLangue(JeuEnregistrements& textes, const std::string& langue);

/// Checks a whole file: its lines, numbers, lengths and accelerators. Texts may be left out, or their wording empty.
ImportLangue AnalyseFichierLangue(JeuEnregistrements& textes, std::string_view contenu);

/// How many of these texts a language has in another wording.
long NombreRemplaces(JeuEnregistrements& textes, const std::string& langue, const std::vector<TexteImporte>& importes);

/// Stores them all, or none.
/// @throws ErreurExecution access refused for a delivered language; disk full.
void EcritTextes(BaseDonnees& base, JeuEnregistrements& textes, const std::string& langue,
                 const std::vector<TexteImporte>& importes);
