// The languages of the numbered texts: a language is a column of the table `Idiomas`. Columns are added, translated
// text by text and deleted; those of the delivered languages are read only. A recordset that is handed over is moved.
#pragma once

#include "data/BaseDonnees.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

inline constexpr const char* TableTextes = "Idiomas";

/// True for a language that comes with the program, which nothing changes.
bool EstLivree(std::string_view langue);

/// Names of the languages, in column order.
std::vector<std::string> NomsLangues(const JeuEnregistrements& textes);
bool ExisteLangue(const JeuEnregistrements& textes, std::string_view langue);

/// What keeps a name from becoming that of a new language, in the working language: it is a column already, written in
/// whatever letters, too long, or has characters that a column, a menu entry or a file name cannot have.
std::optional<std::string> FauteNomLangue(const JeuEnregistrements& textes, const std::string& nom);

/// Adds a language without texts, or deletes one with all its texts, and opens the recordset anew.
/// @throws ErreurExecution access refused for a name that `FauteNomLangue` finds fault with and for a delivered
///         language; disk full. The table is then as it was.
void AjouteLangue(BaseDonnees& base, JeuEnregistrements& textes, const std::string& langue);
void SupprimeLangue(BaseDonnees& base, JeuEnregistrements& textes, const std::string& langue);

/// Wording of text `numero`, 1 upward; empty where the language has none.
std::string TexteDeLangue(JeuEnregistrements& textes, const std::string& langue, long numero);

/// Characters that a translation of text `numero` may have.
long LongueurPermise(JeuEnregistrements& textes, long numero);

/// What is wrong with a translation of text `numero`, in the working language: longer than allowed, or not as many
/// accelerators ("&" in front of a letter) as the text has in the first language. Empty when it is good.
std::vector<std::string> FautesTraduction(JeuEnregistrements& textes, long numero, const std::string& traduction);

/// Stores the wording of a text; it is on the disk when this returns.
/// @throws ErreurExecution access refused for a delivered language; disk full.
void EcritTexte(JeuEnregistrements& textes, const std::string& langue, long numero, const std::string& texte);

/// How many texts a language lacks.
long NombreATraduire(JeuEnregistrements& textes, const std::string& langue);

/// The first text behind `numero` that a language lacks, round by the first one; none when it has all.
std::optional<long> ProchainATraduire(JeuEnregistrements& textes, const std::string& langue, long numero);

/// Numbers of the texts that have `cherche` in their number or in their wording in any language, capitals, accents and
/// "&" set aside; first the one whose number it is, the others in their order. Nothing is found for an empty search.
std::vector<long> ChercheTextes(JeuEnregistrements& textes, const std::string& cherche);
