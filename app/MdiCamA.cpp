#include "app/MdiCamA.h"

#include "app/Aide.h"
#include "app/BureauEcrans.h"
#include "app/CameType.h"
#include "app/PageAccueil.h"
#include "app/Propos.h"
#include "app/TextesApp.h"
#include "data/Demarrage.h"
#include "data/TextesSaisie.h"
#include "inertia/TextesInertie.h"
#include "laws/ChoixLois.h"
#include "laws/screens/QuelLoi.h"
#include "studies/Exports.h"
#include "studies/RapportsCames.h"
#include "studies/TypesEtude.h"
#include "studies/screens/SeleSauv.h"
#include "widgets/ApercuImpression.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"
#include "widgets/ImprimantePoste.h"
#include "widgets/TailleEcran.h"
#include "widgets/TextesQt.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QStatusBar>

#include <chrono>

namespace {

enum NumerosTexte {
    TexteTitre = 7,
    TexteRienASauver = 23,
    TexteNouvelleEtude = 80,
    TexteEtudeCalculee = 121,
    TexteFichierEnregistre = 127,
    TexteConfigurationSauvee = 130,
    TexteEntrezTitre = 133,
    TexteRienAImprimer = 135,
    TexteRotation = 435,
};

/// A killed program loses what was entered in that time at most.
constexpr std::chrono::seconds IntervalleGarde{2};

/// Size that the window opens at, where the display has room for it.
constexpr QSize TailleFenetre(1320, 900);

} // namespace

MdiCamA::MdiCamA(const Configuration& configuration)
    : bureau_(new BureauEcrans), accueil_(new PageAccueil), etat_(new QLabel),
      travaux_(FichierReprise(CheminUtilisateur)), aide_(*bureau_) {
    setObjectName(QStringLiteral("MdiCamA"));
    ChargeTextesQt(LangueTravail);
    setCentralWidget(bureau_);
    setAcceptDrops(true);
    connect(accueil_, &PageAccueil::EtudeChoisie, this, &MdiCamA::CommenceEtude);
    connect(accueil_, &PageAccueil::FichierChoisi, this, &MdiCamA::OuvreAutre);
    connect(bureau_, &BureauEcrans::Creee, this, [this](FenetreEnfant* fenetre) { Relie(*fenetre); });
    etat_->setObjectName(QStringLiteral("Etat"));
    etat_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long message does not widen the window
    statusBar()->addWidget(etat_, 1);
    ConstruitMenus();
    ConstruitBarre();
    AppliqueTextes();
    const std::vector<QAction*> marques = EntreesMarques();
    for (std::size_t i = 0; i < marques.size(); ++i) marques[i]->setChecked(configuration.imprime.at(i));
    bureau_->PlaceAccueil(accueil_);
    connect(&garde_, &QTimer::timeout, this, [this] {
        // The box of a calculation stands over zones that are in points.
        if (QApplication::activeModalWidget() == nullptr) GardeTravaux();
    });
    attenteRemis_.setSingleShot(true);
    connect(&attenteRemis_, &QTimer::timeout, this, &MdiCamA::OuvreRemis);
    Annonce(Texte(travaux_.Offerts() ? int{TexteRepriseOfferte} : int{TextePret}));
    TientSurEcran(*this, TailleFenetre);
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
    OuvreEcran(choix.Ecran());
    NoteEtudeSauvee();
    etude.resultats.Erreur = Faux;
    Annonce(Texte(TexteNouvelleEtude));
}

void MdiCamA::Sauvegarder() {
    FenetreEnfant* active = bureau_->Active();
    if (active != nullptr ? !active->PretAEnregistrer() : !etude.resultats.EtudeModifiee) {
        LesDialogues().Message(Icone::Information, Texte(TexteRienASauver));
        return;
    }
    if (active != nullptr) return active->Enregistrer();
    if (!bureau_->Obtient(&FenetreEnfant::PrendSaisie)) return;
    SeleSauv sauvegarde([this] { return bureau_->Obtient(&FenetreEnfant::MetAJour); }, this);
    connect(&sauvegarde, &SeleSauv::FichierEnregistre, this, [this](const QString& chemin) {
        NoteRecent(Chemin(chemin));
        NoteEtudeSauvee();
        Annonce(Texte(TexteFichierEnregistre) + " " + etude.donnees.NomFichier);
        bureau_->Dit(&FenetreEnfant::MontreNomFichier);
    });
    sauvegarde.exec();
}

void MdiCamA::Imprimer() {
    FenetreEnfant* active = bureau_->Active();
    if (active != nullptr ? !active->PretAImprimer() : !etude.resultats.ResultatsPrets) {
        LesDialogues().Message(Icone::Information, Texte(TexteRienAImprimer));
        return;
    }
    if (active != nullptr) return ImprimeFenetre(*active);
    if (!bureau_->Obtient(&FenetreEnfant::MetAJour)) return;
    // The title stands at the head of every report: a study without one is asked for it again.
    while (etude.donnees.NomFichier.empty())
        etude.donnees.NomFichier =
            Trim(LesDialogues().Saisie(Texte(TexteTitre), Texte(TexteEntrezTitre), {}).value_or(""));
    const MarquesImpression marques = MarquesCochees();
    ApercuEtImprime(this, Q(NomSansExtension(etude.donnees.NomFichier)),
                    [&marques](Imprimante& imprimante) { ImprimeRapportsCames(imprimante, marques); });
}

void MdiCamA::ImprimeFenetre(FenetreEnfant& fenetre) {
    if (!fenetre.PrepareImpression()) return;
    ApercuEtImprime(this, fenetre.windowTitle(), [&fenetre](Imprimante& imprimante) { fenetre.Imprime(imprimante); });
}

void MdiCamA::ConfigureImpression() {
    ConfigureImprimante(this);
}

void MdiCamA::MontreAide() {
    aide_.Montre(QApplication::focusWidget());
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
    configuration.imprime = MarquesCochees();
    configuration.langue = LangueTravail;
    EcritConfiguration(CheminUtilisateur / NomConfiguration, configuration);
    Annonce(Texte(TexteConfigurationSauvee));
}

void MdiCamA::ChangeLangue(const std::string& langue) {
    if (RotationEmpeche()) return AppliqueTextes(); // the mark goes back to the language in use
    LangueTravail = langue;
    ChargeTextes(LaBase);
    ChargeTextesQt(LangueTravail); // one that was deleted meanwhile has given way to another
    AppliqueTextes();
    FermeEcrans();
    bureau_->Dit(&FenetreEnfant::AppliqueTextes);
    ChoisitAide();
    aide_.ChangeFichier();
    Annonce(Texte(TextePret));
}

void MdiCamA::Quitter() {
    close();
}

void MdiCamA::closeEvent(QCloseEvent* evenement) {
    FermeEcrans();
    evenement->accept();
}

// ---- child windows

void MdiCamA::RefuseSiRotation() {
    etude.resultats.Erreur = Faux;
    if (!etude.resultats.RotationEnCours) return;
    LesDialogues().Message(Icone::Information, Texte(TexteRotation));
    bureau_->Dit(&FenetreEnfant::MontreRotation);
    etude.resultats.Erreur = Vrai;
}

bool MdiCamA::RotationEmpeche() {
    RefuseSiRotation();
    const bool refuse = !SansErreur();
    etude.resultats.Erreur = Faux; // the results on the screen are as good as before
    return refuse;
}

void MdiCamA::FermeEcrans() {
    Abandonne(TravauxOuverts());
    bureau_->FermeTout();
    GardeTravaux();
}

FenetreEnfant* MdiCamA::OuvreEcran(std::string_view nom) {
    return bureau_->Ouvre(nom);
}

FenetreEnfant* MdiCamA::EcranOuvert(std::string_view nom) const {
    return bureau_->Ouverte(nom);
}

void MdiCamA::MontreEcran(const char* nom) {
    if (!RotationEmpeche()) bureau_->Montre(nom);
}

void MdiCamA::Relie(FenetreEnfant& fenetre) {
    connect(&fenetre, &FenetreEnfant::EtudeCalculee, this, &MdiCamA::MontreResultats);
    connect(&fenetre, &FenetreEnfant::EtudeRecalculee, this, [this] { Annonce(Texte(TexteEtudeCalculee)); });
    connect(&fenetre, &FenetreEnfant::FichierEnregistre, this, [this, &fenetre](const QString& nom) {
        NoteSauve(fenetre);
        Annonce(Texte(TexteFichierEnregistre) + " " + S(nom));
    });
    connect(&fenetre, &FenetreEnfant::ImpressionDemandee, this, [this, &fenetre] { ImprimeFenetre(fenetre); });
    connect(&fenetre, &FenetreEnfant::Annonce, this, [this](const QString& texte) { Annonce(S(texte)); });
    connect(&fenetre, &FenetreEnfant::InertieOfferte, this, &MdiCamA::DonneInertie);
    connect(&fenetre, &FenetreEnfant::Quitte, this, [this, &fenetre] { Quitte(fenetre); });
    NoteSauve(fenetre);
    garde_.start(IntervalleGarde);
}

void MdiCamA::DonneInertie(double inertie) {
    const FenetreEnfant* fenetre = bureau_->DonneInertie(inertie);
    Annonce(fenetre == nullptr ? Texte(TexteAucunChampInertie)
                               : Texte(TexteInertieTransmise) + " " + S(fenetre->windowTitle()));
}

void MdiCamA::MontreResultats() {
    const TypeEtude& type = *TrouveType(etude.donnees.TypeCame);
    if (type.ResultatsAPart()) bureau_->Cache(type.ecranSaisie);
    if (FenetreEnfant* resultats = EcranOuvert(type.ecranResultats))
        resultats->Montre();
    else
        OuvreEcran(type.ecranResultats);
    Annonce(Texte(TexteEtudeCalculee));
}

void MdiCamA::Quitte(FenetreEnfant& fenetre) {
    const std::string nom = fenetre.Nom();
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    if (type != nullptr && type->ResultatsAPart() && nom == type->ecranResultats) {
        bureau_->Ferme(nom);
        bureau_->Montre(type->ecranSaisie); // not open yet when the study came from a file
        return;
    }
    std::vector<Travail> perdus = TravauxOuverts();
    std::erase_if(perdus, [&nom](const Travail& travail) { return travail.ecran != nom; });
    Annonce(Texte(perdus.empty() ? int{TextePret} : int{TexteRepriseOfferte}));
    Abandonne(std::move(perdus));
    bureau_->Ferme(nom);
    GardeTravaux();
}
