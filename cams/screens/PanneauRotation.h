// The sheet of the turning cam: the drawing, the angle shown, and the rotation both ways.
#pragma once

#include "platform/Dessin.h"

#include <QWidget>

#include <string>

class ChampNombre;
class QLabel;
class QPushButton;
class QScrollBar;
class QSlider;
class QTimer;
class QToolBar;
class ZoneDessin;

class PanneauRotation : public QWidget {
    Q_OBJECT

public:
    /// @param dessin control name of the drawing
    /// @param pasRegle the slider sets the step and not the delay between steps
    explicit PanneauRotation(const char* dessin = "Picture6", bool pasRegle = false, QWidget* parent = nullptr);
    ~PanneauRotation() override;

    /// What turns: its drawing at a cam angle in degrees, and how far it can be brought.
    struct Vue {
        void (*dessine)(Dessin& dessin, double angle);
        int dernierAngle;
        bool couchee; ///< a developed cam lies still: what moves over it is the roller
        /// The slope of the profile at a point, as it is shown, where the record does not hold it.
        std::string (*pente)(long point) = nullptr;
    };

    /// Shows the present results, at the angle shown before.
    void Montre(const Vue& vue);

    bool RotationEnCours() const;
    void Arrete();

private:
    void FaitCommandes(class QBoxLayout& disposition);
    void MontreAngle(int angle);
    void EntreAngle();
    void Tourne();
    void Avance();
    void ArmePas();
    int Pas() const;

    Vue vue_{};
    ZoneDessin* dessin_;
    QScrollBar* angle_;
    ChampNombre* texteAngle_;
    QLabel* pression_;
    QPushButton *tourner_, *arret_;
    QSlider* vitesse_;
    QTimer* pas_;
    bool sensTrigo_ = false;
    bool pasRegle_;
};
