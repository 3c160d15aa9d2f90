// The chooser of a new study: a tab sheet of pictures, one a kind of cam.
#pragma once

#include "platform/Dessin.h"

#include <QAbstractButton>
#include <QDialog>

#include <span>

/// A kind of study that can be begun.
struct ChoixEtude {
    const char* image;    ///< control name of its picture
    int onglet;           ///< family, from 0
    int texte;            ///< text number of its name
    const char* typeCame; ///< `TypeCame` it sets; none leaves it as it is
    const char* ecran;    ///< data screen it opens
    void (*dessine)(Dessin&);
};

std::span<const ChoixEtude> LesChoixEtude();

/// A picture that is a button: it rises under the pointer and with the focus, Return and Space choose it.
class BoutonImage : public QAbstractButton {
    Q_OBJECT

public:
    explicit BoutonImage(void (*dessine)(Dessin&), QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void enterEvent(QEnterEvent* evenement) override;
    void leaveEvent(QEvent* evenement) override;

private:
    void DessineImage(QPainter& peintre, const QRectF& cadre);

    void (*dessine_)(Dessin&);
};

class CameType : public QDialog {
    Q_OBJECT

public:
    explicit CameType(QWidget* parent = nullptr);

    /// The kind that was chosen; none when the screen was left by `Quitter`.
    const ChoixEtude* Choisi() const { return choisi_; }

private:
    QWidget* FaitOnglet(int onglet);

    const ChoixEtude* choisi_ = nullptr;
};
