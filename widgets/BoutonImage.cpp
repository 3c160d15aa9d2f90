#include "widgets/BoutonImage.h"

#include "widgets/DessinQt.h"

#include <QImage>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace {

// Layout of a picture, pixels.
constexpr int Marge = 8;
constexpr int Souleve = 3; ///< how far it rises
constexpr double RayonCoin = 4;
constexpr int Cadrage = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap; ///< of the name

/// Works on a picture in memory only, so that any thread may do it.
QImage DessineImage(const std::function<void(Dessin&)>& dessine, const QSizeF& taille, double finesse,
                    const QPalette& couleurs) {
    QImage surface(QSize(static_cast<int>(std::ceil(taille.width() * finesse)),
                         static_cast<int>(std::ceil(taille.height() * finesse))),
                   QImage::Format_RGB32);
    surface.setDevicePixelRatio(finesse);
    surface.fill(couleurs.color(QPalette::Base));
    {
        QPainter peintre(&surface);
        DessinQt dessin(peintre, QRectF(QPointF(0, 0), taille), couleurs);
        dessine(dessin);
    }
    return surface.copy(); // what was painted on keeps the painter's buffers, larger than the picture itself
}

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

QRectF BoutonImage::PlaceTexte() const {
    return Carte(size()).adjusted(Marge, taille_.height() + Marge, -Marge, 0);
}

const QPixmap& BoutonImage::Image(const QSizeF& taille) {
    if (preparee_.valid()) image_ = QPixmap::fromImage(preparee_.get());
    const double finesse = devicePixelRatioF();
    if (taille != tailleImage_ || image_.devicePixelRatio() != finesse)
        image_ = QPixmap::fromImage(DessineImage(dessine_, taille, finesse, palette()));
    tailleImage_ = taille;
    return image_;
}

QRectF BoutonImage::Carte(const QSize& taille) {
    return QRectF(QPointF(0, 0), taille).adjusted(Souleve, Souleve, -Souleve - 0.5, -Souleve - 0.5);
}

QRectF BoutonImage::CadreImage(const QRectF& carte) const {
    return {carte.x() + Marge, carte.y() + Marge, carte.width() - 2 * Marge, taille_.height() - 1.0 * Marge};
}

std::function<void()> BoutonImage::Prepare() {
    tailleImage_ = CadreImage(Carte({taille_.width() + 2 * Souleve, taille_.height()})).size();
    const auto image = std::make_shared<std::packaged_task<QImage()>>(
        [dessine = dessine_, taille = tailleImage_, finesse = devicePixelRatioF(), couleurs = palette()] {
            return DessineImage(dessine, taille, finesse, couleurs);
        });
    preparee_ = image->get_future();
    return [image] { (*image)(); };
}

void BoutonImage::paintEvent(QPaintEvent*) {
    const bool leve = isEnabled() && hasFocus() && !isDown();
    QRectF carte = Carte(size());
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

    // Faded as a whole: shapes faded one by one would show through each other.
    if (!isEnabled()) peintre.setOpacity(OpaciteInactif);
    const QRectF cadre = CadreImage(carte);
    peintre.drawPixmap(cadre.topLeft(), Image(cadre.size()));
    peintre.setPen(palette().color(QPalette::Active, QPalette::Text));
    peintre.drawText(PlaceTexte().translated(carte.topLeft() - Carte(size()).topLeft()), Cadrage, text());
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

void BoutonImage::changeEvent(QEvent* evenement) {
    QAbstractButton::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange || evenement->type() == QEvent::FontChange) tailleImage_ = {};
}
