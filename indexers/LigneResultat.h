// The results of a capacity calculator, line by line, as screen, paper, file and JSON all show them.
#pragma once

#include <string>
#include <vector>

struct LigneResultat {
    std::string controle;   ///< name of its label ("Label41")
    std::string libelle;    ///< caption
    std::string valeur;     ///< the number as it is shown, without unit or mark
    std::string unite = {}; ///< empty for none
    bool rouge = false;     ///< beyond its limit
    std::string note = {};  ///< why it is red, or what it does not say; empty for nothing
};

/// A block of the result sheet.
struct GroupeResultats {
    std::string titre;
    std::vector<LigneResultat> lignes;
};

/// Results that stand in columns: capacities by share of inertia or by speed.
struct TableResultats {
    struct Rangee {
        std::string libelle;
        std::vector<LigneResultat> cellules; ///< one a column; their own captions are not shown
    };
    std::string titre;
    std::vector<std::string> colonnes;
    std::vector<Rangee> rangees;
};

/// What stands behind a value beyond its limit, so that neither a black and white page nor an eye that sees no red
/// misses it.
inline constexpr const char* MarqueRouge = "??";
