// A picture that is a button: it rises under the pointer or with the focus, Return and Space choose it.
#pragma once

#include "platform/Dessin.h"

#include <QAbstractButton>
#include <QPixmap>

#include <functional>
#include <future>

class BoutonImage : public QAbstractButton {
    Q_OBJECT

public:
    /// @param taille room of the drawing, pixels; the text stands below it
    BoutonImage(std::function<void(Dessin&)> dessine, QSize taille, QWidget* parent = nullptr);

    /// The drawing of the picture in the size that the button asks for, to be done on any thread before the button is
    /// shown for the first time: its showing waits for it.
    std::function<void()> Prepare();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    /// Where its name stands, wrapped, pixels.
    QRectF PlaceTexte() const;

signals:
    void Leve(bool leve); ///< the picture rises, or lies down again

protected:
    void paintEvent(QPaintEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void enterEvent(QEnterEvent* evenement) override;
    void leaveEvent(QEvent* evenement) override;
    void focusInEvent(QFocusEvent* evenement) override;
    void focusOutEvent(QFocusEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

private:
    /// The card of a button of this size, lying down.
    static QRectF Carte(const QSize& taille);
    QRectF CadreImage(const QRectF& carte) const;
    /// The drawing on the sheet's colour; drawn anew only when its size or the colours have changed.
    const QPixmap& Image(const QSizeF& taille);

    std::function<void(Dessin&)> dessine_;
    QSize taille_;
    QPixmap image_;
    QSizeF tailleImage_;
    std::future<QImage> preparee_;
};
