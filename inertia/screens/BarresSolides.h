// The solids to choose from: three buttons, each with a menu of its group, and the tool bar of pictures of one group.
#pragma once

#include "inertia/Solides.h"

#include <QWidget>

#include <array>

class QActionGroup;
class QMenu;
class QStackedWidget;
class QToolBar;
class QToolButton;

class BarresSolides : public QWidget {
    Q_OBJECT

public:
    explicit BarresSolides(QWidget* parent = nullptr);

    /// Shows the tool bar of a kind's group, and the kind as the one in use.
    void Montre(const GenreSolide& genre);

    /// The captions in the working language.
    void AppliqueTextes();

    /// The row of the buttons, where others may stand beside them.
    QLayout* Boutons() const { return boutons_; }

signals:
    void Choisi(int TypeSolide);

private:
    struct Groupe {
        QToolButton* bouton;
        QMenu* menu;
        QToolBar* barre;
    };

    void AjouteGroupe(std::size_t rang);
    void AjouteSolide(Groupe& groupe, const GenreSolide& genre);
    void MontreGroupe(std::size_t rang);

    std::array<Groupe, 3> groupes_{};
    QStackedWidget* barres_;
    QLayout* boutons_;
    QActionGroup* solides_; ///< one action a kind, for the menu and the tool bar alike
};
