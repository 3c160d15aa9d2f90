#include "widgets/BoutonImage.h"

#include "widgets/DessinQt.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <utility>

namespace {

// Layout of a picture, pixels.
constexpr int Marge = 8;
constexpr int Souleve = 3; ///< how far it rises
constexpr double RayonCoin = 4;
constexpr double OpaciteInactif = 0.35;
constexpr int Cadrage = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap; ///< of the name

} // namespace

BoutonImage::BoutonImage(std::function<void(Dessin&)> dessine, QSize taille, QWidget* parent)
    : QAbstractButton(parent), dessine_(std::move(dessine)), taille_(taille) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum); // as high as its neighbour with the longer name
    setAttribute(Qt::WA_Hover);
}

QSize BoutonImage::sizeHint() const {
    // Two lines hold every delivered name; a language that a user has added may take more.
    const QRect place(0, 0, taille_.width() - 2 * Marge - 1, QWIDGETSIZE_MAX);
    const int texte = fontMetrics().boundingRect(place, Cadrage, text()).height();
    return {taille_.width() + 2 * Souleve,
            taille_.height() + std::max(texte, 2 * fontMetrics().lineSpacing()) + 3 * Marge + 2 * Souleve};
}

QRectF BoutonImage::Carte() const {
    return QRectF(rect()).adjusted(Souleve, Souleve, -Souleve - 0.5, -Souleve - 0.5);
}

QRectF BoutonImage::PlaceTexte() const {
    return Carte().adjusted(Marge, taille_.height() + Marge, -Marge, 0);
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
    const bool leve = isEnabled() && hasFocus() && !isDown();
    QRectF carte = Carte();
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
                 QRectF(carte.x() + Marge, carte.y() + Marge, carte.width() - 2 * Marge, taille_.height() - Marge));
    if (!isEnabled()) peintre.setOpacity(OpaciteInactif);
    peintre.setPen(palette().color(QPalette::Active, QPalette::Text));
    peintre.drawText(PlaceTexte().translated(carte.topLeft() - Carte().topLeft()), Cadrage, text());
}

void BoutonImage::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(evenement);
}

// The focus follows the pointer, so that never two pictures are raised.
void BoutonImage::enterEvent(QEnterEvent* evenement) {
    QAbstractButton::enterEvent(evenement);
    if (isEnabled()) setFocus(Qt::MouseFocusReason);
}

void BoutonImage::leaveEvent(QEvent* evenement) {
    QAbstractButton::leaveEvent(evenement);
    clearFocus();
}

void BoutonImage::focusInEvent(QFocusEvent* evenement) {
    QAbstractButton::focusInEvent(evenement);
    emit Leve(true);
}

void BoutonImage::focusOutEvent(QFocusEvent* evenement) {
    QAbstractButton::focusOutEvent(evenement);
    emit Leve(false);
}
