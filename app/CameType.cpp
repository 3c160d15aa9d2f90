#include "app/CameType.h"

#include "app/Aide.h"
#include "app/Ecrans.h"
#include "drawing/DessinsCames.h"
#include "widgets/BoutonImage.h"
#include "widgets/Chaines.h"
#include "widgets/Legendes.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr std::array<ChoixEtude, 8> LesChoix{{
    {"Image1", 0, 85, "Angulaire", "DatoCama", DessineCamePlateBras},
    {"Image2", 0, 86, "Lineaire", "DoProfil", DessineCamePlateTranslation},
    {"Image11", 0, 642, "ConjuguesOscillation", "CamesConjugeesOscillation", DessineCamesConjuguees},
    {"Image3", 1, 87, "Cylindrique", "DoCyl", DessineCameCylindriqueTranslation},
    {"Image7", 1, 527, "Oscillation", "DoCylOsc", DessineCameCylindriqueBras},
    {"Image9", 1, 148, nullptr, "CylindriqueIndexeur", DessineIndexeurCylindrique},
    {"Image6", 2, 93, nullptr, "GlobiqueOscillateur", DessineOscillateurGlobique},
    {"Image8", 2, 92, nullptr, "GlobiqueIndexeur", DessineIndexeurGlobique},
}};

constexpr int NombreOnglets = 3;

constexpr Legende LesLegendes[] = {{"CameType", 0, 142}, {"Label1", 0, 146}, {"SSTab1", 0, 143},
                                   {"SSTab1", 1, 144},   {"SSTab1", 2, 145}, {"Quitter", 0, 12}};

constexpr QSize TailleImage(216, 156);

} // namespace

std::span<const ChoixEtude> LesChoixEtude() {
    return LesChoix;
}

CameType::CameType(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("CameType"));
    auto* invite = new QLabel;
    invite->setObjectName(QStringLiteral("Label1"));
    auto* onglets = new QTabWidget;
    onglets->setObjectName(QStringLiteral("SSTab1"));
    for (int onglet = 0; onglet < NombreOnglets; ++onglet) onglets->addTab(FaitOnglet(onglet), QString());
    auto* quitter = new QPushButton;
    quitter->setObjectName(QStringLiteral("Quitter"));
    quitter->setAutoDefault(false);
    connect(quitter, &QPushButton::clicked, this, &QDialog::reject);

    auto* boutons = new QHBoxLayout;
    boutons->addWidget(quitter);
    boutons->addStretch();
    auto* colonne = new QVBoxLayout(this);
    colonne->addWidget(invite);
    colonne->addWidget(onglets);
    colonne->addLayout(boutons);
    colonne->setSizeConstraint(QLayout::SetFixedSize);
    AppliqueLegendes(*this, LesLegendes);
    AjouteAide(*this);
    findChild<BoutonImage*>(QString::fromLatin1(LesChoix.front().image))->setFocus();
}

QWidget* CameType::FaitOnglet(int onglet) {
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("Picture%1").arg(onglet + 1));
    auto* rangee = new QHBoxLayout(page);
    for (const ChoixEtude& choix : LesChoix) {
        if (choix.onglet != onglet) continue;
        auto* image = new BoutonImage(choix.dessine, TailleImage);
        image->setObjectName(QString::fromLatin1(choix.image));
        image->setText(QTexte(choix.texte));
        image->setEnabled(TrouveEcran(choix.ecran) != nullptr);
        connect(image, &BoutonImage::clicked, this, [this, &choix] {
            choisi_ = &choix;
            accept();
        });
        rangee->addWidget(image);
    }
    rangee->addStretch();
    return page;
}
