#include "batch/CommandeEtude.h"

#include "batch/Passage.h"
#include "batch/Sorties.h"
#include "batch/TextesBatch.h"
#include "data/Textes.h"
#include "studies/FichierEtude.h"

#include <filesystem>
#include <fstream>

namespace {

bool PeutOuvrir(const std::filesystem::path& fichier) {
    std::error_code echec;
    return std::filesystem::is_regular_file(fichier, echec) && std::ifstream(fichier, std::ios::binary).is_open();
}

/// Reads and calculates. @param calcule set when the pipeline ran to its end, whatever its flag says
/// @return why there are no results; empty when there are
std::string CalculeFichier(const std::filesystem::path& fichier, const DialoguesCollecte& dialogues, bool& calcule) {
    if (LitFichierEtude(fichier)) {
        CalculeEtude();
        calcule = true;
        if (SansErreur()) return {};
    }
    const std::string motif = dialogues.DernierMotif();
    return motif.empty() ? Texte(75) : motif;
}

/// The results of the cam that the record shows.
void AjouteCame(Json& objet, bool calcule, bool tables) {
    objet["resume"] = JsonResume(calcule);
    if (!tables) return;
    objet["Mouvement"] = JsonLoi(etude.resultats.Mouvement);
    objet["Points"] = JsonPoints();
    objet["Profil"] = JsonProfil();
}

Json JsonResultats(const TypeEtude* type, bool calcule, bool tables) {
    Json objet = Json::object();
    objet["donnees"] = type == nullptr ? Json::object() : JsonDonnees(*type);
    objet["Zones"] = JsonZones();
    if (type == nullptr || type->passes.empty()) {
        AjouteCame(objet, calcule, tables);
        return objet;
    }
    for (const DescriptionPasse& passe : type->passes) AjouteCame(objet[passe.nom] = Json::object(), false, tables);
    PourChaqueCame(
        *type, [&](const DescriptionPasse* came) { AjouteCame(objet[came->nom] = Json::object(), calcule, tables); });
    return objet;
}

} // namespace

int CommandeEtude(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs) {
    if (ligne.arguments.empty()) throw UsageIncorrect("etude: which study file?");
    const bool sorties = !ligne.points.empty() || !ligne.scripts.empty() || !ligne.rapport.empty();
    if (sorties && ligne.arguments.size() > 1)
        throw UsageIncorrect("etude: --points, --scripts and --rapport take one study file");
    return ParcourtFichiers(ligne.arguments, erreurs, [&](const std::string& fichier) {
        if (!PeutOuvrir(fichier)) throw UsageIncorrect(Texte(TexteFichierIllisible));
        const TypeEtude* type = TrouveTypeFichier(fichier);
        if (type != nullptr) etude.donnees.TypeCame = type->nom; // the kind says how many scripts there are
        VerifieSorties(ligne, fichier);
        bool calcule = false;
        Calcul calcul;
        calcul.tete = {{"fichier", fichier}, {"TypeCame", type == nullptr ? "" : type->nom}};
        calcul.execute = [&](const DialoguesCollecte& dialogues) {
            const std::string echec = CalculeFichier(fichier, dialogues, calcule);
            if (echec.empty()) EcritSorties(ligne);
            return echec;
        };
        calcul.resultats = [&](bool) { return JsonResultats(type, calcule, !ligne.resume); };
        return LanceCalcul(calcul, ligne, sortie);
    });
}
