#include "cams/screens/SaisieCame.h"

#include "cams/CompleteZones.h"
#include "cams/screens/PanneauPesanteur.h"
#include "data/Textes.h"
#include "platform/Dialogues.h"
#include "widgets/Application.h"
#include "widgets/CesseEcoute.h"
#include "widgets/ChampNombre.h"
#include "widgets/Legendes.h"
#include "widgets/Nomme.h"
#include "widgets/PanneauChamps.h"
#include "widgets/ZoneDefilante.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QShowEvent>

#include <utility>

QWidget* EmpilePanneaux(const std::vector<QWidget*>& panneaux, int etirement) {
    auto* pile = new QWidget;
    auto* disposition = new QVBoxLayout(pile);
    disposition->setContentsMargins({});
    for (std::size_t i = 0; i < panneaux.size(); ++i)
        disposition->addWidget(panneaux[i], static_cast<int>(i) == etirement ? 1 : 0);
    return pile;
}

SaisieCame::SaisieCame(const DescriptionSaisie& description, QWidget* parent)
    : FenetreEnfant(description.nom, parent), description_(description) {}

SaisieCame::~SaisieCame() {
    CesseEcoute(*this);
}

void SaisieCame::Compose(const std::vector<QWidget*>& colonnes, const std::vector<PanneauChamps*>& panneaux,
                         PanneauPesanteur* pesanteur) {
    panneaux_ = panneaux;
    pesanteur_ = pesanteur;
    zones_ =
        new PanneauZones(description_.zones, description_.champsZones, [this](Zone& zone) { return AcheveZone(zone); });
    auto* contenu = new QWidget;
    auto* rangee = new QHBoxLayout(contenu);
    rangee->setContentsMargins({});
    for (auto* colonne : colonnes) rangee->addWidget(colonne);
    rangee->addWidget(zones_, 1);

    retour_ = Nomme(new QPushButton, "Retour");
    calculer_ = Nomme(new QPushButton, "Calculer");
    calculer_->setAutoDefault(true);
    auto* boutons = new QHBoxLayout;
    boutons->addWidget(retour_);
    boutons->addStretch();
    boutons->addWidget(calculer_);
    auto* disposition = new QVBoxLayout(this);
    disposition->addWidget(new ZoneDefilante(contenu), 1);
    disposition->addLayout(boutons);
    const Legende legendes[] = {{description_.nom, 0, 384}, {"Retour", 0, 13}, {"Calculer", 0, 11}};
    AppliqueLegendes(*this, legendes);
    zones_->LaisseAller(retour_);
    RevientPar(*retour_);

    for (std::size_t i = 0; i < panneaux_.size(); ++i) {
        for (auto* champ : panneaux_[i]->Champs())
            connect(champ, &QLineEdit::editingFinished, this, [this, panneau = panneaux_[i]] { LitPanneau(*panneau); });
        if (i + 1 < panneaux_.size()) {
            auto* suivant = panneaux_[i + 1]->Champs().front();
            connect(panneaux_[i], &PanneauChamps::Termine, suivant,
                    [suivant] { suivant->setFocus(Qt::TabFocusReason); });
        } else {
            connect(panneaux_[i], &PanneauChamps::Termine, zones_, &PanneauZones::PrendFocus);
        }
    }
    connect(zones_, &PanneauZones::Change, this, &SaisieCame::MontreBoutons);
    connect(zones_, &PanneauZones::Modifie, this, &SaisieCame::PerimeResultats);
    if (pesanteur_ != nullptr) {
        connect(pesanteur_->Champ(), &ChampNombre::Suivant, zones_, &PanneauZones::PrendFocus);
        connect(pesanteur_, &PanneauPesanteur::Modifie, this, &SaisieCame::PerimeResultats);
    }
    connect(zones_, &PanneauZones::Termine, calculer_, [this] { calculer_->setFocus(Qt::TabFocusReason); });
    connect(calculer_, &QPushButton::clicked, this, &SaisieCame::Calculer);
    connect(retour_, &QPushButton::clicked, this, &SaisieCame::Retour);
    MontreBoutons();
    panneaux_.front()->Champs().front()->setFocus();
}

void SaisieCame::MontreBoutons() {
    calculer_->setEnabled(zones_->Complet());
    calculer_->setDefault(zones_->Complet());
}

/// Results of other data are neither printed nor saved.
void SaisieCame::PerimeResultats() {
    etude.resultats.ResultatsPrets = Faux;
    etude.resultats.EtudeModifiee = Faux;
}

void SaisieCame::LitPanneau(PanneauChamps& panneau) {
    if (panneau.Lit()) PerimeResultats();
}

void SaisieCame::LitDonnees() {
    for (auto* panneau : panneaux_) LitPanneau(*panneau);
    if (pesanteur_ != nullptr) pesanteur_->Lit();
}

bool SaisieCame::FauteDeDonnee(std::optional<FauteDonnee> (*cherche)()) {
    const auto faute = cherche();
    if (!faute) return false;
    LesDialogues().Message(Icone::Avertissement, Texte(faute->texte));
    MontreFaute(faute->membre);
    return true;
}

void SaisieCame::MontreFaute(double DonneesEtude::*membre) {
    for (auto* panneau : panneaux_)
        if (auto* champ = panneau->ChampDe(membre)) champ->setFocus();
}

void SaisieCame::showEvent(QShowEvent* evenement) {
    // Some data may have been changed among the results meanwhile.
    if (!evenement->spontaneous()) ChargeDonnees();
    FenetreEnfant::showEvent(evenement);
}

void SaisieCame::ChargeDonnees() {
    for (auto* panneau : panneaux_) panneau->Charge();
    if (pesanteur_ != nullptr) pesanteur_->Montre();
}

bool SaisieCame::HorsDePortee() {
    if (SansErreur()) return false;
    LesDialogues().Message(Icone::Avertissement, Texte(75));
    MontreFaute(&DonneesEtude::RayonO1P);
    return true;
}

bool SaisieCame::AcheveZone(Zone& zone) {
    LitDonnees();
    if (FauteDeDonnee(description_.chercheFauteZone) || !ControleZone(zone)) return false;
    std::swap(etude.donnees.Zones[etude.donnees.ZoneCourante], zone);
    CompleteZone(etude.donnees.ZoneCourante, description_.zones.rayonsBras);
    std::swap(etude.donnees.Zones[etude.donnees.ZoneCourante], zone);
    return !HorsDePortee();
}

void SaisieCame::Calculer() {
    if (!zones_->LitPointsParDegre()) return;
    LitDonnees();
    if (FauteDeDonnee(description_.chercheFaute)) return;
    ProposeDonnees();
    // Geometry and speed may have changed since a zone was accepted.
    CompleteZones(description_.zones.rayonsBras);
    if (HorsDePortee()) return;
    const Sablier sablier;
    etude.resultats.ResultatsPrets = Faux;
    description_.calcule();
    if (!SansErreur()) return;
    etude.resultats.EtudeModifiee = Vrai;
    etude.resultats.ResultatsPrets = Vrai;
    emit EtudeCalculee();
}

void SaisieCame::Retour() {
    etude.donnees.ZoneCourante = 0;
    etude.resultats.EtudeModifiee = Faux;
    etude.resultats.ResultatsPrets = Faux;
    emit Quitte();
}
