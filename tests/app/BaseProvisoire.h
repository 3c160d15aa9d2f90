// A catalogue of its own for one test: the delivered tables with more language columns, in a folder of its own.
#pragma once

#include "core/FichierEntier.h"
#include "data/Demarrage.h"
#include "data/FabriqueBase.h"
#include "data/Textes.h"
#include "widgets/Chaines.h"

#include <QTemporaryDir>

#include <sstream>
#include <utility>

/// While it lives, `LaBase` and the folders of the program are its own.
class BaseProvisoire {
public:
    /// Adds a language "Italiano" with every text and a language "Deutsch" with every text but number 7.
    BaseProvisoire() {
        const std::filesystem::path dossier = Chemin(dossier_.path());
        const std::filesystem::path tables = dossier / "catalogue";
        std::filesystem::copy(std::filesystem::path(VELORIN_SOURCES) / "data/catalogue", tables);
        std::istringstream lignes(LitFichierEntier(tables / "Idiomas.tsv"));
        std::string contenu, ligne;
        for (int numero = 0; std::getline(lignes, ligne); ++numero)
            contenu += ligne +
                       (numero == 0   ? "\tItaliano\tDeutsch"
                        : numero == 7 ? "\ttesto\t"
                                      : "\ttesto\tText") +
                       "\n";
        EcritFichierEntier(tables / "Idiomas.tsv", contenu);
        FabriqueBase(tables, dossier / NomBase);
        ancienne_ =
            std::exchange(LaBase, BaseDonnees::Ouvre(dossier / NomBase, MotDePasseBase, BaseDonnees::Usage::Lecture));
        ancienChemin_ = std::exchange(CheminAppli, dossier);
        CheminUtilisateur = dossier;
    }
    ~BaseProvisoire() {
        LaBase = std::move(ancienne_);
        CheminAppli = CheminUtilisateur = ancienChemin_;
    }

private:
    QTemporaryDir dossier_;
    BaseDonnees ancienne_;
    std::filesystem::path ancienChemin_;
};
