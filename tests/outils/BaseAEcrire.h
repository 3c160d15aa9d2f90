// A catalogue of its own for one test, held for writing as the desktop program holds it.
#pragma once

#include "data/Demarrage.h"
#include "data/FabriqueBase.h"
#include "outils/DossierTemporaire.h"

#include <utility>

/// While it lives, `LaBase` is its own.
class BaseAEcrire {
public:
    BaseAEcrire() {
        FabriqueBase(std::filesystem::path(VELORIN_SOURCES) / "data" / "catalogue", chemin_);
        ancienne_ = std::exchange(LaBase, {});
        Ouvre(BaseDonnees::Usage::Exclusif);
    }
    ~BaseAEcrire() { LaBase = std::move(ancienne_); }
    BaseAEcrire(const BaseAEcrire&) = delete;
    BaseAEcrire& operator=(const BaseAEcrire&) = delete;

    /// Closes the database and opens it again.
    void Ouvre(BaseDonnees::Usage usage) const {
        LaBase = {};
        LaBase = BaseDonnees::Ouvre(chemin_, MotDePasseBase, usage);
    }
    const DossierTemporaire& Dossier() const { return dossier_; }
    const std::filesystem::path& Chemin() const { return chemin_; }

private:
    DossierTemporaire dossier_;
    std::filesystem::path chemin_ = dossier_ / NomBase;
    BaseDonnees ancienne_;
};
