// Start-up of the desktop program.
#include "app/Aide.h"
#include "app/Demarre.h"
#include "app/InstanceUnique.h"
#include "app/MdiCamA.h"
#include "app/Version.h"
#include "core/ErreurExecution.h"
#include "data/Demarrage.h"
#include "data/EchecDemarrage.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"
#include "widgets/DialoguesQt.h"
#include "widgets/Polices.h"

#include <cstdio>
#include <string_view>

namespace {

constexpr const char* DemarrageImpossible =
    "Velorin ne peut pas démarrer.\nVelorin no puede iniciarse.\nVelorin cannot start.";

constexpr const char* SansAffichage =
    "velorin: aucun affichage / ninguna pantalla / no display (DISPLAY, WAYLAND_DISPLAY)\n";

/// The toolkit would end the program without a word of ours where it finds no display.
bool AffichagePresent() {
#if defined(__unix__) && !defined(__APPLE__)
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#else
    return true;
#endif
}

/// What the toolkit says while it starts. It gives up only where the display that is named cannot be reached.
void RecoitMessageDepart(QtMsgType genre, const QMessageLogContext&, const QString&) {
    if (genre != QtFatalMsg) return;
    std::fputs(SansAffichage, stderr);
    std::_Exit(1);
}

void AnnonceEchec(const std::exception& faute) {
    const auto* erreur = dynamic_cast<const ErreurExecution*>(&faute);
    const std::string sens = erreur == nullptr ? faute.what() : TexteEchecDemarrage(*erreur);
    LesDialogues().Message(Icone::Critique, DemarrageImpossible + std::string("\n\n") + sens);
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && argv[1] == std::string_view("--version")) {
        std::printf("Velorin %s\n", VersionProgramme);
        return 0;
    }
    if (!AffichagePresent()) {
        std::fputs(SansAffichage, stderr);
        return 1;
    }
    LitPolices();
    std::future<Configuration> demarrage = CommenceDemarrage(DossierExecutable());
    qInstallMessageHandler(RecoitMessageDepart);
    Application application(argc, argv);
    qInstallMessageHandler(nullptr);
    DialoguesQt dialogues;
    const InstalleDialogues installe(dialogues);
    const std::filesystem::path fichier = Chemin(Application::arguments().value(1));
    int statut = 1;
    try {
        const auto configuration = DemarreOuRemet(
            [&demarrage] {
                if (!demarrage.valid()) demarrage = CommenceDemarrage(DossierExecutable()); // one more try
                return demarrage.get();
            },
            fichier);
        if (!configuration) return 0;
        MdiCamA fenetre(*configuration);
        const InstanceUnique instance(CheminUtilisateur, [&](const Remise& remise) { fenetre.Accueille(remise); });
        ChoisitAide();
        fenetre.show();
        if (!fichier.empty()) fenetre.OuvreAutre(fichier);
        statut = Application::exec();
    } catch (const std::exception& erreur) {
        AnnonceEchec(erreur);
    }
    LaBase.Ferme();
    return statut;
}
