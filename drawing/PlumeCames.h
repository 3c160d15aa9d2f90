// A pen for the drawings of cams: a window of 120 by 90, y upwards and the origin in its middle, laid as large as it
// fits on the surface.
#pragma once

#include "platform/Dessin.h"

#include <vector>

/// A point of a drawing, before it is laid on the surface.
struct PointFigure {
    double x = 0;
    double y = 0;
};

class PlumeCames {
public:
    static constexpr double Largeur = 120;
    static constexpr double Hauteur = 90;

    explicit PlumeCames(Dessin& dessin);

    void Ligne(PointFigure de, PointFigure a, Couleur couleur, bool pointille = false);
    void Courbe(const std::vector<PointFigure>& points, Couleur couleur, bool pointille = false);
    void Surface(const std::vector<PointFigure>& points, Couleur couleur);
    void Disque(PointFigure centre, double rayon, Couleur couleur);
    void Cercle(PointFigure centre, double rayon, Couleur couleur, bool pointille = false);

    /// A link: the outline around two discs.
    void Biellette(PointFigure a, double rayonA, PointFigure b, double rayonB, Couleur couleur);
    /// A fixed pivot: a disc with its centre mark.
    void Pivot(PointFigure centre, double rayon);
    /// Hatched ground below a segment; the hatches lie on its right-hand side, seen from `de` to `a`.
    void Bati(PointFigure de, PointFigure a);
    /// An arc with an arrow head at its end, or at both, angles in degrees against the clock.
    void Fleche(PointFigure centre, double rayon, double debut, double fin, bool deuxPointes = false);
    /// A line with an arrow head at each end.
    void FlecheDouble(const std::vector<PointFigure>& points);

private:
    PointDessin Place(PointFigure p) const { return {x0_ + p.x * echelle_, y0_ - p.y * echelle_}; }
    std::vector<PointDessin> Place(const std::vector<PointFigure>& points) const;
    Trait Style(Couleur couleur, bool pointille = false) const { return {couleur, epaisseur_, pointille}; }
    void Pointe(PointFigure de, PointFigure p);

    Dessin& dessin_;
    double echelle_;
    double epaisseur_;
    double x0_, y0_;
};

/// Outline of the convex hull of some points.
std::vector<PointFigure> Enveloppe(std::vector<PointFigure> points);
