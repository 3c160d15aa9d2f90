#include "batch/Commandes.h"

#include "batch/CommandeEtude.h"
#include "batch/CommandeGlobique.h"
#include "batch/CommandeIndexeurConjugue.h"
#include "batch/CommandeIndexeurCylindrique.h"
#include "batch/CommandeInertie.h"
#include "batch/CommandeLoi.h"
#include "batch/CommandeLoiSpeciale.h"
#include "core/FichierEntier.h"
#include "data/Configuration.h"
#include "data/Demarrage.h"
#include "data/DossierUtilisateur.h"
#include "data/EchecDemarrage.h"
#include "data/Textes.h"
#include "widgets/DossiersPoste.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

namespace {

struct CommandeBatch {
    const char* nom;
    const char* usage;
    const char* sens;
    int (*execute)(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs);
};

constexpr CommandeBatch commandes[] = {
    {"etude", "etude FILE...", "calculates study files, one JSON object a line", CommandeEtude},
    {"loi", "loi NAME --points N", "the unit table of a law, as a JSON object", CommandeLoi},
    {"loi-speciale", "loi-speciale KIND DATA.json...",
     "the study of a special law: hesser, avance-rapide, liquides or msh-dissymetrique", CommandeLoiSpeciale},
    {"indexeur-cylindrique", "indexeur-cylindrique DATA.json...", "the drum cam of an indexer",
     CommandeIndexeurCylindrique},
    {"indexeur-conjugue", "indexeur-conjugue DATA.json...", "report and capacities of a pair of conjugate cams",
     CommandeIndexeurConjugue},
    {"indexeur-globique", "indexeur-globique DATA.json...", "capacities of a globoidal indexer",
     CommandeIndexeurGlobique},
    {"oscillateur-globique", "oscillateur-globique DATA.json...", "capacities of a globoidal oscillator",
     CommandeOscillateurGlobique},
    {"inertie", "inertie DATA.json|LIST.Ine...", "mass and inertia of an assembly of solids", CommandeInertie},
};

void EcritAide(std::ostream& sortie) {
    const auto ligne = [&](const std::string& usage, const char* sens) {
        sortie << "  " << std::left << std::setw(36) << usage << sens << "\n";
    };
    sortie << "velorin-batch: the calculations of Velorin without its screens\n\nCommands\n";
    for (const auto& commande : commandes) ligne(commande.usage, commande.sens);
    sortie << "\nOptions\n";
    for (const auto& option : LesOptions())
        ligne(std::string(option.nom) + (option.valeur == nullptr ? "" : std::string(" ") + option.valeur),
              option.sens);
    sortie << "\nExit status\n"
              "  0 calculated; 1 refused or failed, \"echec\" in the object says why; 2 wrong usage, or a file that\n"
              "  cannot be opened. Of several files all are calculated, and the worst status is returned.\n";
}

/// Opens the catalogue beside other readers, and loads the texts. The working language is known first: a failure is
/// told in it.
void OuvreCatalogue(const LigneCommande& ligne) {
    LangueTravail = ligne.langue;
    PrendDossiers(DossierExecutable(), LesDossiersPoste());
    if (LangueTravail.empty()) LangueTravail = LitConfiguration(ConfigurationALire()).langue;
    LaBase = BaseDonnees::Ouvre(ligne.base.empty() ? BaseALire() : std::filesystem::path(ligne.base), MotDePasseBase,
                                BaseDonnees::Usage::Lecture);
    ChargeTextes(LaBase);
    const auto& langues = LanguesCompletes();
    if (!ligne.langue.empty() && std::find(langues.begin(), langues.end(), ligne.langue) == langues.end())
        throw UsageIncorrect("the catalogue has no language '" + ligne.langue + "'");
}

/// One line, though the texts may not be there yet.
std::string EchecDemarrage(const ErreurExecution& erreur) {
    std::string texte = TexteEchecDemarrage(erreur, LangueTravail);
    for (auto fin = texte.find('\n'); fin != std::string::npos; fin = texte.find('\n')) texte.replace(fin, 1, " / ");
    return texte;
}

const CommandeBatch& TrouveCommande(const std::string& nom) {
    if (nom.empty()) throw UsageIncorrect("which command? --aide lists them");
    const auto commande =
        std::find_if(std::begin(commandes), std::end(commandes), [&](const CommandeBatch& c) { return nom == c.nom; });
    if (commande == std::end(commandes)) throw UsageIncorrect("unknown command '" + nom + "'; --aide lists them");
    return *commande;
}

} // namespace

int LanceCommande(const std::vector<std::string>& mots, std::ostream& sortie, std::ostream& erreurs) {
    const auto refuse = [&](const std::string& texte) {
        erreurs << "velorin-batch: " << texte << "\n";
        return 2;
    };
    try {
        const LigneCommande ligne = AnalyseLigne(mots);
        if (ligne.aide) {
            EcritAide(sortie);
            return 0;
        }
        const CommandeBatch& commande = TrouveCommande(ligne.commande);
        try {
            OuvreCatalogue(ligne);
        } catch (const ErreurExecution& erreur) {
            return refuse(EchecDemarrage(erreur));
        }
        return commande.execute(ligne, sortie, erreurs);
    } catch (const ErreurExecution& erreur) {
        return refuse(SensErreur(erreur));
    } catch (const std::exception& erreur) {
        return refuse(erreur.what());
    }
}
