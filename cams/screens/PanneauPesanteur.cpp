#include "cams/screens/PanneauPesanteur.h"

#include "cams/Pesanteur.h"
#include "core/Nombres.h"
#include "widgets/BarreNombre.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Nomme.h"
#include "widgets/PanneauChamps.h"
#include "widgets/ZoneDessin.h"

#include <QGridLayout>

#include <algorithm>
#include <utility>

PanneauPesanteur::PanneauPesanteur(const ChampLie& champ, QWidget* parent)
    : QGroupBox(QTexte(168), parent), angle_(*std::get<double*>(champ.valeur)) {
    auto* disposition = new QGridLayout(this);
    champ_ = AjouteLigneChamp(*disposition, 0, champ.controle, champ.texte, champ.unite);
    defilement_ = Nomme(new BarreNombre, "HScroll1");
    defilement_->setRange(0, 360);
    defilement_->setPageStep(15);
    dessin_ = Nomme(new ZoneDessin, "Picture6");
    dessin_->setMinimumSize(150, 150);
    dessin_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    disposition->addWidget(defilement_, 1, 0, 1, 3);
    disposition->addWidget(dessin_, 2, 0, 1, 3);
    disposition->setRowStretch(2, 1);
    connect(defilement_, &QScrollBar::valueChanged, this, [this](int angle) { Change(angle); });
    connect(champ_, &QLineEdit::editingFinished, this, &PanneauPesanteur::Lit);
    Montre();
}

void PanneauPesanteur::Lit() {
    if (champ_->isModified()) Change(champ_->Valeur());
}

void PanneauPesanteur::Change(double angle) {
    const double ancien = std::exchange(angle_, std::clamp(angle, 0.0, 360.0));
    Montre();
    if (angle_ != ancien) emit Modifie();
}

void PanneauPesanteur::Montre() {
    champ_->Montre(angle_);
    const QSignalBlocker muet(defilement_);
    defilement_->setValue(static_cast<int>(Arrondi(std::clamp(angle_, 0.0, 360.0))));
    dessin_->Peint([angle = angle_](Dessin& dessin) { DessinePesanteur(dessin, angle); });
}
