#include "inertia/screens/BarresSolides.h"

#include "drawing/FiguresSolides.h"
#include "widgets/Chaines.h"
#include "widgets/IconeDessin.h"
#include "widgets/Nomme.h"

#include <QActionGroup>
#include <QBoxLayout>
#include <QMenu>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>

namespace {

constexpr QSize TailleIcone(48, 36);

struct DescriptionGroupe {
    GroupeSolides groupe;
    const char* bouton;
    const char* menu;
    const char* barre;
    int texte; ///< text number of the button
    int aide;  ///< of its tip
};
constexpr DescriptionGroupe lesGroupes[] = {
    {GroupeSolides::Centres, "SolidesCentres", "M_InertieSolidesCentres", "BarreCentres", 591, 624},
    {GroupeSolides::Excentres, "SolidesExcentres", "M_InertieSolidesEscentres", "BarreExcentres", 601, 625},
    {GroupeSolides::Divers, "DiversInertie", "M_InertieSolidesDivers", "BarreDivers", 602, 626},
};

std::size_t RangGroupe(GroupeSolides groupe) {
    return static_cast<std::size_t>(groupe);
}

/// A caption without its accelerator: this row stands below a menu bar that has the same letters.
QString SansTouche(int texte) {
    return QTexte(texte).remove('&');
}

} // namespace

BarresSolides::BarresSolides(QWidget* parent)
    : QWidget(parent), barres_(new QStackedWidget), boutons_(new QHBoxLayout), solides_(new QActionGroup(this)) {
    for (std::size_t rang = 0; rang < groupes_.size(); ++rang) AjouteGroupe(rang);
    for (const GenreSolide& genre : LesSolides()) AjouteSolide(groupes_.at(RangGroupe(genre.groupe)), genre);
    auto* disposition = new QVBoxLayout(this);
    disposition->setContentsMargins({});
    disposition->setSpacing(2);
    disposition->addLayout(boutons_);
    disposition->addWidget(barres_);
    MontreGroupe(0);
    AppliqueTextes();
}

void BarresSolides::AjouteGroupe(std::size_t rang) {
    const DescriptionGroupe& description = lesGroupes[rang];
    Groupe& groupe = groupes_.at(rang);
    groupe.bouton = Nomme(new QToolButton, description.bouton);
    groupe.menu = Nomme(new QMenu(this), description.menu);
    groupe.barre = Nomme(new QToolBar, description.barre);
    groupe.barre->setIconSize(TailleIcone);
    groupe.bouton->setMenu(groupe.menu);
    groupe.bouton->setPopupMode(QToolButton::MenuButtonPopup);
    groupe.bouton->setToolButtonStyle(Qt::ToolButtonTextOnly);
    groupe.bouton->setCheckable(true);
    groupe.bouton->setAutoRaise(true);
    connect(groupe.bouton, &QToolButton::clicked, this, [this, rang] { MontreGroupe(rang); });
    connect(groupe.menu, &QMenu::aboutToShow, this, [this, rang] { MontreGroupe(rang); });
    boutons_->addWidget(groupe.bouton);
    barres_->addWidget(groupe.barre);
}

void BarresSolides::AjouteSolide(Groupe& groupe, const GenreSolide& genre) {
    auto* action = Nomme(new QAction(solides_), genre.menu);
    action->setCheckable(true);
    action->setData(genre.TypeSolide);
    action->setIcon(IconeDessin(
        [&genre](Dessin& dessin) {
            DessineSolide(dessin, genre.TypeSolide, {false, {}});
        },
        TailleIcone));
    connect(action, &QAction::triggered, this, [this, &genre] { emit Choisi(genre.TypeSolide); });
    groupe.menu->addAction(action);
    groupe.barre->addAction(action);
    groupe.barre->widgetForAction(action)->setObjectName(QString::fromLatin1(genre.cle));
}

void BarresSolides::MontreGroupe(std::size_t rang) {
    barres_->setCurrentIndex(static_cast<int>(rang));
    for (std::size_t i = 0; i < groupes_.size(); ++i) groupes_.at(i).bouton->setChecked(i == rang);
}

void BarresSolides::Montre(const GenreSolide& genre) {
    MontreGroupe(RangGroupe(genre.groupe));
    for (QAction* action : solides_->actions())
        if (action->data().toInt() == genre.TypeSolide) action->setChecked(true);
}

void BarresSolides::AppliqueTextes() {
    for (std::size_t i = 0; i < groupes_.size(); ++i) {
        groupes_.at(i).bouton->setText(SansTouche(lesGroupes[i].texte));
        groupes_.at(i).bouton->setToolTip(QTexte(lesGroupes[i].aide));
        groupes_.at(i).barre->setWindowTitle(QTexte(lesGroupes[i].aide));
    }
    for (QAction* action : solides_->actions()) {
        const GenreSolide& genre = *TrouveSolide(action->data().toInt());
        action->setText(QTexte(genre.texte));
        action->setToolTip(Q(NomSolide(genre)));
    }
}
