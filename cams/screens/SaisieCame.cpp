#include "cams/screens/SaisieCame.h"

#include "cams/CompleteZones.h"
#include "cams/LimitesSaisie.h"
#include "cams/screens/PanneauPesanteur.h"
#include "data/Textes.h"
#include "data/TextesSaisie.h"
#include "data/Unites.h"
#include "platform/Dialogues.h"
#include "widgets/Application.h"
#include "widgets/CesseEcoute.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Legendes.h"
#include "widgets/Nomme.h"
#include "widgets/PanneauChamps.h"
#include "widgets/ReprendSaisie.h"
#include "widgets/ZoneDefilante.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QShowEvent>
#include <QTabWidget>

#include <stdexcept>
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
    : FenetreEnfant(description.nom, parent), description_(description) {
    for (const GroupeDonnees& groupe : description.groupes) {
        std::vector<ChampLie> champs;
        for (const char* nom : groupe.Champs())
            champs.push_back(LieChamp(ChampNomme(description.champs, nom), etude.donnees));
        if (groupe.pesanteur)
            pesanteur_ = Nomme(new PanneauPesanteur(champs.front()), groupe.panneau);
        else
            panneaux_.push_back(new PanneauChamps(groupe.panneau, groupe.titre, std::move(champs)));
    }
}

SaisieCame::~SaisieCame() {
    CesseEcoute(*this);
}

QWidget* SaisieCame::Panneau(std::string_view nom) const {
    for (auto* panneau : panneaux_)
        if (S(panneau->objectName()) == nom) return panneau;
    if (pesanteur_ != nullptr && S(pesanteur_->objectName()) == nom) return pesanteur_;
    throw std::logic_error("no panel " + std::string(nom));
}

QLineEdit* SaisieCame::ChampDe(std::string_view nom) const {
    for (const auto* panneau : panneaux_)
        if (auto* champ = panneau->ChampDe(nom)) return champ;
    return nullptr;
}

bool SaisieCame::PrendInertie(double inertie) {
    for (const ChampEtude& champ : description_.champs) {
        QLineEdit* zone = champ.unite == UniteKgM2 ? ChampDe(champ.nom) : nullptr;
        if (zone == nullptr) continue;
        zone->setText(Q(StrTrim(inertie)));
        zone->setFocus(Qt::OtherFocusReason);
        return true;
    }
    return false;
}

void SaisieCame::Compose(const std::vector<QWidget*>& colonnes, QTabWidget* feuilles) {
    zones_ =
        new PanneauZones(description_.zones, description_.champsZones, [this](Zone& zone) { return AcheveZone(zone); });
    auto* contenu = new QWidget;
    auto* rangee = new QHBoxLayout(contenu);
    if (feuilles == nullptr) rangee->setContentsMargins({}); // those of the window are enough
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
    QWidget* saisie = new ZoneDefilante(contenu);
    if (feuilles != nullptr) feuilles->insertTab(0, saisie, {});
    disposition->addWidget(feuilles != nullptr ? feuilles : saisie, 1);
    disposition->addLayout(boutons);
    const Legende legendes[] = {{description_.nom, 0, description_.titre}, {"Retour", 0, 13}, {"Calculer", 0, 11}};
    AppliqueLegendes(*this, legendes);
    for (auto* panneau : panneaux_) PoseLimites(*panneau, LimiteNombre);
    zones_->LaisseAller(retour_);
    RevientPar(*retour_);
    RelieChamps();
    MontreBoutons();
    panneaux_.front()->Champs().front()->setFocus();
}

void SaisieCame::RelieChamps() {
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
    connect(zones_, &PanneauZones::LoiLue, this, [this](const QString& fichier) {
        emit Annonce(QTexte(TexteLoiDeFichierLue) + " " + fichier + ". " + QTexte(TexteLoisAuDemarrage));
    });
    connect(zones_, &PanneauZones::Modifie, this, &SaisieCame::PerimeResultats);
    if (pesanteur_ != nullptr) {
        connect(pesanteur_->Champ(), &ChampNombre::Suivant, zones_, &PanneauZones::PrendFocus);
        connect(pesanteur_, &PanneauPesanteur::Modifie, this, &SaisieCame::PerimeResultats);
    }
    connect(zones_, &PanneauZones::Termine, calculer_, [this] { calculer_->setFocus(Qt::TabFocusReason); });
    connect(calculer_, &QPushButton::clicked, this, &SaisieCame::Calculer);
    connect(retour_, &QPushButton::clicked, this, &SaisieCame::Retour);
}

void SaisieCame::MontreBoutons() {
    calculer_->setEnabled(zones_->Complet());
    calculer_->setDefault(zones_->Complet());
}

/// Results of other data are neither printed nor exported; the study itself can be saved as before.
void SaisieCame::PerimeResultats() {
    etude.resultats.Perimes = true;
}

void SaisieCame::LitPanneau(PanneauChamps& panneau) {
    if (panneau.Lit()) PerimeResultats();
}

void SaisieCame::LitDonnees() {
    for (auto* panneau : panneaux_) LitPanneau(*panneau);
    if (pesanteur_ != nullptr) pesanteur_->Lit();
}

void SaisieCame::LitSaisie() {
    LitDonnees();
    zones_->LitSaisie();
}

bool SaisieCame::FauteDeDonnee(std::span<const ChampEtude> champs) {
    const ChampEtude* faute = ChercheInterdit(champs, etude.donnees);
    if (faute == nullptr) return false;
    RefuseDonnee(faute->nom, faute->texteFaute);
    return true;
}

void SaisieCame::RefuseDonnee(const char* nom, int texte) {
    LesDialogues().Message(Icone::Avertissement, Texte(texte));
    if (auto* champ = ChampDe(nom)) champ->setFocus();
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
    if (auto* bras = ChampDe("RayonO1P")) ReprendSaisie(*bras);
    return true;
}

bool SaisieCame::AcheveZone(Zone& zone) {
    if (RefuseHorsLimite(*this)) return false;
    LitDonnees();
    const bool tous = description_.champDuree == nullptr;
    const std::span champs =
        tous ? description_.champs : std::span(&ChampNomme(description_.champs, description_.champDuree), 1);
    if (FauteDeDonnee(champs) || !ControleZone(zone)) return false;
    std::swap(etude.donnees.Zones[etude.donnees.ZoneCourante], zone);
    CompleteZone(etude.donnees.ZoneCourante, description_.zones.rayonsBras);
    std::swap(etude.donnees.Zones[etude.donnees.ZoneCourante], zone);
    return !HorsDePortee();
}

bool SaisieCame::PrendSaisie() {
    if (!zones_->LitPointsParDegre() || RefuseHorsLimite(*this)) return false;
    LitDonnees();
    return zones_->PrendSaisie();
}

bool SaisieCame::MetAJour() {
    if (!PrendSaisie()) return false;
    return !etude.resultats.Perimes || Calcule();
}

void SaisieCame::Calculer() {
    if (PrendSaisie() && Calcule()) emit EtudeCalculee();
}

/// Calculates what the record holds; false after a box that says why it cannot be.
bool SaisieCame::Calcule() {
    if (!zones_->ControlePoints() || FauteDeDonnee(description_.champs) || !ControleDonnees()) return false;
    ProposeDonnees();
    // Geometry and speed may have changed since a zone was accepted.
    CompleteZones(description_.zones.rayonsBras);
    if (HorsDePortee()) return false;
    const Sablier sablier;
    etude.resultats.Perimes = true;
    description_.calcule();
    if (!SansErreur()) return false;
    etude.resultats.EtudeModifiee = Vrai;
    etude.resultats.ResultatsPrets = Vrai;
    return true;
}

void SaisieCame::Retour() {
    etude.donnees.ZoneCourante = 0;
    etude.resultats.EtudeModifiee = Faux;
    etude.resultats.ResultatsPrets = Faux;
    emit Quitte();
}
