// The drawing interface on a QPainter. Coordinates are pixels from the upper left corner of a rectangle of the painter.
#pragma once

#include "platform/Dessin.h"

#include <QColor>
#include <QPalette>
#include <QPointF>
#include <QRectF>

#include <span>
#include <vector>

class QPainter;

/// How much of a drawing is left that cannot be chosen.
inline constexpr double OpaciteInactif = 0.35;

/// Colour of a stroke on a sheet of this palette; the contrast is good on a light and on a dark sheet.
QColor CouleurTrait(Couleur couleur, const QPalette& palette);

class DessinQt : public Dessin {
public:
    /// The painter must outlive this object, which leaves it as it found it.
    DessinQt(QPainter& peintre, const QRectF& cadre, const QPalette& palette);
    ~DessinQt() override;
    DessinQt(const DessinQt&) = delete;
    DessinQt& operator=(const DessinQt&) = delete;

    double Largeur() const override { return cadre_.width(); }
    double Hauteur() const override { return cadre_.height(); }

    void Ligne(PointDessin de, PointDessin a, const Trait& trait) override;
    void Polyligne(std::span<const PointDessin> points, const Trait& trait) override;
    void Surface(std::span<const PointDessin> points, const Trait& trait) override;
    void Cercle(PointDessin centre, double rayon, const Trait& trait) override;
    void Disque(PointDessin centre, double rayon, const Trait& trait) override;
    void Texte(PointDessin p, const std::string& texte, Ancrage ancrage, double hauteur,
               Couleur couleur = Couleur::Texte) override;
    double LargeurTexte(const std::string& texte, double hauteur) const override;

private:
    /// @param longueur of the stroke that follows
    void PrendTrait(const Trait& trait, double longueur);
    void PrendTeinte(Couleur couleur);
    const std::vector<QPointF>& Allege(std::span<const PointDessin> points);
    QFont Police(double hauteur) const;

    QPainter& peintre_;
    QRectF cadre_;
    QPalette palette_;
    double ecartMin_;
    std::vector<QPointF> points_; ///< the points kept of the polyline being drawn; the room is used again
};
