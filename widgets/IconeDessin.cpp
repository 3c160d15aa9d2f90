#include "widgets/IconeDessin.h"

#include "widgets/DessinQt.h"
#include "widgets/MoteurImage.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <utility>

namespace {

class MoteurDessin : public MoteurImage {
public:
    MoteurDessin(std::function<void(Dessin&)> dessine, QSize taille) : dessine_(std::move(dessine)), taille_(taille) {}

    void paint(QPainter* peintre, const QRect& cadre, QIcon::Mode mode, QIcon::State) override {
        peintre->save();
        if (mode == QIcon::Disabled) peintre->setOpacity(OpaciteInactif);
        const double echelle = std::max(1.0, static_cast<double>(cadre.width()) / taille_.width());
        peintre->translate(cadre.topLeft());
        peintre->scale(echelle, echelle);
        {
            DessinQt dessin(*peintre, QRectF(QPointF(0, 0), QSizeF(cadre.size()) / echelle),
                            QGuiApplication::palette());
            dessine_(dessin);
        }
        peintre->restore();
    }

    QIconEngine* clone() const override { return new MoteurDessin(*this); }

private:
    std::function<void(Dessin&)> dessine_;
    QSize taille_;
};

} // namespace

QIcon IconeDessin(std::function<void(Dessin&)> dessine, QSize taille) {
    return QIcon(new MoteurDessin(std::move(dessine), taille));
}
