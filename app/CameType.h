// The chooser of a new study: a tab sheet of pictures, one a kind of cam.
#pragma once

#include "platform/Dessin.h"

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
