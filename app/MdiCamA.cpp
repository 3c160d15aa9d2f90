#include "app/MdiCamA.h"

#include "app/Aide.h"
#include "app/BureauEcrans.h"
#include "app/CameType.h"
#include "app/Propos.h"
#include "data/Demarrage.h"
#include "data/TextesSaisie.h"
#include "inertia/TextesInertie.h"
#include "laws/ChoixLois.h"
#include "laws/screens/QuelLoi.h"
#include "studies/Exports.h"
#include "studies/FichierEtude.h"
#include "studies/RapportsCames.h"
#include "studies/TypesEtude.h"
#include "studies/screens/SeleSauv.h"
#include "widgets/ApercuImpression.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"
#include "widgets/ImprimantePoste.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QScreen>
#include <QStatusBar>

namespace {

enum NumerosTexte {
    TexteTitre = 7,
    TexteRienASauver = 23,
    TexteNouvelleEtude = 80,
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

/// Size that the window opens at, where the display has room for it.
constexpr QSize TailleFenetre(1320, 900);

} // namespace

MdiCamA::MdiCamA(const Configuration& configuration) : bureau_(new BureauEcrans), etat_(new QLabel) {
    setObjectName(QStringLiteral("MdiCamA"));
    setCentralWidget(bureau_);
    connect(bureau_, &BureauEcrans::Creee, this, [this](FenetreEnfant* fenetre) { Relie(*fenetre); });
    etat_->setObjectName(QStringLiteral("Etat"));
    etat_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long message does not widen the window
    statusBar()->addWidget(etat_, 1);
    ConstruitMenus();
    ConstruitBarre();
    AjouteAide(*this);
    AppliqueTextes();
    const std::vector<QAction*> marques = EntreesMarques();
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
    OuvreEcran(choix.Ecran());
    etude.resultats.Erreur = Faux;
    Annonce(Texte(TexteNouvelleEtude));
}

void MdiCamA::Ouvrir() {
    OuvreParType(nullptr);
}

void MdiCamA::OuvreParType(const TypeEtude* type) {
    if (RotationEmpeche()) return;
    DemandeFichier demande{Texte(TexteTitreOuvrir), CheminAppli / NomDossierEtudes, {}, {}};
    for (const TypeEtude& t : LesTypesEtude())
        if (type ? &t == type : t.Disponible()) demande.filtres.push_back(FiltreEtude(t));
    if (type) demande.titre += " " + Texte(type->titre);
    const auto chemin = LesDialogues().FichierAOuvrir(demande);
    // Whoever cancels finds his screens and his study as they were.
    if (chemin && !chemin->empty()) OuvreFichier(*chemin);
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
    FenetreEnfant* active = bureau_->Active();
    if (active != nullptr ? !active->PretAEnregistrer() : !etude.resultats.EtudeModifiee) {
        LesDialogues().Message(Icone::Information, Texte(TexteRienASauver));
        return;
    }
    if (active != nullptr) return active->Enregistrer();
    if (!bureau_->Obtient(&FenetreEnfant::PrendSaisie)) return;
    SeleSauv sauvegarde([this] { return bureau_->Obtient(&FenetreEnfant::MetAJour); }, this);
    connect(&sauvegarde, &SeleSauv::FichierEnregistre, this, [this] {
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
    const ::MarquesImpression marques = MarquesCochees();
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
    configuration.imprime = MarquesCochees();
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
    bureau_->Dit(&FenetreEnfant::AppliqueTextes);
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
    bureau_->FermeTout();
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
    connect(&fenetre, &FenetreEnfant::FichierEnregistre, this,
            [this](const QString& nom) { Annonce(Texte(TexteFichierEnregistre) + " " + S(nom)); });
    connect(&fenetre, &FenetreEnfant::ImpressionDemandee, this, [this, &fenetre] { ImprimeFenetre(fenetre); });
    connect(&fenetre, &FenetreEnfant::Annonce, this, [this](const QString& texte) { Annonce(S(texte)); });
    connect(&fenetre, &FenetreEnfant::InertieOfferte, this, &MdiCamA::DonneInertie);
    connect(&fenetre, &FenetreEnfant::Quitte, this, [this, &fenetre] { Quitte(fenetre); });
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

void MdiCamA::Quitte(const FenetreEnfant& fenetre) {
    const std::string nom = fenetre.Nom();
    bureau_->Ferme(nom);
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    if (type != nullptr && type->ResultatsAPart() && nom == type->ecranResultats)
        bureau_->Montre(type->ecranSaisie); // not open yet when the study came from a file
    else
        Annonce(Texte(TextePret));
}
