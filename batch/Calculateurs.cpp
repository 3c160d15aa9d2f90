#include "batch/Calculateurs.h"

#include "batch/Passage.h"
#include "batch/TextesBatch.h"
#include "data/Textes.h"

#include <algorithm>

namespace {

/// Text number of what is said where a fault has no text of its own.
constexpr int TexteFichierIntrouvable = 716;

Donnees LitObjet(const Calculateur& calculateur, const std::string& fichier) {
    Donnees donnees = LitDonneesJson(fichier);
    const auto& membres = calculateur.membres;
    for (const auto& [nom, valeur] : donnees.items())
        if (std::find(membres.begin(), membres.end(), nom) == membres.end())
            throw DonneesIncorrectes(Texte(TexteMembreInconnu) + " " + nom);
        else if (!valeur.is_null() && !valeur.is_number() && !valeur.is_string())
            throw MembreIncorrect(nom, TexteOuNombre(), valeur);
    return donnees;
}

} // namespace

void LitDonneesCalculateur(const Donnees& donnees, const std::vector<ChampLie>& champs) {
    for (const ChampLie& champ : champs) {
        const auto valeur = donnees.find(champ.nom);
        const bool absent = valeur == donnees.end() || valeur->is_null();
        if (const auto* nombre = std::get_if<double*>(&champ.valeur)) {
            **nombre = absent                ? 0.0
                       : valeur->is_string() ? ValVirgule(valeur->get<std::string>())
                                             : valeur->get<double>();
        } else {
            *std::get<std::string*>(champ.valeur) = absent                ? std::string()
                                                    : valeur->is_string() ? valeur->get<std::string>()
                                                                          : TexteCourt(valeur->get<double>());
        }
    }
}

std::string TrouveFichierLoi(const std::string& donne, const std::filesystem::path& donnees) {
    std::error_code echec;
    if (donne.empty() || std::filesystem::exists(donne, echec)) return donne;
    const auto voisin = donnees.parent_path() / donne;
    return std::filesystem::exists(voisin, echec) ? voisin.string() : donne;
}

void RefuseSaisie(const FauteSaisie& faute, IssueCalculateur& issue) {
    if (!faute.texte.empty()) LesDialogues().Message(faute.icone, faute.texte);
    issue.echec = faute.texte.empty() ? Texte(TexteFichierIntrouvable) : faute.texte;
}

Json SansValeurs(Json resultats) {
    for (auto& valeur : resultats) {
        if (valeur.is_array()) {
            valeur = Json::array();
        } else if (valeur.is_object()) {
            valeur = SansValeurs(valeur);
        } else {
            valeur = nullptr;
        }
    }
    return resultats;
}

int DerouleCalculateur(const Calculateur& calculateur, const LigneCommande& ligne, std::ostream& sortie,
                       std::ostream& erreurs) {
    if (ligne.arguments.empty()) throw UsageIncorrect(std::string(calculateur.commande) + ": which data file?");
    return ParcourtFichiers(ligne.arguments, erreurs, [&](const std::string& fichier) {
        const Donnees donnees = LitObjet(calculateur, fichier);
        IssueCalculateur issue;
        Calcul calcul;
        calcul.execute = [&](const DialoguesCollecte&) {
            // The flag is clear only when there is a result.
            etude.resultats.Erreur = Vrai;
            calculateur.calcule(donnees, fichier, issue);
            if (issue.echec.empty()) etude.resultats.Erreur = Faux;
            return issue.echec;
        };
        calcul.resultats = [&](bool) { return issue.resultats; };
        return LanceCalcul(calcul, ligne, sortie);
    });
}
