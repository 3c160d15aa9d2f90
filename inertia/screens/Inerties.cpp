#include "inertia/screens/Inerties.h"

#include "core/Nombres.h"
#include "data/Textes.h"
#include "drawing/FiguresSolides.h"
#include "inertia/TextesInertie.h"
#include "inertia/screens/BarresSolides.h"
#include "inertia/screens/GrillesInertie.h"
#include "inertia/screens/PanneauSolide.h"
#include "platform/Dialogues.h"
#include "widgets/CesseEcoute.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Etiquettes.h"
#include "widgets/Grille.h"
#include "widgets/Legendes.h"
#include "widgets/Nomme.h"
#include "widgets/Remarques.h"
#include "widgets/ZoneDefilante.h"
#include "widgets/ZoneDessin.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QPushButton>
#include <QShortcut>

#include <algorithm>

namespace {

constexpr Legende legendes[] = {
    {"Inerties", 0, TexteCalculInerties}, {"Frame2", 0, 330}, {"TitreExact", 0, TexteExact}, {"Plus", 0, TexteAjouter},
    {"Moins", 0, TexteEnlever},           {"Ok", 0, 340},     {"Imprimer", 0, 56},
};

constexpr QSize TailleFigure(272, 204);
constexpr QSize TailleEcran(1060, 590);

/// Whether more digits can still be typed behind a number, so that it grows.
bool PeutGrandir(const QString& texte) {
    return !texte.isEmpty() && std::all_of(texte.begin(), texte.end(), [](QChar c) { return c.isDigit(); });
}

/// As high as its rows, and no higher.
void AjusteHauteur(Grille& grille) {
    grille.setFixedHeight(grille.horizontalHeader()->sizeHint().height() +
                          grille.NombreLignes() * grille.verticalHeader()->defaultSectionSize() +
                          2 * grille.frameWidth());
}

} // namespace

Inerties::Inerties(QWidget* parent)
    : FenetreEnfant("Inerties", parent), genre_(&LesSolides().front()), barres_(new BarresSolides),
      panneau_(new PanneauSolide), figure_(Nomme(new ZoneDessin, "Image1")), grille1_(Nomme(new Grille, "Grille1")),
      grille2_(Nomme(new Grille, "Grille2")) {
    figure_->setFixedSize(TailleFigure);
    auto* contenu = new QWidget;
    auto* colonne = new QVBoxLayout(contenu);
    colonne->setContentsMargins({});
    auto* rangee = new QHBoxLayout;
    rangee->addWidget(figure_, 0, Qt::AlignTop);
    rangee->addWidget(panneau_);
    rangee->addLayout(FaitValeurs(), 1);
    PrepareListe(*grille1_, assemblage_);
    colonne->addWidget(barres_);
    colonne->addLayout(rangee);
    colonne->addWidget(grille1_, 1);
    auto* disposition = new QVBoxLayout(this);
    disposition->addWidget(new ZoneDefilante(contenu), 1);
    disposition->addLayout(FaitBoutons());
    barres_->Boutons()->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
    barres_->Boutons()->addWidget(FaitMenuListe());
    Relie();
    AppliqueTextes();
    ChoisitSolide(genre_->TypeSolide);
}

Inerties::~Inerties() {
    CesseEcoute(*this);
    GardeAbandonnee();
}

/// The list takes what height is left; it does not ask for more.
QSize Inerties::sizeHint() const {
    return {std::max(QWidget::sizeHint().width(), TailleEcran.width()), TailleEcran.height()};
}

// ---- layout

QWidget* Inerties::FaitResultats() {
    auto* cadre = Nomme(new QGroupBox, "Frame2");
    auto* grille = new QGridLayout(cadre);
    titreExact_ = Nomme(FaitUnite(), "TitreExact");
    titreExact_->setAlignment(Qt::AlignRight);
    grille->addWidget(titreExact_, 0, 3);
    for (const GrandeurInertie& grandeur : LesGrandeurs()) {
        const int rang = grille->rowCount();
        auto* exact = FaitValeur((std::string("Exact") + grandeur.controle).c_str(), "00000.0000000000");
        exact->setForegroundRole(QPalette::PlaceholderText);
        const LigneResultat ligne{new QLabel, FaitValeur(grandeur.controle, "000000.00"), FaitUnite(), exact};
        grille->addWidget(ligne.nom, rang, 0);
        grille->addWidget(ligne.etiquette, rang, 1);
        grille->addWidget(ligne.unite, rang, 2);
        grille->addWidget(ligne.exact, rang, 3);
        lignes_.push_back(ligne);
    }
    remarques_ = Nomme(new Remarques, "NoteResultats");
    grille->addWidget(remarques_, grille->rowCount(), 0, 1, 4);
    grille->setRowStretch(grille->rowCount(), 1);
    auto* boutons = new QHBoxLayout;
    plus_ = Nomme(new QPushButton, "Plus");
    moins_ = Nomme(new QPushButton, "Moins");
    plus_->setAutoDefault(true);
    boutons->addWidget(moins_);
    boutons->addStretch();
    boutons->addWidget(plus_);
    grille->addLayout(boutons, grille->rowCount(), 0, 1, 4);
    grille->setColumnStretch(0, 1);
    return cadre;
}

/// The results of the solid, and below them the totals of the list.
QLayout* Inerties::FaitValeurs() {
    auto* colonne = new QVBoxLayout;
    colonne->addWidget(FaitResultats());
    colonne->addWidget(grille2_);
    remarquesTotaux_ = Nomme(new Remarques, "NoteTotaux");
    colonne->addWidget(remarquesTotaux_);
    colonne->addStretch();
    return colonne;
}

QLayout* Inerties::FaitBoutons() {
    ok_ = Nomme(new QPushButton, "Ok");
    imprimer_ = Nomme(new QPushButton, "Imprimer");
    auto* boutons = new QHBoxLayout;
    boutons->addWidget(ok_);
    boutons->addStretch();
    boutons->addWidget(imprimer_);
    return boutons;
}

void Inerties::Relie() {
    connect(barres_, &BarresSolides::Choisi, this, &Inerties::ChoisitSolide);
    connect(panneau_, &PanneauSolide::Modifie, this, &Inerties::Calcule);
    connect(panneau_, &PanneauSolide::Valide, this, &Inerties::Valide);
    connect(panneau_, &PanneauSolide::OptionChoisie, this, [this] {
        resultats_.reset();
        Calcule();
        panneau_->Champ("Text1")->setFocus(Qt::TabFocusReason);
    });
    connect(panneau_, &PanneauSolide::CoteVisee, this, [this](const QString& lettre) {
        cote_ = lettre;
        MontreFigure();
    });
    connect(plus_, &QPushButton::clicked, this, &Inerties::Plus);
    connect(moins_, &QPushButton::clicked, this, &Inerties::Moins);
    connect(imprimer_, &QPushButton::clicked, this, &Inerties::ImprimeInertiesDriver);
    connect(ok_, &QPushButton::clicked, this, &Inerties::Quitte);
    RevientPar(*ok_);
    auto* supprime = new QShortcut(Qt::Key_Delete, grille1_);
    supprime->setContext(Qt::WidgetShortcut);
    connect(supprime, &QShortcut::activated, this, &Inerties::Moins);
}

void Inerties::AppliqueTextes() {
    AppliqueLegendes(*this, legendes);
    barres_->AppliqueTextes();
    panneau_->AppliqueTextes();
    for (std::size_t i = 0; i < lignes_.size(); ++i) {
        lignes_[i].nom->setText(QTexte(LesGrandeurs()[i].texte));
        lignes_[i].unite->setText(QTexte(LesGrandeurs()[i].unite));
    }
    AppliqueTextesListe();
    MontreResultats(ChercheFaute(panneau_->Saisie()).has_value());
    MontreListe();
}

// ---- one solid

void Inerties::ChoisitSolide(int TypeSolide) {
    RemplitSaisie(SaisieInitiale(*TrouveSolide(TypeSolide)));
    MontreFaute({}); // nothing is missing before something was typed
    panneau_->Champ("Text1")->setFocus(Qt::TabFocusReason);
}

void Inerties::RemplitSaisie(const SaisieSolide& saisie) {
    genre_ = TrouveSolide(saisie.TypeSolide);
    barres_->Montre(*genre_);
    panneau_->Choisit(*genre_);
    panneau_->Reprend(saisie);
    MontreFigure();
    resultats_.reset();
    Calcule();
}

void Inerties::MontreFigure() {
    figure_->Peint([code = genre_->TypeSolide, cote = S(cote_)](Dessin& dessin) {
        DessineSolide(dessin, code, {true, cote});
    });
}

/// A number that is still being typed is not refused as long as its next digits can mend it.
/// @return false when a box refused the entry
bool Inerties::Calcule(const QString& champEnCours) {
    auto faute = ChercheFaute(panneau_->Saisie());
    bool refuse = false;
    if (faute && faute->videResultats) resultats_.reset();
    if (faute && !faute->message.empty()) {
        const bool enCours = champEnCours == QLatin1String(faute->grandit);
        refuse = !enCours || !PeutGrandir(panneau_->Champ(faute->grandit)->text());
        if (refuse) {
            Refuse(*faute);
            faute = ChercheFaute(panneau_->Saisie());
        }
    }
    if (!faute) resultats_ = CalculeSolide(panneau_->Saisie());
    MontreResultats(faute.has_value());
    MontreFaute(faute);
    return !refuse;
}

void Inerties::Refuse(const FauteSolide& faute) {
    MontreResultats(true);
    LesDialogues().Message(Icone::Avertissement, faute.message);
    panneau_->Corrige(faute.corrige, faute.correction);
    ChampNombre* champ = panneau_->Champ(faute.controle);
    champ->setFocus(Qt::TabFocusReason);
    champ->selectAll();
}

void Inerties::MontreFaute(const std::optional<FauteSolide>& faute) {
    panneau_->Marque(faute ? faute->controle : "", faute ? faute->sens : "");
    emit Annonce(faute ? Q(faute->sens) : QString());
}

void Inerties::Valide(const QString& controle) {
    if (Calcule() && !panneau_->PasseAuSuivant(controle)) plus_->setFocus(Qt::TabFocusReason);
}

/// @param anciens the labels keep what they showed before the entry came to be at fault
void Inerties::MontreResultats(bool anciens) {
    const Etiquettes textes = resultats_ ? EtiquettesDe(*resultats_) : Etiquettes{};
    for (std::size_t i = 0; i < lignes_.size(); ++i) {
        lignes_[i].etiquette->setText(Q(textes[i]));
        lignes_[i].etiquette->setEnabled(!anciens);
        const QString exact = resultats_ ? Q(StrTrim((*resultats_)[i])) : QString();
        lignes_[i].exact->setText(exact);
        lignes_[i].etiquette->setToolTip(resultats_ ? QTexte(TexteValeurEntiere) + " " + exact : QString());
    }
    std::string remarque;
    if (resultats_)
        remarque = anciens ? Texte(TexteResultatsAnciens)
                           : NoteFriction((*resultats_)[3], FrictionVraie(panneau_->Saisie(), *resultats_));
    remarques_->Montre(remarque.empty() ? std::vector<std::string>{} : std::vector{remarque});
}

// ---- the list

void Inerties::Plus() {
    if (!Calcule()) return;
    if (const auto faute = ChercheFaute(panneau_->Saisie())) {
        panneau_->Champ(faute->controle)->setFocus(Qt::TabFocusReason);
        return;
    }
    const int Signe = 1;
    switch (AjouteSolide(assemblage_, panneau_->Saisie(), EtiquettesDe(*resultats_), *resultats_, Signe)) {
    case Ajout::Refuse:
        LesDialogues().Message(Icone::Avertissement, MessageRefus());
        break;
    case Ajout::SansEffet: {
        const bool rien = *resultats_ == Grandeurs{};
        emit Annonce(rien ? QTexte(TexteManque) + " " + panneau_->NomMasse() : QTexte(TexteSolideTropPetit));
        panneau_->Champ("Text3")->setFocus(Qt::TabFocusReason);
        return;
    }
    case Ajout::Fait:
        listeModifiee_ = true;
        MontreListe();
        grille1_->scrollToBottom();
        break;
    }
    panneau_->Champ("Text1")->setFocus(Qt::TabFocusReason);
}

void Inerties::Moins() {
    const QModelIndexList choisies = grille1_->selectionModel()->selectedRows();
    const int rang = choisies.isEmpty() ? -1 : choisies.front().row();
    const auto saisie = rang < 0 ? std::nullopt : EnleveSolide(assemblage_, static_cast<std::size_t>(rang));
    if (!saisie) {
        emit Annonce(QTexte(TexteChoisissezListe));
        return;
    }
    listeModifiee_ = true;
    MontreListe();
    if (grille1_->NombreLignes() > 0) grille1_->selectRow(std::min(rang, grille1_->NombreLignes() - 1));
    RemplitSaisie(*saisie);
}

void Inerties::MontreListe() {
    RemplitListe(*grille1_, assemblage_);
    RemplitTotaux(*grille2_, assemblage_);
    AjusteHauteur(*grille2_);
    moins_->setEnabled(!assemblage_.lignes.empty());
    remarquesTotaux_->Montre(NotesTotaux(assemblage_));
}
