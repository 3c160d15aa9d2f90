// One content of a study file, whatever it holds, through reader and calculation.
#pragma once

#include "core/Etude.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "laws/CalculLois.h"
#include "studies/FichierEtude.h"

#include <optional>

struct EssaiEtude {
    bool lue = false;                    ///< false too for an unknown law
    std::optional<NumeroErreur> erreur;  ///< the run-time failure that ended it
    std::optional<std::string> anomalie; ///< what no content may bring about; any other exception goes through

    bool Calculee() const { return lue && !erreur && SansErreur(); }
};

inline void OuvreCatalogue(const std::filesystem::path& dossier) {
    CheminAppli = dossier;
    LaBase = BaseDonnees::Ouvre(CheminAppli / NomBase, MotDePasseBase, BaseDonnees::Usage::Lecture);
    LangueTravail = "Français";
    ChargeTextes(LaBase);
    ChargeLois();
}

/// The study record as at the start of the program, with the catalogue read once.
inline const Etude& EtudeNeuve() {
    static const Etude neuve = [] {
        etude = Etude{};
        ChargeLois();
        return etude;
    }();
    return neuve;
}

inline std::optional<std::string> Anomalie(const EssaiEtude& essai, const std::vector<double>& degres) {
    std::size_t z = 0;
    for (const Zone& zone : etude.donnees.Zones)
        if (z < degres.size() && zone.AngleCame != degres[z++]) return "a zone is not back in degrees";
    const auto autreTaille = [](const ResultatsEtude& resultats, long dernier) {
        return resultats.Points.BorneHaute() != dernier || resultats.Profil.BorneHaute() != dernier;
    };
    const bool calculee = essai.lue && !essai.erreur;
    // A study of several cams keeps the tables of each, and none of its own.
    for (const PasseEtude& passe : etude.passes)
        if (!calculee || autreTaille(passe.resultats, passe.resultats.NombrePoints))
            return "a table of another size is left";
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    const bool seule = type != nullptr && type->passes.empty();
    if (autreTaille(etude.resultats, calculee && seule ? etude.resultats.NombrePoints : -1))
        return "a table of another size is left";
    return {};
}

inline EssaiEtude EssaieEtude(std::string_view contenu, const TypeEtude& type) {
    EssaiEtude essai;
    std::vector<double> degres;
    etude = EtudeNeuve();
    try {
        essai.lue = LitEtude(contenu, type);
        for (const Zone& zone : etude.donnees.Zones) degres.push_back(zone.AngleCame);
        if (essai.lue) CalculeEtude();
    } catch (const ErreurExecution& erreur) {
        essai.erreur = erreur.numero;
    }
    essai.anomalie = Anomalie(essai, degres);
    return essai;
}
