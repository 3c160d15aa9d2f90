// The results of a capacity calculator, line by line, as screen, paper, file and JSON all show them.
#pragma once

#include <string>
#include <vector>

struct LigneResultat {
    std::string controle; ///< name of its label ("Label41")
    std::string libelle;  ///< caption
    std::string valeur;   ///< the number as it is shown, without unit or mark
    std::string unite;    ///< empty for none
    bool rouge = false;   ///< beyond its limit
    std::string note;     ///< why it is red, or what it does not say; empty for nothing
};

/// A block of the result sheet.
struct GroupeResultats {
    std::string titre;
    std::vector<LigneResultat> lignes;
};
