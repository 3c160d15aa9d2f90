// Start-up of the desktop program.
#include "app/Aide.h"
#include "app/Demarre.h"
#include "app/MdiCamA.h"
#include "core/ErreurExecution.h"
#include "data/Demarrage.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"
#include "widgets/DialoguesQt.h"

namespace {

/// What a failed start says, in the three languages of the program: the texts of the working language are not there
/// yet.
struct SensDemarrage {
    NumeroErreur numero;
    const char* texte;
};

constexpr const char* DemarrageImpossible =
    "Velorin ne peut pas démarrer.\nVelorin no puede iniciarse.\nVelorin cannot start.";
constexpr const char* FichierEndommage = "Fichier endommagé.\nArchivo dañado.\nDamaged file.";
constexpr SensDemarrage LesSens[] = {
    {NumeroErreur::FichierIntrouvable, "Fichier introuvable.\nArchivo no encontrado.\nFile not found."},
    {NumeroErreur::AccesFichier, "Accès refusé.\nAcceso denegado.\nAccess denied."},
    {NumeroErreur::FinDeFichier, FichierEndommage},
    {NumeroErreur::ContenuInvalide, FichierEndommage},
    {NumeroErreur::BaseIllisible, "Base de données endommagée ou mot de passe incorrect.\n"
                                  "Base de datos dañada o contraseña incorrecta.\nDamaged database or wrong password."},
    {NumeroErreur::BaseOccupee, "Fichier ouvert par un autre programme.\nArchivo abierto por otro programa.\n"
                                "File in use by another program."},
};

void AnnonceEchec(const std::exception& faute) {
    std::string texte = DemarrageImpossible;
    if (const auto* erreur = dynamic_cast<const ErreurExecution*>(&faute))
        for (const SensDemarrage& sens : LesSens)
            if (sens.numero == erreur->numero) texte += std::string("\n\n") + sens.texte;
    LesDialogues().Message(Icone::Critique, texte + "\n\n" + faute.what());
}

} // namespace

int main(int argc, char** argv) {
    Application application(argc, argv);
    DialoguesQt dialogues;
    const InstalleDialogues installe(dialogues);
    int statut = 1;
    try {
        const Configuration configuration = Demarre(DossierExecutable());
        MdiCamA fenetre(configuration);
        ChoisitAide();
        fenetre.show();
        if (const QString fichier = Application::arguments().value(1); !fichier.isEmpty())
            fenetre.OuvreAutre(Chemin(fichier));
        statut = Application::exec();
    } catch (const std::exception& erreur) {
        AnnonceEchec(erreur);
    }
    LaBase.Ferme();
    return statut;
}
