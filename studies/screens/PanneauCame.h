// The sheet of the turning cam: the drawing, the angle shown, and the rotation both ways.
#pragma once

#include <QWidget>

class ChampNombre;
class QLabel;
class QPushButton;
class QScrollBar;
class QSlider;
class QTimer;
class QToolBar;
class ZoneDessin;

class PanneauCame : public QWidget {
    Q_OBJECT

public:
    explicit PanneauCame(QWidget* parent = nullptr);
    ~PanneauCame() override;

    /// Shows the present results, at the angle shown before.
    void Montre();

    bool RotationEnCours() const;
    void Arrete();

private:
    void FaitCommandes(class QBoxLayout& disposition);
    void MontreAngle(int angle);
    void EntreAngle();
    void Tourne();
    void Avance();
    void ArmePas();

    ZoneDessin* dessin_;
    QScrollBar* angle_;
    ChampNombre* texteAngle_;
    QLabel* pression_;
    QPushButton *tourner_, *arret_;
    QSlider* vitesse_;
    QTimer* pas_;
    bool sensTrigo_ = false;
};
