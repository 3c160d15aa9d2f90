#include "app/Propos.h"

#include "app/Version.h"
#include "drawing/DessinsCames.h"
#include "widgets/Chaines.h"
#include "widgets/Legendes.h"
#include "widgets/ZoneDessin.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int TexteVersion = 9;
constexpr int LargeurTexte = 300; ///< pixels, at which the description wraps

constexpr Legende LesLegendes[] = {{"Propos", 0, 84}, {"Label1", 0, 149}, {"Label3", 0, 150}, {"Ok", 0, 3}};

QLabel* FaitEtiquette(const char* nom) {
    auto* etiquette = new QLabel;
    etiquette->setObjectName(QString::fromLatin1(nom));
    etiquette->setWordWrap(true);
    etiquette->setMinimumWidth(LargeurTexte);
    return etiquette;
}

} // namespace

Propos::Propos(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("Propos"));
    auto* dessin = new ZoneDessin;
    dessin->setObjectName(QStringLiteral("Picture1"));
    dessin->setFixedSize(260, 200);
    dessin->Peint(DessineCamePlateBras);

    auto* nom = FaitEtiquette("NomProgramme");
    nom->setText(QCoreApplication::applicationName());
    QFont grande = nom->font();
    grande.setPointSizeF(grande.pointSizeF() * 2);
    grande.setBold(true);
    nom->setFont(grande);
    auto* version = FaitEtiquette("Label2");
    version->setText(QTexte(TexteVersion) + " " + QString::fromLatin1(VersionProgramme));
    auto* ok = new QPushButton;
    ok->setObjectName(QStringLiteral("Ok"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* grille = new QGridLayout(this);
    grille->addWidget(dessin, 0, 0, 5, 1);
    grille->addWidget(nom, 0, 1);
    grille->addWidget(version, 1, 1);
    grille->addWidget(FaitEtiquette("Label1"), 2, 1);
    grille->addWidget(FaitEtiquette("Label3"), 3, 1);
    grille->setRowStretch(4, 1);
    grille->addWidget(ok, 5, 1, Qt::AlignRight);
    grille->setHorizontalSpacing(18);
    AppliqueLegendes(*this, LesLegendes);
    grille->setSizeConstraint(QLayout::SetFixedSize);
}
