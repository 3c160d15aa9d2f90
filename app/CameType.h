// The chooser of a new study: a tab sheet of pictures, one a kind of cam.
#pragma once

#include "platform/Dessin.h"

#include <QDialog>

#include <span>

/// A kind of study that can be begun.
struct ChoixEtude {
    const char* image; ///< control name of its picture
    int onglet;        ///< family, from 0
    void (*dessine)(Dessin&);
    const char* typeCame; ///< `TypeCame` it sets, a kind of cam; none for a calculator, which leaves it as it is
    // Of a calculator; the row of the kind says it of a cam.
    int texteCalculateur = 0;
    const char* ecranCalculateur = "";

    int Texte() const;         ///< text number of its name
    const char* Ecran() const; ///< data screen it opens
    bool Disponible() const;   ///< that screen is built
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
