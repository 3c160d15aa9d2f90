#include "cams/screens/PanneauRotation.h"

#include "cams/Pente.h"
#include "core/Etude.h"
#include "widgets/BarreNombre.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Etiquettes.h"
#include "widgets/Icones.h"
#include "widgets/Legendes.h"
#include "widgets/Nomme.h"
#include "widgets/PanneauChamps.h"
#include "widgets/ZoneDessin.h"

#include <QAction>
#include <QActionGroup>
#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QToolBar>

#include <cmath>

namespace {

constexpr int PasRotation = 10; ///< degrees a step
constexpr int DelaiPas = 40;    ///< ms between steps whose size the slider sets, from 1 degree on
constexpr int VitesseMax = 10, VitesseInitiale = 8;

constexpr Legende legendes[] = {
    {"EtiquettePression", 0, 224}, {"Tourner", 0, 296},     {"Arret", 0, 297},
    {"TitreVitesse", 0, 298},      {"Lent", 0, 299},        {"Rapide", 0, 300},
    {"SensTrigo", 0, 301},         {"SensHorloge", 0, 302},
};

} // namespace

PanneauRotation::PanneauRotation(const char* dessin, bool pasRegle, QWidget* parent)
    : QWidget(parent), pas_(new QTimer(this)), pasRegle_(pasRegle) {
    auto* disposition = new QVBoxLayout(this);
    dessin_ = Nomme(new ZoneDessin, dessin);
    dessin_->setMinimumSize(420, 320);
    disposition->addWidget(dessin_, 1);

    angle_ = Nomme(new BarreNombre, "HScroll1");
    angle_->setRange(0, 360);
    angle_->setPageStep(PasRotation);
    angle_->setFocusPolicy(Qt::WheelFocus);
    disposition->addWidget(angle_);
    FaitCommandes(*disposition);
    AppliqueLegendes(*this, legendes);

    pas_->setSingleShot(true);
    connect(pas_, &QTimer::timeout, this, &PanneauRotation::Avance);
    connect(angle_, &QScrollBar::valueChanged, this, &PanneauRotation::MontreAngle);
    connect(texteAngle_, &ChampNombre::Suivant, this, &PanneauRotation::EntreAngle);
    connect(texteAngle_, &QLineEdit::editingFinished, this, &PanneauRotation::EntreAngle);
    connect(tourner_, &QPushButton::clicked, this, &PanneauRotation::Tourne);
    connect(arret_, &QPushButton::clicked, this, &PanneauRotation::Arrete);
    Arrete();
}

PanneauRotation::~PanneauRotation() {
    etude.resultats.RotationEnCours = Faux;
}

void PanneauRotation::FaitCommandes(QBoxLayout& disposition) {
    auto* commandes = new QGridLayout;
    texteAngle_ = AjouteLigneChamp(*commandes, 0, "Text1", 295, 19);
    pression_ = FaitValeur("Label42", pasRegle_ ? "-000.00 / -000.00 " : "-000.00 ");
    commandes->addWidget(Nomme(new QLabel, "EtiquettePression"), 1, 0);
    commandes->addWidget(pression_, 1, 1);
    commandes->addWidget(FaitUnite(QTexte(19)), 1, 2);
    commandes->setColumnStretch(0, 0);
    commandes->setColumnStretch(3, 1);

    auto* sens = Nomme(new QToolBar, "Toolbar1");
    auto* groupe = new QActionGroup(this);
    for (const char* cle : {"SensTrigo", "SensHorloge"}) {
        auto* action = Nomme(new QAction(IconeBarre(cle), {}, groupe), cle);
        action->setCheckable(true);
        action->setChecked(QLatin1String(cle) == QLatin1String("SensHorloge"));
        sens->addAction(action);
        addAction(action);
        connect(action, &QAction::triggered, this,
                [this, trigo = action->objectName() == "SensTrigo"] { sensTrigo_ = trigo; });
    }
    tourner_ = Nomme(new QPushButton, "Tourner");
    arret_ = Nomme(new QPushButton, "Arret");
    vitesse_ = Nomme(new QSlider(Qt::Horizontal), "Slider1");
    vitesse_->setRange(pasRegle_ ? 1 : 0, VitesseMax);
    vitesse_->setPageStep(1);
    vitesse_->setValue(pasRegle_ ? 2 : VitesseInitiale);
    vitesse_->setFixedWidth(140);

    commandes->addWidget(sens, 0, 4, 2, 1);
    commandes->addWidget(tourner_, 0, 5, 2, 1);
    commandes->addWidget(arret_, 0, 6, 2, 1);
    auto* reglage = new QHBoxLayout;
    reglage->addWidget(Nomme(new QLabel, "Lent"));
    reglage->addWidget(vitesse_);
    reglage->addWidget(Nomme(new QLabel, "Rapide"));
    commandes->addWidget(Nomme(new QLabel, "TitreVitesse"), 0, 7, Qt::AlignHCenter);
    commandes->addLayout(reglage, 1, 7);
    disposition.addLayout(commandes);
}

void PanneauRotation::Montre(const Vue& vue) {
    vue_ = vue;
    angle_->setRange(0, vue_.dernierAngle);
    MontreAngle(angle_->value());
}

void PanneauRotation::MontreAngle(int angle) {
    texteAngle_->Montre(angle);
    if (vue_.dessine == nullptr) return;
    etude.resultats.AngleRotation = vue_.couchee ? 0.0 : angle / RadDeg;
    const long point = static_cast<long>(etude.donnees.PointsParDegre) * angle;
    const bool present = point <= etude.resultats.Profil.BorneHaute();
    if (vue_.pente != nullptr)
        pression_->setText(Q(vue_.pente(point)));
    else
        pression_->setText(present ? Q(Format(Pente(etude.resultats.Profil[point].AngleTangent), "0.00")) : QString());
    dessin_->Peint([dessine = vue_.dessine, angle](Dessin& dessin) { dessine(dessin, angle); });
}

void PanneauRotation::EntreAngle() {
    const double angle = texteAngle_->Valeur();
    // Only an angle of the cam's turns can be shown.
    if (angle < 0.0 || angle > angle_->maximum()) texteAngle_->Montre(0);
    angle_->setValue(static_cast<int>(Arrondi(texteAngle_->Valeur())));
    texteAngle_->Montre(angle_->value());
}

bool PanneauRotation::RotationEnCours() const {
    return etude.resultats.RotationEnCours != Faux;
}

void PanneauRotation::Tourne() {
    arret_->setEnabled(true);
    tourner_->setEnabled(false);
    arret_->setFocus();
    etude.resultats.RotationEnCours = Vrai;
    ArmePas();
}

void PanneauRotation::ArmePas() {
    // The right end is the fastest: the next step follows as soon as the drawing is done.
    if (pasRegle_) return pas_->start(DelaiPas);
    const double delaiRotation = (vitesse_->maximum() - vitesse_->value()) / 10.0;
    pas_->start(static_cast<int>(std::lround(delaiRotation * 1000.0)));
}

int PanneauRotation::Pas() const {
    return pasRegle_ ? vitesse_->value() : PasRotation;
}

void PanneauRotation::Avance() {
    if (!RotationEnCours()) return;
    const int angle = angle_->value();
    if (!sensTrigo_) {
        angle_->setValue(angle < angle_->maximum() - Pas() ? angle + Pas() : angle_->minimum());
    } else {
        angle_->setValue(angle > angle_->minimum() + Pas() ? angle - Pas() : angle_->maximum());
    }
    ArmePas();
}

void PanneauRotation::Arrete() {
    pas_->stop();
    etude.resultats.RotationEnCours = Faux;
    arret_->setEnabled(false);
    tourner_->setEnabled(true);
}
