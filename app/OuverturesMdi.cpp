// Study files opened: by their dialogue, dropped on the window, named when the program was started, or chosen among
// those opened or saved before in this run.
#include "app/BureauEcrans.h"
#include "app/Ecrans.h"
#include "app/MdiCamA.h"
#include "app/PageAccueil.h"
#include "app/TextesApp.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "data/TextesSaisie.h"
#include "platform/Dialogues.h"
#include "studies/FichierEtude.h"
#include "studies/TypesEtude.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

namespace {

constexpr std::size_t RecentsMax = 9; // each has a figure of its own

/// The file that is dragged; none for anything else, and for several.
QString FichierGlisse(const QMimeData& donnees) {
    const QList<QUrl> adresses = donnees.urls();
    return adresses.size() == 1 ? adresses.front().toLocalFile() : QString();
}

} // namespace

void MdiCamA::Ouvrir() {
    OuvreParType(nullptr);
}

void MdiCamA::OuvreParType(const TypeEtude* type) {
    if (RotationEmpeche()) return;
    DemandeFichier demande{Texte(TexteTitreOuvrir), CheminEtudes, {}, {}};
    for (const TypeEtude& t : LesTypesEtude())
        if (type ? &t == type : t.Disponible()) demande.filtres.push_back(FiltreEtude(t));
    if (type) demande.titre += " " + Texte(type->titre);
    const auto chemin = LesDialogues().FichierAOuvrir(demande);
    // Whoever cancels finds his screens and his study as they were.
    if (chemin && !chemin->empty()) OuvreAutre(*chemin);
}

void MdiCamA::OuvreAutre(const std::filesystem::path& chemin) {
    if (RotationEmpeche()) return;
    if (const EcranEnfant* ecran = TrouveEcranFichier(chemin))
        OuvreListe(*ecran, chemin);
    else
        OuvreFichier(chemin);
}

void MdiCamA::OuvreListe(const EcranEnfant& ecran, const std::filesystem::path& chemin) {
    bureau_->Montre(ecran.nom);
    try {
        FenetreEnfant& liste = *EcranOuvert(ecran.nom);
        liste.OuvreListe(chemin);
        NoteSauve(liste);
        NoteRecent(chemin);
    } catch (const ErreurExecution& erreur) {
        Annonce(Texte(TexteLectureImpossible) + " " + S(QChemin(chemin.filename())) + " : " + SensErreur(erreur));
    }
}

void MdiCamA::OuvreFichier(const std::filesystem::path& chemin) {
    const Sablier sablier;
    FermeEcrans();
    const std::string nom = S(QChemin(chemin.filename()));
    Annonce(Texte(TextePret));
    VideEtude();
    try {
        if (!LitFichierEtude(chemin)) {
            if (etude.lois.DeFichier) Annonce(Texte(TexteLoisAuDemarrage));
            return;
        }
    } catch (const ErreurExecution& erreur) {
        Annonce(Texte(TexteLectureImpossible) + " " + nom + " : " + SensErreur(erreur));
        return;
    }
    if (!CalculeOuverte()) {
        // What was read can be put right on its data screen.
        etude.resultats.ResultatsPrets = Faux;
        OuvreEcran(TrouveType(etude.donnees.TypeCame)->ecranSaisie);
        NoteEtudeSauvee();
        NoteRecent(chemin);
        return;
    }
    etude.resultats.ResultatsPrets = Vrai;
    MontreResultats();
    NoteEtudeSauvee();
    NoteRecent(chemin);
    Annonce(Texte(TexteEtudeOuverte) + " " + nom);
}

/// Calculates the study that was read; false after a box that says why it cannot be.
bool MdiCamA::CalculeOuverte() {
    if (const auto* faute = TrouveType(etude.donnees.TypeCame)->ChercheFaute()) {
        LesDialogues().Message(Icone::Avertissement, Texte(faute->texteFaute));
        return false;
    }
    try {
        CalculeEtude();
    } catch (const ErreurExecution& erreur) {
        LesDialogues().Message(Icone::Critique, TexteErreur(erreur));
        return false;
    }
    return SansErreur();
}

// ---- recent files

void MdiCamA::NoteRecent(const std::filesystem::path& chemin) {
    std::error_code sansImportance;
    std::filesystem::path entier = std::filesystem::absolute(chemin, sansImportance).lexically_normal();
    std::erase(recents_, entier);
    recents_.insert(recents_.begin(), std::move(entier));
    if (recents_.size() > RecentsMax) recents_.pop_back();
    MontreRecents();
    MontreAccueil();
}

void MdiCamA::MontreRecents() {
    auto* menu = findChild<QMenu*>(QStringLiteral("FichierRecents"));
    menu->clear();
    menu->setEnabled(!recents_.empty());
    for (const std::filesystem::path& chemin : recents_) {
        const QString nom = QChemin(chemin.filename()).replace('&', QLatin1String("&&"));
        QAction* action = menu->addAction(QStringLiteral("&%1 %2").arg(menu->actions().size() + 1).arg(nom));
        action->setStatusTip(QChemin(chemin));
        // Opening makes this menu anew: the entry that was chosen is let go of first.
        connect(
            action, &QAction::triggered, this, [this, chemin] { OuvreAutre(chemin); }, Qt::QueuedConnection);
    }
}

void MdiCamA::MontreAccueil() {
    accueil_->Remplit(LesExemples(), recents_, {Action("FichierOuvrir"), Action("FichierReprendre")});
}

// ---- files dropped on the window

void MdiCamA::dragEnterEvent(QDragEnterEvent* evenement) {
    if (!FichierGlisse(*evenement->mimeData()).isEmpty()) evenement->acceptProposedAction();
}

void MdiCamA::dropEvent(QDropEvent* evenement) {
    const QString fichier = FichierGlisse(*evenement->mimeData());
    if (fichier.isEmpty()) return;
    evenement->acceptProposedAction();
    // The program that the file comes from waits until the drop is over; a box that is open may not be left by it.
    OuvreQuandLibre(Chemin(fichier));
}
