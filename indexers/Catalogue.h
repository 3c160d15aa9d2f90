// The catalogues that a capacity calculator fills its inputs from: casings and rollers. A row is found by its key and
// gives the numbers of the inputs; inputs that the user typed become a new row.
#pragma once

#include "core/Champ.h"
#include "indexers/FauteSaisie.h"

#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

/// An input and the field of the catalogue that holds it.
struct ChampCatalogue {
    const char* membre;     ///< name of the record's member
    const char* champ;      ///< field of the table
    bool nullable = false;  ///< a missing value leaves the input empty, and an empty input is stored as one
    bool enregistre = true; ///< false for a field that is read, and left out of a new row
    int texteFaute = 0;     ///< said of a new row in which it is `interdit`; 0 where any number will do
    bool (*interdit)(double valeur) = NulOuNegatif;
};

struct Catalogue {
    const char* table;
    const char* champCle;
    const char* membreCle; ///< name of the record's member that takes the key
    std::span<const ChampCatalogue> champs;
    int texteCleVide;                ///< said of a new row without a key
    std::vector<int> texteCleExiste; ///< said of a key that the table has, line by line
    bool finitParSaut = false;       ///< an empty line ends that text
    int titreCleExiste = 0;          ///< text number of that box's title; 0 for none of its own
};

/// The values of a row by member name; none where the table has none.
using ValeursCatalogue = std::map<std::string, std::optional<double>>;

/// The keys in the order of the table.
/// @throws ErreurExecution unreadable database.
std::vector<std::string> ClesCatalogue(const Catalogue& catalogue);

/// The row with that key; none when there is none.
std::optional<ValeursCatalogue> ChercheLigne(const Catalogue& catalogue, const std::string& cle);

/// What keeps the inputs from becoming a new row: the first in the order of the checks, a key that exists last.
std::optional<FauteSaisie> ChercheFauteLigne(const Catalogue& catalogue, const std::string& cle,
                                             const ValeursCatalogue& valeurs);

/// Stores a new row behind the others. It is on the disk when this returns, or not there at all.
/// @throws ErreurExecution access refused for a key that exists; database in use by another program; disk full.
void AjouteLigne(const Catalogue& catalogue, const std::string& cle, const ValeursCatalogue& valeurs);
