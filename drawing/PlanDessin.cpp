#include "drawing/PlanDessin.h"

#include "core/Etude.h"

#include <algorithm>
#include <cmath>

namespace {

/// Where the origin of the plane stands when its middle is in the middle of the surface, below the band.
PointDessin Origine(const Dessin& dessin, const Etendue& e, double echelle, double bandeau) {
    return {dessin.Largeur() / 2 - echelle * (e.bas.x + e.haut.x) / 2,
            (dessin.Hauteur() + bandeau) / 2 + echelle * (e.bas.y + e.haut.y) / 2};
}

double EchelleQuiTient(const Dessin& dessin, const Etendue& e, double marge, double bandeau) {
    return std::max(0.0, std::min((dessin.Largeur() - 2 * marge) / e.Largeur(),
                                  (dessin.Hauteur() - bandeau - 2 * marge) / e.Hauteur()));
}

} // namespace

PlanDessin::PlanDessin(Dessin& dessin, const Etendue& etendue, double marge, double bandeau)
    : dessin_(dessin), echelle_(EchelleQuiTient(dessin, etendue, marge, bandeau)),
      x0_(Origine(dessin, etendue, echelle_, bandeau).x), y0_(Origine(dessin, etendue, echelle_, bandeau).y) {}

PlanDessin PlanDessin::AEchelle(Dessin& dessin, const Etendue& etendue, double echelle) {
    return {dessin, echelle, Origine(dessin, etendue, echelle, 0)};
}

void PlanDessin::Contour(std::span<const PointDessin> points, const Trait& t, bool plein, double radians) {
    const double c = std::cos(radians), s = std::sin(radians);
    std::vector<PointDessin> places;
    places.reserve(points.size());
    for (const PointDessin& p : points) places.push_back((*this)({c * p.x - s * p.y, s * p.x + c * p.y}));
    plein ? dessin_.Surface(places, t) : dessin_.Polyligne(places, t);
}

void PlanDessin::Fleche(PointDessin de, PointDessin vers, const Trait& t) {
    Ligne(de, vers, t);
    const double angle = std::atan2(vers.y - de.y, vers.x - de.x) * RadDeg;
    const double longueur = 7.0 / echelle_;
    for (const double ecart : {160.0, -160.0}) Ligne(vers, Polaire(vers, longueur, angle + ecart), t);
}

void PlanDessin::Cote(PointDessin a, PointDessin b, const Trait& t) {
    const PointDessin milieu{(a.x + b.x) / 2, (a.y + b.y) / 2};
    Fleche(milieu, a, t);
    Fleche(milieu, b, t);
}

PointDessin Polaire(PointDessin centre, double rayon, double degres) {
    return {centre.x + rayon * std::cos(degres / RadDeg), centre.y + rayon * std::sin(degres / RadDeg)};
}

PointDessin Tourne(PointDessin p, double radians) {
    const double c = std::cos(radians), s = std::sin(radians);
    return {c * p.x - s * p.y, s * p.x + c * p.y};
}

std::vector<PointDessin> Arc(PointDessin centre, double rayon, double de, double a) {
    std::vector<PointDessin> points;
    for (int i = 0; i <= 40; ++i) points.push_back(Polaire(centre, rayon, de + (a - de) * i / 40));
    return points;
}
