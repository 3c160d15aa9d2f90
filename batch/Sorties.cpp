#include "batch/Sorties.h"

#include "batch/TextesBatch.h"
#include "core/FichierEntier.h"
#include "data/Configuration.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "studies/Exports.h"
#include "studies/RapportsCames.h"
#include "widgets/ImprimanteQt.h"

#include <QGuiApplication>

#include <functional>
#include <iostream>
#include <optional>

namespace fs = std::filesystem;

namespace {

/// The names of the standard output: opened a second time it would be written over itself.
bool EstSortieStandard(const fs::path& chemin) {
    return chemin == "-" || chemin == "/dev/stdout" || chemin == "/dev/fd/1" || chemin == "/proc/self/fd/1";
}

std::string ComposeRapport(const std::string& titre) {
    // Fonts need an application object; it shows nothing, and what the toolkit has to say concerns windows.
    const auto ancien = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    int argc = 1;
    char nom[] = "velorin-batch";
    char* argv[] = {nom, nullptr};
    std::optional<QGuiApplication> application;
    if (QCoreApplication::instance() == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application.emplace(argc, argv);
    }
    MarquesImpression toutes;
    toutes.fill(true);
    std::string pdf =
        ComposePdf(titre, [&toutes](Imprimante& imprimante) { ImprimeRapportsCames(imprimante, toutes); });
    application.reset();
    qInstallMessageHandler(ancien);
    return pdf;
}

/// One option: the files that it names, which are written together.
struct Sortie {
    std::vector<fs::path> chemins;
    std::function<std::vector<std::string>()> compose;
};

std::vector<Sortie> SortiesDemandees(const LigneCommande& ligne) {
    std::vector<Sortie> sorties;
    if (!ligne.points.empty()) sorties.push_back({{ligne.points}, [] { return std::vector{ComposeFichierPoints()}; }});
    if (!ligne.scripts.empty()) {
        Sortie sortie;
        for (const FichierScript& script : LesScripts())
            sortie.chemins.push_back(EstSortieStandard(ligne.scripts) ? ligne.scripts
                                                                      : ligne.scripts + script.suite + ".Scr");
        sortie.compose = [] {
            std::vector<std::string> contenus;
            for (const FichierScript& script : LesScripts()) contenus.push_back(script.compose());
            return contenus;
        };
        sorties.push_back(std::move(sortie));
    }
    if (!ligne.rapport.empty())
        sorties.push_back({{ligne.rapport}, [titre = fs::path(ligne.rapport).stem().string()] {
                               return std::vector{ComposeRapport(titre)};
                           }});
    return sorties;
}

/// Two names of one file, which need not exist yet.
bool MemeFichier(const fs::path& a, const fs::path& b) {
    std::error_code echec;
    if ((EstSortieStandard(a) && EstSortieStandard(b)) || fs::equivalent(a, b, echec)) return true;
    return fs::weakly_canonical(a, echec) == fs::weakly_canonical(b, echec);
}

} // namespace

void VerifieSorties(const LigneCommande& ligne, const std::string& fichierEtude) {
    std::vector<fs::path> prises{fichierEtude};
    if (!ligne.base.empty()) prises.emplace_back(ligne.base);
    for (const fs::path& dossier : {CheminAppli, CheminUtilisateur})
        for (const char* nom : {NomBase, NomConfiguration}) prises.push_back(dossier / nom);
    for (const Sortie& sortie : SortiesDemandees(ligne)) {
        for (const fs::path& chemin : sortie.chemins)
            for (const fs::path& prise : prises)
                if (MemeFichier(chemin, prise)) throw UsageIncorrect(Texte(TexteSortieDouble) + " " + chemin.string());
        prises.insert(prises.end(), sortie.chemins.begin(), sortie.chemins.end());
    }
}

void EcritSorties(const LigneCommande& ligne) {
    for (const Sortie& sortie : SortiesDemandees(ligne)) {
        const std::vector<std::string> contenus = sortie.compose();
        std::vector<FichierAEcrire> fichiers;
        for (std::size_t i = 0; i < contenus.size(); ++i) {
            if (EstSortieStandard(sortie.chemins[i]))
                std::cout << contenus[i];
            else
                fichiers.push_back({sortie.chemins[i], contenus[i]});
        }
        EcritFichiersEntiers(fichiers);
    }
}
