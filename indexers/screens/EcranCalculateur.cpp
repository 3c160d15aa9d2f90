#include "indexers/screens/EcranCalculateur.h"

#include "core/Etude.h"
#include "indexers/screens/ListeCles.h"
#include "indexers/screens/PanneauLoi.h"
#include "indexers/screens/PanneauSaisie.h"
#include "platform/Dialogues.h"
#include "widgets/Application.h"
#include "widgets/CesseEcoute.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Legendes.h"
#include "widgets/Nomme.h"
#include "widgets/ZoneDefilante.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>

namespace {

constexpr int TexteDonnees = 215;
constexpr int TexteRienASauver = 23;
constexpr int TexteGarde = 514;
constexpr int TexteImprimer = 56;

constexpr Legende legendes[] = {{"Calculer", 0, 11}, {"Sauvegarde", 0, 417}};

} // namespace

EcranCalculateur::EcranCalculateur(const char* nom, int titre, Booleen16 DonneesEtude::*active, QWidget* parent)
    : FenetreEnfant(nom, parent, active) {
    setWindowTitle(QTexte(titre));
}

EcranCalculateur::~EcranCalculateur() {
    CesseEcoute(*this);
}

// ---- layout

void EcranCalculateur::Compose(const Composition& composition) {
    panneaux_ = composition.panneaux;
    derouleVide_ = composition.derouleVide;
    lois_ = composition.lois;
    onglets_ = Nomme(new QTabWidget, "SSTab1");
    onglets_->addTab(new ZoneDefilante(FaitSaisie(composition)), QTexte(TexteDonnees));
    for (const Feuille& feuille : composition.resultats) onglets_->addTab(feuille.contenu, QTexte(feuille.titre));
    auto* disposition = new QVBoxLayout(this);
    disposition->addWidget(onglets_, 1);
    disposition->addLayout(FaitBoutons(composition));
    AppliqueLegendes(*this, legendes);
    Relie(composition);
    MontreEtat();
    composition.ordre.front()->setFocus();
}

QWidget* EcranCalculateur::FaitSaisie(const Composition& composition) {
    auto* feuille = new QWidget;
    auto* rangee = new QHBoxLayout(feuille);
    for (const auto& colonne : composition.colonnes) {
        auto* pile = new QVBoxLayout;
        for (QWidget* panneau : colonne) pile->addWidget(panneau);
        pile->addStretch();
        rangee->addLayout(pile);
    }
    rangee->addStretch();
    return feuille;
}

QLayout* EcranCalculateur::FaitBoutons(const Composition& composition) {
    auto* retour = Nomme(new QPushButton(QTexte(composition.quitter)), "Quitter");
    calculer_ = Nomme(new QPushButton, "Calculer");
    auto* imprimer = Nomme(new QPushButton(QTexte(TexteImprimer)), composition.imprimer);
    auto* sauver = Nomme(new QPushButton, "Sauvegarde");
    sorties_ = Nomme(new QWidget, "Frame8");
    auto* rangee = new QHBoxLayout(sorties_);
    rangee->setContentsMargins({});
    for (QWidget* sortie : composition.sorties) rangee->addWidget(sortie);
    for (QPushButton* bouton : {imprimer, sauver}) rangee->addWidget(bouton);
    sauver->setVisible(composition.sauvegarde);
    calculer_->setDefault(true);
    calculer_->setAutoDefault(true);
    auto* boutons = new QHBoxLayout;
    boutons->addWidget(retour);
    boutons->addStretch();
    boutons->addWidget(sorties_);
    boutons->addWidget(calculer_);
    connect(retour, &QPushButton::clicked, this, &EcranCalculateur::Quitte);
    connect(imprimer, &QPushButton::clicked, this, &EcranCalculateur::ImpressionDemandee);
    connect(sauver, &QPushButton::clicked, this, &EcranCalculateur::Enregistrer);
    connect(calculer_, &QPushButton::clicked, this, &EcranCalculateur::Calculer);
    RevientPar(*retour);
    return boutons;
}

void EcranCalculateur::Relie(const Composition& composition) {
    for (PanneauSaisie* panneau : panneaux_) {
        connect(panneau, &PanneauSaisie::Modifie, this, &EcranCalculateur::Perime);
        connect(panneau, &PanneauSaisie::Refusee, this, &EcranCalculateur::MontreFaute);
        connect(panneau, &PanneauSaisie::Gardee, this,
                [this](const QString& cle) { emit Annonce(QTexte(TexteGarde) + " " + cle); });
    }
    for (PanneauLoi* loi : lois_) {
        connect(loi, &PanneauLoi::Modifie, this, &EcranCalculateur::Perime);
        connect(loi, &PanneauLoi::Bloque, this, [this, bloques = composition.bloques](bool ouvert) {
            bool libre = !ouvert;
            for (const PanneauLoi* autre : lois_) libre = libre && !autre->Ouvert();
            for (QWidget* bloque : bloques) bloque->setEnabled(libre);
            calculer_->setEnabled(libre);
        });
    }
    RelieOrdre(composition.ordre);
}

/// Return goes from each control to the next, and from the last one to the calculation.
void EcranCalculateur::RelieOrdre(const std::vector<QWidget*>& ordre) {
    for (std::size_t i = 0; i < ordre.size(); ++i) {
        QWidget* suivant = i + 1 < ordre.size() ? ordre[i + 1] : calculer_;
        const auto avance = [suivant] { suivant->setFocus(Qt::TabFocusReason); };
        if (auto* champ = qobject_cast<ChampNombre*>(ordre[i])) connect(champ, &ChampNombre::Suivant, suivant, avance);
        if (auto* liste = qobject_cast<ListeCles*>(ordre[i])) connect(liste, &ListeCles::Suivant, suivant, avance);
        if (i > 0) QWidget::setTabOrder(ordre[i - 1], ordre[i]);
    }
}

// ---- inputs

QWidget* EcranCalculateur::ControleDe(const std::string& membre) const {
    for (const PanneauSaisie* panneau : panneaux_)
        if (QWidget* controle = panneau->Controle(membre)) return controle;
    for (const PanneauLoi* loi : lois_)
        if (QWidget* controle = loi->Controle(membre)) return controle;
    return nullptr;
}

std::string EcranCalculateur::Saisi(const std::string& membre) const {
    for (const PanneauSaisie* panneau : panneaux_)
        if (panneau->Controle(membre) != nullptr) return panneau->Saisi(membre);
    for (const PanneauLoi* loi : lois_)
        if (loi->Controle(membre) != nullptr) return loi->Saisi(membre);
    return {};
}

void EcranCalculateur::LitSaisie() {
    for (PanneauSaisie* panneau : panneaux_) panneau->Lit();
    for (PanneauLoi* loi : lois_) loi->Lit();
    LitAutres();
}

void EcranCalculateur::MontreFaute(const FauteSaisie& faute) {
    onglets_->setCurrentIndex(0);
    if (!faute.texte.empty()) LesDialogues().Message(faute.icone, faute.texte, faute.titre);
    QWidget* controle = ControleDe(faute.champ);
    if (controle == nullptr) return;
    controle->setFocus(Qt::OtherFocusReason);
    auto* liste = qobject_cast<ListeCles*>(controle);
    if (derouleVide_ && liste != nullptr && liste->Cle().empty()) liste->showPopup();
}

void EcranCalculateur::MontreSansPerimer(const std::string& membre, double valeur) {
    if (auto* champ = qobject_cast<ChampNombre*>(ControleDe(membre))) {
        const QSignalBlocker muet(champ);
        champ->Montre(valeur);
    }
}

bool EcranCalculateur::PrendInertie(double inertie) {
    auto* champ = qobject_cast<ChampNombre*>(ControleDe("InertieTourelle"));
    if (champ == nullptr) return false;
    onglets_->setCurrentIndex(0);
    champ->Montre(inertie);
    champ->setFocus(Qt::OtherFocusReason);
    return true;
}

// ---- results

void EcranCalculateur::Perime() {
    if (!calcule_ && !ouvertes_) return;
    calcule_ = ouvertes_ = false;
    MontreEtat();
}

void EcranCalculateur::OuvreFeuilles(int feuille) {
    ouvertes_ = true;
    MontreEtat();
    onglets_->setCurrentIndex(feuille);
}

void EcranCalculateur::MontreEtat() {
    etude.resultats.ResultatsPrets = calcule_ ? Vrai : Faux;
    etude.resultats.EtudeModifiee = calcule_ ? Vrai : Faux;
    for (int i = 1; i < onglets_->count(); ++i) onglets_->setTabEnabled(i, calcule_ || ouvertes_);
    sorties_->setEnabled(calcule_);
}

void EcranCalculateur::Calculer() {
    Perime();
    etude.resultats.Erreur = Vrai;
    LitSaisie();
    if (!Demande()) return;
    if (const auto faute = ChercheFaute()) {
        MontreArret(*faute);
        return;
    }
    const Sablier sablier;
    CalculeResultats();
    MontreResultats();
    etude.resultats.Erreur = Faux;
    calcule_ = true;
    MontreEtat();
    onglets_->setCurrentIndex(1);
    emit EtudeRecalculee();
}

void EcranCalculateur::Enregistrer() {
    if (calcule_) return SauveResultats();
    LesDialogues().Message(Icone::Information, Texte(TexteRienASauver));
}
