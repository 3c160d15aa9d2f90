#include "batch/CommandeEtude.h"

#include "batch/JsonEtude.h"
#include "batch/Sorties.h"
#include "data/Textes.h"
#include "laws/CalculLois.h"
#include "studies/FichierEtude.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <ostream>

namespace {

bool PeutOuvrir(const std::filesystem::path& fichier) {
    std::error_code echec;
    return !std::filesystem::is_directory(fichier, echec) && std::ifstream(fichier, std::ios::binary).is_open();
}

struct Issue {
    bool calcule = false; ///< the pipeline ran to its end, whatever its flag says
    std::string echec;    ///< why there are no results; empty when there are
};

Issue CalculeFichier(const std::filesystem::path& fichier, const LigneCommande& ligne,
                     const DialoguesCollecte& dialogues) {
    Issue issue;
    try {
        if (LitFichierEtude(fichier)) {
            CalculeEtude();
            issue.calcule = true;
        }
        if (!issue.calcule || !SansErreur()) {
            issue.echec = dialogues.DernierMotif();
            if (issue.echec.empty()) issue.echec = Texte(75);
        } else {
            EcritSorties(ligne);
        }
    } catch (const ErreurExecution& erreur) {
        issue.echec = SensErreur(erreur);
    }
    return issue;
}

Json JsonFichier(const std::string& fichier, const Issue& issue, const DialoguesCollecte& dialogues, bool tables) {
    const TypeEtude* type = TrouveTypeFichier(fichier);
    Json objet = Json::object();
    objet["fichier"] = fichier;
    objet["TypeCame"] = type == nullptr ? "" : type->nom;
    objet["Erreur"] = etude.resultats.Erreur;
    objet["messages"] = JsonMessages(dialogues);
    if (!issue.echec.empty()) objet["echec"] = issue.echec;
    objet["donnees"] = type == nullptr ? Json::object() : JsonDonnees(*type);
    objet["Zones"] = JsonZones();
    objet["resume"] = JsonResume(issue.calcule);
    if (!tables) return objet;
    objet["Mouvement"] = JsonLoi(etude.resultats.Mouvement);
    objet["Points"] = JsonPoints();
    objet["Profil"] = JsonProfil();
    return objet;
}

} // namespace

int CommandeEtude(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs) {
    if (ligne.arguments.empty()) throw UsageIncorrect("etude: which study file?");
    const bool sorties = !ligne.points.empty() || !ligne.scripts.empty() || !ligne.rapport.empty();
    if (sorties && ligne.arguments.size() > 1)
        throw UsageIncorrect("etude: --points, --scripts and --rapport take one study file");
    int statut = 0;
    for (const std::string& fichier : ligne.arguments) {
        if (!PeutOuvrir(fichier)) {
            erreurs << "velorin-batch: cannot open " << fichier << "\n";
            statut = 2;
            continue;
        }
        // Every file as if the program had just been started: maxima and overwritten law rows do not go from one to the
        // next.
        etude = Etude{};
        ChargeLois();
        DialoguesCollecte dialogues(ligne.oui);
        const Issue issue = CalculeFichier(fichier, ligne, dialogues);
        EcritJson(sortie, JsonFichier(fichier, issue, dialogues, !ligne.resume));
        sortie << "\n";
        if (!issue.echec.empty()) statut = std::max(statut, 1);
    }
    return statut;
}
