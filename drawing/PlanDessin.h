// A plane in mechanism units, y up, fitted into a drawing surface: what the sketches and the developed cams are drawn
// in.
#pragma once

#include "drawing/Etendue.h"
#include "platform/Dessin.h"

#include <span>
#include <string>
#include <vector>

class PlanDessin {
public:
    /// As large as it fits. @param etendue what must be seen
    /// @param marge free around it, `bandeau` free above it, in the unit of the surface
    PlanDessin(Dessin& dessin, const Etendue& etendue, double marge, double bandeau = 0);
    /// To a scale, in the middle of the surface. @param echelle units of the surface for one of the mechanism
    static PlanDessin AEchelle(Dessin& dessin, const Etendue& etendue, double echelle);

    PointDessin operator()(PointDessin p) const { return {x0_ + echelle_ * p.x, y0_ - echelle_ * p.y}; }
    /// Units of the surface for one of the mechanism.
    double Echelle() const { return echelle_; }

    void Ligne(PointDessin a, PointDessin b, const Trait& t) { dessin_.Ligne((*this)(a), (*this)(b), t); }
    void Cercle(PointDessin c, double r, const Trait& t) { dessin_.Cercle((*this)(c), r * echelle_, t); }
    void Disque(PointDessin c, double r, const Trait& t) { dessin_.Disque((*this)(c), r * echelle_, t); }
    void Nom(PointDessin p, const std::string& nom, Ancrage ancrage, bool accent) {
        dessin_.Texte((*this)(p), nom, ancrage, 13, accent ? Couleur::Repere : Couleur::Texte);
    }
    /// @param radians that the curve is turned about the origin, counter-clockwise
    void Contour(std::span<const PointDessin> points, const Trait& t, bool plein, double radians = 0);
    void Fleche(PointDessin de, PointDessin vers, const Trait& t);
    /// A dimension line with an arrow at both ends.
    void Cote(PointDessin a, PointDessin b, const Trait& t);

private:
    PlanDessin(Dessin& dessin, double echelle, PointDessin origine)
        : dessin_(dessin), echelle_(echelle), x0_(origine.x), y0_(origine.y) {}

    Dessin& dessin_;
    double echelle_, x0_, y0_;
};

/// The point at `rayon` from `centre` in a direction in degrees from the x axis, counter-clockwise.
PointDessin Polaire(PointDessin centre, double rayon, double degres);

/// `p` turned about the origin, counter-clockwise.
PointDessin Tourne(PointDessin p, double radians);

std::vector<PointDessin> Arc(PointDessin centre, double rayon, double de, double a);
