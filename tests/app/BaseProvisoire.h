// A catalogue of its own for one test: the delivered tables with more language columns, in a folder of its own.
#pragma once

#include "data/Demarrage.h"
#include "data/FabriqueBase.h"
#include "outils/DossierTemporaire.h"

#include <sstream>
#include <utility>

/// While it lives, `LaBase` and the folders of the program are its own.
class BaseProvisoire {
public:
    /// Adds a language "Italiano" with every text and a language "Deutsch" with every text but number 7.
    BaseProvisoire() {
        const std::filesystem::path tables = dossier_ / "catalogue";
        std::filesystem::copy(std::filesystem::path(VELORIN_SOURCES) / "data/catalogue", tables);
        std::istringstream lignes(LitBrut(tables / "Idiomas.tsv"));
        std::string contenu, ligne;
        for (int numero = 0; std::getline(lignes, ligne); ++numero)
            contenu += ligne + (numero == 0   ? "\tItaliano\tDeutsch\n"
                                : numero == 7 ? "\ttesto\t\n"
                                              : "\ttesto\tText\n");
        dossier_.Ecrit("catalogue/Idiomas.tsv", contenu);
        FabriqueBase(tables, dossier_ / NomBase);
        ancienne_ =
            std::exchange(LaBase, BaseDonnees::Ouvre(dossier_ / NomBase, MotDePasseBase, BaseDonnees::Usage::Lecture));
        ancienChemin_ = std::exchange(CheminAppli, dossier_.Chemin());
        CheminUtilisateur = dossier_.Chemin();
    }
    ~BaseProvisoire() {
        LaBase = std::move(ancienne_);
        CheminAppli = CheminUtilisateur = ancienChemin_;
    }

private:
    DossierTemporaire dossier_;
    BaseDonnees ancienne_;
    std::filesystem::path ancienChemin_;
};
