#include "batch/Passage.h"

#include "data/Textes.h"
#include "laws/CalculLois.h"

#include <algorithm>
#include <ostream>

namespace {

/// A message longer than this is no longer read: file names may be as long as they like, what stands there not.
constexpr std::size_t LongueurLigne = 1000;

} // namespace

void EcritFaute(std::ostream& erreurs, const std::string& fichier, const std::exception& faute) {
    const auto* erreur = dynamic_cast<const ErreurExecution*>(&faute);
    std::string texte = faute.what();
    if (erreur != nullptr) {
        // The line begins with the name of the file: its meaning does not repeat it.
        texte = SensErreur(erreur->detail == fichier ? ErreurExecution(erreur->numero) : *erreur);
    }
    std::replace(texte.begin(), texte.end(), '\n', ' ');
    if (texte.size() > LongueurLigne) texte = texte.substr(0, LongueurLigne) + "...";
    erreurs << "velorin-batch: " << fichier << ": " << texte << "\n";
}

void RemetEtude() {
    etude = Etude{};
    ChargeLois();
}

int LanceCalcul(const Calcul& calcul, const LigneCommande& ligne, std::ostream& sortie) {
    DialoguesCollecte dialogues(ligne.oui);
    std::string echec;
    try {
        echec = calcul.execute(dialogues);
    } catch (const ErreurExecution& erreur) {
        echec = SensErreur(erreur);
    }
    Json objet = calcul.tete.is_null() ? Json::object() : calcul.tete;
    objet["Erreur"] = etude.resultats.Erreur;
    objet["messages"] = JsonMessages(dialogues);
    if (!echec.empty()) objet["echec"] = echec;
    objet.update(calcul.resultats(echec.empty()));
    EcritJson(sortie, objet);
    sortie << "\n";
    return echec.empty() ? 0 : 1;
}

int ParcourtFichiers(std::span<const std::string> fichiers, std::ostream& erreurs,
                     const std::function<int(const std::string&)>& traite) {
    int pire = 0;
    for (const std::string& fichier : fichiers) {
        RemetEtude();
        try {
            pire = std::max(pire, traite(fichier));
        } catch (const std::exception& erreur) {
            EcritFaute(erreurs, fichier, erreur);
            pire = 2;
        }
    }
    return pire;
}
