// A plain sheet on which a procedure draws through the drawing interface.
#pragma once

#include "platform/Dessin.h"

#include <QWidget>

#include <functional>

class ZoneDessin : public QWidget {
    Q_OBJECT

public:
    explicit ZoneDessin(QWidget* parent = nullptr);

    /// The procedure that draws this sheet from now on. A failure in it is told once, and leaves the sheet empty.
    void Peint(std::function<void(Dessin&)> procedure);

    /// Draws on another surface what stands on this sheet.
    void Redessine(Dessin& dessin) const {
        if (procedure_) procedure_(dessin);
    }

    /// The room it asks for where there is enough; less will do.
    void Prefere(QSize taille) { taille_ = taille; }

    QSize sizeHint() const override { return taille_; }
    QSize minimumSizeHint() const override { return {120, 90}; }

protected:
    void paintEvent(QPaintEvent* evenement) override;

private:
    std::function<void(Dessin&)> procedure_;
    QSize taille_{420, 320};
};
