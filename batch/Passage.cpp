#include "batch/Passage.h"

#include "data/Textes.h"
#include "laws/CalculLois.h"

#include <algorithm>
#include <ostream>

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
            erreurs << "velorin-batch: " << fichier << ": " << erreur.what() << "\n";
            pire = 2;
        }
    }
    return pire;
}
