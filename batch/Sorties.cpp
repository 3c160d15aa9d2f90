#include "batch/Sorties.h"

#include "core/FichierEntier.h"
#include "studies/Exports.h"
#include "studies/RapportsCames.h"
#include "widgets/ImprimanteQt.h"

#include <QGuiApplication>

#include <optional>

namespace {

void EcritRapport(const std::filesystem::path& chemin) {
    // Fonts need an application object; it shows nothing.
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
    ImprimePdf(chemin, [&toutes](Imprimante& imprimante) { ImprimeRapportsCames(imprimante, toutes); });
}

} // namespace

void EcritSorties(const LigneCommande& ligne) {
    if (!ligne.points.empty()) EcritFichierEntier(ligne.points, ComposeFichierPoints());
    if (!ligne.scripts.empty())
        for (const FichierScript& script : LesScripts())
            EcritFichierEntier(ligne.scripts + script.suite + ".Scr", script.compose());
    if (!ligne.rapport.empty()) EcritRapport(ligne.rapport);
}
