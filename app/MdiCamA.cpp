#include "app/MdiCamA.h"

#include "app/Aide.h"
#include "app/CameType.h"
#include "app/Ecrans.h"
#include "app/Propos.h"
#include "data/Demarrage.h"
#include "laws/ChoixLois.h"
#include "laws/screens/EcranLoi.h"
#include "laws/screens/QuelLoi.h"
#include "studies/Exports.h"
#include "studies/FichierEtude.h"
#include "studies/RapportsCames.h"
#include "studies/screens/Resultat.h"
#include "studies/screens/SeleSauv.h"
#include "widgets/ApercuImpression.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"
#include "widgets/ImprimantePoste.h"

#include <QAbstractButton>
#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QStatusBar>

namespace {

enum NumerosTexte {
    TexteTitre = 7,
    TexteRienASauver = 23,
    TexteNouvelleEtude = 80,
    TexteTitreResultats = 118,
    TextePret = 119,
    TexteEtudeCalculee = 121,
    TexteEtudeOuverte = 122,
    TexteTitreOuvrir = 125,
    TexteFichierEnregistre = 127,
    TexteLectureImpossible = 128,
    TexteConfigurationSauvee = 130,
    TexteEntrezTitre = 133,
    TexteRienAImprimer = 135,
    TexteRotation = 435,
};

/// The child screens in the order in which they are closed.
constexpr const char* OrdreFermeture[] = {
    "DatoCama",
    "Resultat",
    "DoProfil",
    "DoCyl",
    "DoCylOsc",
    "CameType",
    "LoiMouv",
    "LoisLiq",
    "LoiSpe",
    "LoiHes",
    "LoiMSHDis",
    "QuelLoi",
    "QuelLoiSpe",
    "Persona",
    "GlobiqueIndexeur",
    "GlobiqueOscillateur",
    "CylindriqueIndexeur",
    "CamesConjugeesOscillation",
    "CamesConjugueesIndexeur",
};

/// Size that the window opens at, where the display has room for it.
constexpr QSize TailleFenetre(1320, 900);

/// The data screen of the present study's kind.
std::string EcranDeSaisie() {
    for (const ChoixEtude& choix : LesChoixEtude())
        if (choix.typeCame && choix.typeCame == etude.donnees.TypeCame) return choix.ecran;
    return {};
}

} // namespace

MdiCamA::MdiCamA(const Configuration& configuration) : bureau_(new QMdiArea), etat_(new QLabel) {
    setObjectName(QStringLiteral("MdiCamA"));
    bureau_->setObjectName(QStringLiteral("Bureau"));
    bureau_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    bureau_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(bureau_);
    etat_->setObjectName(QStringLiteral("Etat"));
    etat_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long message does not widen the window
    statusBar()->addWidget(etat_, 1);
    ConstruitMenus();
    ConstruitBarre();
    AjouteAide(*this);
    AppliqueTextes();
    const std::vector<QAction*> marques = MarquesImpression();
    for (std::size_t i = 0; i < marques.size(); ++i) marques[i]->setChecked(configuration.imprime.at(i));
    Annonce(Texte(TextePret));
    resize(TailleFenetre.boundedTo(screen()->availableSize()));
}

void MdiCamA::Annonce(const std::string& texte) {
    etat_->setText(Q(texte));
    etat_->setToolTip(Q(texte));
}

// ---- commands

void MdiCamA::Nouveau() {
    if (RotationEmpeche()) return;
    CameType choix(this);
    if (choix.exec() == QDialog::Accepted) CommenceEtude(*choix.Choisi());
}

void MdiCamA::CommenceEtude(const ChoixEtude& choix) {
    const Sablier sablier;
    FermeEcrans();
    const std::string ancienType = etude.donnees.TypeCame;
    VideEtude();
    etude.donnees.TypeCame = choix.typeCame ? choix.typeCame : ancienType;
    OuvreEcran(choix.ecran);
    etude.resultats.Erreur = Faux;
    Annonce(Texte(TexteNouvelleEtude));
}

void MdiCamA::Ouvrir() {
    OuvreParType(nullptr);
}

void MdiCamA::OuvreParType(const TypeEtude* type) {
    if (RotationEmpeche()) return;
    FermeEcrans();
    DemandeFichier demande{Texte(TexteTitreOuvrir), CheminAppli / NomDossierEtudes, {}, {}};
    for (const TypeEtude& t : LesTypesEtude())
        if (type ? &t == type : t.Disponible()) demande.filtres.push_back(FiltreEtude(t));
    if (type) demande.titre += " " + Texte(type->titre);
    const auto chemin = LesDialogues().FichierAOuvrir(demande);
    if (chemin && !chemin->empty()) OuvreFichier(*chemin);
}

void MdiCamA::OuvreFichier(const std::filesystem::path& chemin) {
    const Sablier sablier;
    const std::string nom = S(QChemin(chemin.filename()));
    Annonce(Texte(TextePret));
    VideEtude();
    try {
        if (!LitFichierEtude(chemin)) return;
    } catch (const ErreurExecution& erreur) {
        Annonce(Texte(TexteLectureImpossible) + " " + nom + " : " + SensErreur(erreur));
        return;
    }
    if (!CalculeOuverte()) {
        // What was read can be put right on its data screen.
        etude.resultats.ResultatsPrets = Faux;
        OuvreEcran(EcranDeSaisie());
        return;
    }
    etude.resultats.ResultatsPrets = Vrai;
    MontreResultats();
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

void MdiCamA::Sauvegarder() {
    if (!etude.resultats.EtudeModifiee) {
        LesDialogues().Message(Icone::Information, Texte(TexteRienASauver));
        return;
    }
    if (EcranLoi* loi = EcranLoiActif()) return loi->Enregistrer();
    SeleSauv sauvegarde(this);
    connect(&sauvegarde, &SeleSauv::FichierEnregistre, this, [this] {
        Annonce(Texte(TexteFichierEnregistre) + " " + etude.donnees.NomFichier);
        if (QWidget* resultat = EcranOuvert("Resultat"))
            resultat->setWindowTitle(Q(etude.donnees.NomFichier + " " + Texte(TexteTitreResultats)));
    });
    sauvegarde.exec();
}

void MdiCamA::Imprimer() {
    if (!etude.resultats.ResultatsPrets) {
        LesDialogues().Message(Icone::Information, Texte(TexteRienAImprimer));
        return;
    }
    if (const EcranLoi* loi = EcranLoiActif()) {
        const RapportLoi rapport = loi->Rapport();
        return ApercuEtImprime(this, Q(rapport.titre),
                               [&rapport](Imprimante& imprimante) { ImprimeEtudeLoi(imprimante, rapport); });
    }
    // The title stands at the head of every report: a study without one is asked for it again.
    while (etude.donnees.NomFichier.empty())
        etude.donnees.NomFichier =
            Trim(LesDialogues().Saisie(Texte(TexteTitre), Texte(TexteEntrezTitre), {}).value_or(""));
    ::MarquesImpression marques{};
    const std::vector<QAction*> entrees = MarquesImpression();
    for (std::size_t i = 0; i < entrees.size(); ++i) marques.at(i) = entrees[i]->isChecked();
    ApercuEtImprime(this, Q(NomSansExtension(etude.donnees.NomFichier)),
                    [&marques](Imprimante& imprimante) { ImprimeRapportsCames(imprimante, marques); });
}

void MdiCamA::ConfigureImpression() {
    ConfigureImprimante(this);
}

void MdiCamA::MontrePropos() {
    Propos(this).exec();
}

void MdiCamA::MontreLoisUsuelles() {
    MontreLois("QuelLoi");
}

void MdiCamA::MontreLoisSpeciales() {
    MontreLois("QuelLoiSpe");
}

void MdiCamA::MontreLois(const char* chooser) {
    if (RotationEmpeche()) return;
    QuelLoi choix(chooser, this);
    AjouteAide(choix);
    if (choix.exec() == QDialog::Accepted) EtudieLoi(*choix.Choisi());
}

void MdiCamA::EtudieLoi(const ChoixLoi& choix) {
    if (RotationEmpeche()) return;
    const Sablier sablier;
    FermeEcrans();
    VideEtude();
    if (choix.loi != nullptr) etude.lois.LoiChoisie = choix.loi;
    OuvreEcran(choix.ecran);
    Annonce(Texte(TextePret));
}

void MdiCamA::SauveConfiguration() {
    Configuration configuration;
    const std::vector<QAction*> marques = MarquesImpression();
    for (std::size_t i = 0; i < marques.size(); ++i) configuration.imprime.at(i) = marques[i]->isChecked();
    configuration.langue = LangueTravail;
    EcritConfiguration(CheminAppli / NomConfiguration, configuration);
    Annonce(Texte(TexteConfigurationSauvee));
}

void MdiCamA::ChangeLangue(const std::string& langue) {
    if (RotationEmpeche()) return AppliqueTextes(); // the mark goes back to the language in use
    LangueTravail = langue;
    ChargeTextes(LaBase);
    AppliqueTextes();
    FermeEcrans();
    ChoisitAide();
    Annonce(Texte(TextePret));
}

void MdiCamA::Quitter() {
    close();
}

void MdiCamA::closeEvent(QCloseEvent* evenement) {
    FermeEcrans();
    evenement->accept();
}

// ---- child screens

void MdiCamA::RefuseSiRotation() {
    etude.resultats.Erreur = Faux;
    if (!etude.resultats.RotationEnCours) return;
    LesDialogues().Message(Icone::Information, Texte(TexteRotation));
    if (auto* resultat = qobject_cast<Resultat*>(EcranOuvert("Resultat"))) resultat->MontreRotation();
    etude.resultats.Erreur = Vrai;
}

bool MdiCamA::RotationEmpeche() {
    RefuseSiRotation();
    const bool refuse = !SansErreur();
    etude.resultats.Erreur = Faux; // the results on the screen are as good as before
    return refuse;
}

void MdiCamA::FermeEcrans() {
    for (const char* nom : OrdreFermeture) FermeEcran(nom);
}

QWidget* MdiCamA::EcranOuvert(const std::string& nom) const {
    const auto trouve = ecrans_.find(nom);
    return trouve == ecrans_.end() || !trouve->second ? nullptr : trouve->second->widget();
}

/// The law screen that is open: saving and printing go to it.
EcranLoi* MdiCamA::EcranLoiActif() const {
    for (const EtudeLoi& loi : LesEtudesLois())
        if (etude.donnees.*loi.active && etude.donnees.TypeLoi == loi.typeLoi)
            return qobject_cast<EcranLoi*>(EcranOuvert(loi.ecran));
    return nullptr;
}

void MdiCamA::FermeEcran(const std::string& nom) {
    const auto trouve = ecrans_.find(nom);
    if (trouve == ecrans_.end()) return;
    const QPointer<QMdiSubWindow> sousFenetre = trouve->second;
    ecrans_.erase(trouve);
    if (!sousFenetre) return;
    if (const EtudeLoi* loi = TrouveEtudeLoi(nom)) {
        // A law study lives on its screen only.
        etude.donnees.*loi->active = Faux;
        etude.donnees.TypeLoi.clear();
        etude.resultats.EtudeModifiee = Faux;
        etude.resultats.ResultatsPrets = Faux;
    }
    etude.resultats.RotationEnCours = Faux; // a loop that turns the cam of this screen ends at its next step
    sousFenetre->removeEventFilter(this);
    sousFenetre->hide();
    bureau_->removeSubWindow(sousFenetre);
    sousFenetre->deleteLater(); // the request may come out of one of its own buttons
}

QWidget* MdiCamA::OuvreEcran(const std::string& nom) {
    const EcranEnfant* ecran = TrouveEcran(nom);
    if (!ecran) return nullptr;
    FermeEcran(nom);
    QWidget* contenu = ecran->cree(ecran->nom, {.etudeCalculee = [this] { MontreResultats(); },
                                                .etudeRecalculee = [this] { Annonce(Texte(TexteEtudeCalculee)); },
                                                .quitte = [this, ecran] { QuitteEcran(*ecran); },
                                                .imprime = [this] { Imprimer(); },
                                                .fichierEnregistre =
                                                    [this](const std::string& fichier) {
                                                        Annonce(Texte(TexteFichierEnregistre) + " " + fichier);
                                                    }});
    QMdiSubWindow* sousFenetre = bureau_->addSubWindow(contenu, Qt::SubWindow);
    sousFenetre->setSystemMenu(nullptr); // its entries are not in the working language
    sousFenetre->installEventFilter(this);
    ecrans_[nom] = sousFenetre;
    PlaceSousFenetre(*sousFenetre);
    sousFenetre->show();
    return contenu;
}

void MdiCamA::PlaceSousFenetre(QMdiSubWindow& sousFenetre) {
    const QSize besoin = sousFenetre.sizeHint();
    const QSize manque = (besoin - bureau_->viewport()->size()).expandedTo({0, 0});
    if (!isMaximized() && !manque.isNull()) resize((size() + manque).boundedTo(screen()->availableSize()));
    const QSize place = bureau_->viewport()->size();
    sousFenetre.resize(besoin.boundedTo(place));
    sousFenetre.move((place.width() - sousFenetre.width()) / 2, (place.height() - sousFenetre.height()) / 2);
}

void MdiCamA::MontreResultats() {
    const auto saisie = ecrans_.find(EcranDeSaisie());
    if (saisie != ecrans_.end() && saisie->second) saisie->second->hide();
    if (auto* resultat = qobject_cast<Resultat*>(EcranOuvert("Resultat")))
        resultat->Montre();
    else
        OuvreEcran("Resultat");
    Annonce(Texte(TexteEtudeCalculee));
}

void MdiCamA::QuitteEcran(const EcranEnfant& ecran) {
    const bool resultats = ecran.nom == std::string_view("Resultat");
    FermeEcran(ecran.nom);
    if (!resultats) return Annonce(Texte(TextePret));
    const auto saisie = ecrans_.find(EcranDeSaisie());
    if (saisie == ecrans_.end() || !saisie->second)
        OuvreEcran(EcranDeSaisie()); // the study came from a file
    else
        saisie->second->show();
}

bool MdiCamA::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::ToolTip) return true; // those of the title bar are not in the working language
    if (evenement->type() != QEvent::Close) return QMainWindow::eventFilter(objet, evenement);
    // The cross of a child window is its way back, with all that the screen does then.
    for (const auto& [nom, sousFenetre] : ecrans_)
        if (sousFenetre == objet) {
            evenement->ignore();
            const QString bouton = QString::fromLatin1(TrouveEcran(nom)->boutonRetour);
            if (auto* retour = sousFenetre->findChild<QAbstractButton*>(bouton)) retour->click();
            return true;
        }
    return QMainWindow::eventFilter(objet, evenement);
}
