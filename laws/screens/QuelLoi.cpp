#include "laws/screens/QuelLoi.h"

#include "laws/CalculLois.h"
#include "laws/ChoixLois.h"
#include "laws/DessinLoi.h"
#include "widgets/BoutonImage.h"
#include "widgets/CesseEcoute.h"
#include "widgets/Chaines.h"
#include "widgets/Etiquettes.h"
#include "widgets/Legendes.h"
#include "widgets/Nomme.h"
#include "widgets/ZoneDessin.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QPushButton>

namespace {

constexpr QSize TailleImage(168, 104);
constexpr long PasImage = 160;
constexpr int Colonnes = 5, ColonnesSpe = 4;

constexpr Legende legendes[] = {{"QuelLoi", 0, 319}, {"Label1", 0, 322}, {"Quitter", 0, 12}};
constexpr Legende legendesSpe[] = {{"QuelLoiSpe", 0, 323}, {"Label1", 0, 322}, {"Quitter", 0, 12}};

bool Usuelles(const QObject& ecran) {
    return ecran.objectName() == QLatin1String("QuelLoi");
}

} // namespace

QuelLoi::QuelLoi(const char* nom, QWidget* parent) : QDialog(parent) {
    setObjectName(QString::fromLatin1(nom));
    auto* images = Nomme(new QWidget, "Picture1");
    auto* grille = new QGridLayout(images);
    grille->setContentsMargins({});
    AjouteImages(*grille);

    auto* quitter = Nomme(new QPushButton, "Quitter");
    quitter->setAutoDefault(false);
    connect(quitter, &QPushButton::clicked, this, &QDialog::reject);
    auto* pied = new QHBoxLayout;
    pied->addWidget(quitter);
    pied->addStretch();
    if (Usuelles(*this)) pied->addWidget(FaitCoefficients());

    auto* noms = Nomme(new ZoneDessin, "NomsCourbes");
    noms->Peint(DessineNomsCourbes);
    noms->setFixedSize(384, 24);
    auto* tete = new QHBoxLayout;
    tete->addWidget(FaitEtiquette("Label1"));
    tete->addStretch();
    tete->addWidget(noms);

    auto* colonne = new QVBoxLayout(this);
    colonne->addLayout(tete);
    colonne->addWidget(images);
    colonne->addLayout(pied);
    colonne->setSizeConstraint(QLayout::SetFixedSize);
    if (Usuelles(*this))
        AppliqueLegendes(*this, legendes);
    else
        AppliqueLegendes(*this, legendesSpe);
    findChild<BoutonImage*>()->setFocus();
}

QuelLoi::~QuelLoi() {
    CesseEcoute(*this);
}

void QuelLoi::AjouteImages(QGridLayout& grille) {
    const Tableau<Loi> catalogue = LitLois();
    const int colonnes = Usuelles(*this) ? Colonnes : ColonnesSpe;
    int place = 0;
    for (const ChoixLoi& choix : LesChoixLois()) {
        if (objectName() != QLatin1String(choix.chooser)) continue;
        auto* image = new BoutonImage(
            [table = TableChoix(choix, catalogue, PasImage)](Dessin& dessin) { DessineLoi(dessin, table); },
            TailleImage);
        image->setObjectName(QString::fromLatin1(choix.image));
        image->setText(QTexte(choix.texte));
        connect(image, &BoutonImage::Leve, this,
                [this, &choix](bool leve) { MontreCoefficients(leve ? &choix : nullptr); });
        connect(image, &BoutonImage::clicked, this, [this, &choix] {
            choisi_ = &choix;
            accept();
        });
        grille.addWidget(image, place / colonnes, place % colonnes);
        ++place;
    }
}

QWidget* QuelLoi::FaitCoefficients() {
    auto* cadre = new QWidget;
    auto* rangee = new QHBoxLayout(cadre);
    rangee->setContentsMargins({});
    coefAccel_ = FaitValeur("Label15", "000.0000");
    coefVitesse_ = FaitValeur("Label16", "000.0000");
    rangee->addWidget(new QLabel(QTexte(320)));
    rangee->addWidget(coefAccel_);
    rangee->addSpacing(24);
    rangee->addWidget(new QLabel(QTexte(321)));
    rangee->addWidget(coefVitesse_);
    return cadre;
}

void QuelLoi::MontreCoefficients(const ChoixLoi* choix) {
    if (coefAccel_ == nullptr) return;
    coefAccel_->setText(choix == nullptr ? QString() : QString::fromLatin1(choix->coefAccel));
    coefVitesse_->setText(choix == nullptr ? QString() : QString::fromLatin1(choix->coefVitesse));
}
