// Start-up of the desktop program.
#include "app/Aide.h"
#include "app/MdiCamA.h"
#include "data/Demarrage.h"
#include "laws/CalculLois.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"
#include "widgets/DialoguesQt.h"

namespace {

/// What a failed start says: the texts of the working language are not there yet.
constexpr const char* DemarrageImpossible = "Velorin ne peut pas démarrer.\n"
                                            "Velorin no puede iniciarse.\n"
                                            "Velorin cannot start.\n\n";

/// Everything that the main window needs, in the order in which each stands on the one before.
/// @throws ErreurExecution missing or unreadable database or configuration.
Configuration Demarre() {
    CheminAppli = DossierExecutable();
    LaBase = BaseDonnees::Ouvre(CheminAppli / NomBase, MotDePasseBase, BaseDonnees::Usage::Exclusif);
    ChargeLois();
    const Configuration configuration = LitConfiguration(CheminAppli / NomConfiguration);
    etude.EtudeModifiee = Faux;
    etude.ResultatsPrets = Faux;
    LangueTravail = configuration.langue;
    ChargeTextes(LaBase);
    return configuration;
}

} // namespace

int main(int argc, char** argv) {
    Application application(argc, argv);
    DialoguesQt dialogues;
    const InstalleDialogues installe(dialogues);
    int statut = 1;
    try {
        const Configuration configuration = Demarre();
        MdiCamA fenetre(configuration);
        ChoisitAide();
        fenetre.show();
        statut = Application::exec();
    } catch (const std::exception& erreur) {
        dialogues.Message(Icone::Critique, DemarrageImpossible + std::string(erreur.what()));
    }
    LaBase.Ferme();
    return statut;
}
