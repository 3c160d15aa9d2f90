// A picture that is a button: it rises under the pointer or with the focus, Return and Space choose it.
#pragma once

#include "platform/Dessin.h"

#include <QAbstractButton>

#include <functional>

class BoutonImage : public QAbstractButton {
    Q_OBJECT

public:
    /// @param taille room of the drawing, pixels; the text stands below it
    BoutonImage(std::function<void(Dessin&)> dessine, QSize taille, QWidget* parent = nullptr);

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

private:
    QRectF Carte() const;
    void DessineImage(QPainter& peintre, const QRectF& cadre);

    std::function<void(Dessin&)> dessine_;
    QSize taille_;
};
