// The direction of gravity: one value in two forms, a scroll bar and a field, and an arrow that shows it.
#pragma once

#include "core/Champ.h"

#include <QGroupBox>

class ChampNombre;
class QScrollBar;
class ZoneDessin;

class PanneauPesanteur : public QGroupBox {
    Q_OBJECT

signals:
    void Modifie(); ///< the record has another angle

public:
    /// @param champ the angle; the scroll bar is `HScroll1`, the drawing `Picture6`.
    explicit PanneauPesanteur(const ChampLie& champ, QWidget* parent = nullptr);

    /// From the field to the record; a typed value outside 0..360 is cut back to the limit.
    void Lit();

    /// From the record to the field, whatever the value.
    void Montre();

    ChampNombre* Champ() const { return champ_; }

private:
    void Change(double angle);

    double& angle_;
    ChampNombre* champ_;
    QScrollBar* defilement_;
    ZoneDessin* dessin_;
};
