#include "app/CameType.h"

#include "app/Aide.h"
#include "app/DessinsCames.h"
#include "app/Ecrans.h"
#include "widgets/Chaines.h"
#include "widgets/DessinQt.h"
#include "widgets/Legendes.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
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

// Layout of a picture, pixels.
constexpr int LargeurImage = 216;
constexpr int HauteurDessin = 156;
constexpr int Marge = 8;
constexpr int Souleve = 3; ///< how far it rises
constexpr double RayonCoin = 4;
constexpr double OpaciteInactif = 0.35;

} // namespace

std::span<const ChoixEtude> LesChoixEtude() {
    return LesChoix;
}

BoutonImage::BoutonImage(void (*dessine)(Dessin&), QWidget* parent) : QAbstractButton(parent), dessine_(dessine) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

QSize BoutonImage::sizeHint() const {
    // Two lines hold every name.
    return {LargeurImage + 2 * Souleve, HauteurDessin + 2 * fontMetrics().lineSpacing() + 3 * Marge + 2 * Souleve};
}

void BoutonImage::DessineImage(QPainter& peintre, const QRectF& cadre) {
    if (isEnabled()) {
        DessinQt dessin(peintre, cadre, palette());
        dessine_(dessin);
        return;
    }
    // Faded as a whole: shapes faded one by one would show through each other.
    QPixmap image((cadre.size() * devicePixelRatioF()).toSize());
    image.setDevicePixelRatio(devicePixelRatioF());
    image.fill(palette().color(QPalette::Base));
    QPainter surImage(&image);
    {
        DessinQt dessin(surImage, QRectF(QPointF(0, 0), cadre.size()), palette());
        dessine_(dessin);
    }
    surImage.end();
    peintre.save();
    peintre.setOpacity(OpaciteInactif);
    peintre.drawPixmap(cadre.topLeft(), image);
    peintre.restore();
}

void BoutonImage::paintEvent(QPaintEvent*) {
    const bool leve = isEnabled() && (underMouse() || hasFocus()) && !isDown();
    QRectF carte = QRectF(rect()).adjusted(Souleve, Souleve, -Souleve - 0.5, -Souleve - 0.5);
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    if (leve) {
        peintre.setPen(Qt::NoPen);
        peintre.setBrush(palette().color(QPalette::Shadow));
        peintre.setOpacity(0.3);
        peintre.drawRoundedRect(carte.translated(Souleve - 1, Souleve - 1), RayonCoin, RayonCoin);
        peintre.setOpacity(1);
        carte.translate(-Souleve + 1, -Souleve + 1);
    }
    peintre.setPen(QPen(palette().color(leve ? QPalette::Highlight : QPalette::Mid), leve ? 2 : 1));
    peintre.setBrush(palette().color(QPalette::Base));
    peintre.drawRoundedRect(carte, RayonCoin, RayonCoin);

    DessineImage(peintre,
                 QRectF(carte.x() + Marge, carte.y() + Marge, carte.width() - 2 * Marge, HauteurDessin - Marge));
    if (!isEnabled()) peintre.setOpacity(OpaciteInactif);
    const double haut = carte.y() + HauteurDessin + Marge;
    peintre.setPen(palette().color(QPalette::Active, QPalette::Text));
    peintre.drawText(QRectF(carte.x() + Marge, haut, carte.width() - 2 * Marge, carte.bottom() - haut),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text());
}

void BoutonImage::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(evenement);
}

void BoutonImage::enterEvent(QEnterEvent* evenement) {
    QAbstractButton::enterEvent(evenement);
    update();
}

void BoutonImage::leaveEvent(QEvent* evenement) {
    QAbstractButton::leaveEvent(evenement);
    update();
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
        auto* image = new BoutonImage(choix.dessine);
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
