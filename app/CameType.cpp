#include "app/CameType.h"

#include "app/Ecrans.h"
#include "drawing/DessinsCames.h"
#include "studies/TypesEtude.h"
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

constexpr std::array<ChoixEtude, 9> LesChoix{{
    {"Image1", 0, DessineCamePlateBras, "Angulaire"},
    {"Image2", 0, DessineCamePlateTranslation, "Lineaire"},
    {"Image11", 0, DessineCamesConjuguees, "ConjuguesOscillation"},
    {"Image10", 0, DessineIndexeurConjugue, nullptr, 422, "CamesConjugueesIndexeur"},
    {"Image3", 1, DessineCameCylindriqueTranslation, "Cylindrique"},
    {"Image7", 1, DessineCameCylindriqueBras, "Oscillation"},
    {"Image9", 1, DessineIndexeurCylindrique, nullptr, 148, "CylindriqueIndexeur"},
    {"Image6", 2, DessineOscillateurGlobique, nullptr, 93, "GlobiqueOscillateur"},
    {"Image8", 2, DessineIndexeurGlobique, nullptr, 92, "GlobiqueIndexeur"},
}};

constexpr int NombreOnglets = 3;

constexpr Legende LesLegendes[] = {{"CameType", 0, 142}, {"Label1", 0, 146}, {"SSTab1", 0, 143},
                                   {"SSTab1", 1, 144},   {"SSTab1", 2, 145}, {"Quitter", 0, 12}};

constexpr QSize TailleImage(216, 156);

} // namespace

std::span<const ChoixEtude> LesChoixEtude() {
    return LesChoix;
}

int ChoixEtude::Texte() const {
    return typeCame == nullptr ? texteCalculateur : TrouveType(typeCame)->titre;
}

const char* ChoixEtude::Ecran() const {
    return typeCame == nullptr ? ecranCalculateur : TrouveType(typeCame)->ecranSaisie;
}

bool ChoixEtude::Disponible() const {
    return TrouveEcran(Ecran()) != nullptr;
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
        image->setText(QTexte(choix.Texte()));
        image->setEnabled(choix.Disponible());
        connect(image, &BoutonImage::clicked, this, [this, &choix] {
            choisi_ = &choix;
            accept();
        });
        rangee->addWidget(image);
    }
    rangee->addStretch();
    return page;
}
