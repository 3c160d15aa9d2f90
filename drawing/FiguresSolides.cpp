// Every figure stands in a window of 120 by 90, y up, origin in its middle. Bodies are seen from above: a level circle
// is an ellipse flattened by `Aplati`, and so is, sideways, the end of a lying cylinder.
#include "drawing/FiguresSolides.h"

#include "core/Etude.h"
#include "drawing/PlanDessin.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double Aplati = 0.3;
const Etendue VueCotes{{-60, -45}, {60, 45}}, VueCorps{{-46, -35}, {46, 35}}; ///< with the dimensions and without
constexpr Trait Corps{Couleur::Came, 1.5}, Arete{Couleur::Came, 1.0}, LigneAxe{Couleur::Repere, 1.0, true};
constexpr Trait LigneCote{Couleur::TexteDiscret, 1.0};

std::vector<PointDessin> Ellipse(PointDessin c, double a, double b, double de = 0, double jusque = 360) {
    std::vector<PointDessin> points;
    for (int i = 0; i <= 60; ++i) {
        const double angle = (de + (jusque - de) * i / 60) / RadDeg;
        points.push_back({c.x + a * std::cos(angle), c.y + b * std::sin(angle)});
    }
    return points;
}

/// A pen for bodies, axes and dimensions.
class Plume {
public:
    Plume(Dessin& dessin, const VueSolide& vue) : plan_(dessin, vue.cotes ? VueCotes : VueCorps, 1), vue_(vue) {}

    void Plein(const std::vector<PointDessin>& contour) { plan_.Contour(contour, Corps, true); }
    void Courbe(const std::vector<PointDessin>& points, const Trait& trait = Arete) {
        plan_.Contour(points, trait, false);
    }
    void Axe(PointDessin de, PointDessin a) { plan_.Ligne(de, a, LigneAxe); }
    /// The axis of rotation at `x`, above and below a body.
    void AxeAutour(double x, double bas, double haut) {
        Axe({x, haut}, {x, haut + 9});
        Axe({x, bas}, {x, bas - 7});
    }
    void Lettre(PointDessin p, const char* lettre, Ancrage ancrage = Ancrage::Centre) {
        if (vue_.cotes) plan_.Nom(p, lettre, ancrage, vue_.accent == lettre);
    }

    /// A level dimension at the height `y`; its lines come from the height `y0` of the body.
    void CoteNiveau(double x1, double x2, double y, double y0, const char* lettre) {
        if (!vue_.cotes) return;
        Attache({x1, y0}, {x1, y});
        Attache({x2, y0}, {x2, y});
        CoteEntre({x1, y}, {x2, y}, lettre, {0, y < y0 ? -5.5 : 5.5});
    }
    /// An upright dimension at `x`; its lines come from `x0`.
    void CoteDebout(double y1, double y2, double x, double x0, const char* lettre) {
        if (!vue_.cotes) return;
        Attache({x0, y1}, {x, y1});
        Attache({x0, y2}, {x, y2});
        CoteEntre({x, y1}, {x, y2}, lettre, {x < x0 ? -4.5 : 4.5, 0});
    }
    void CoteEntre(PointDessin a, PointDessin b, const char* lettre, PointDessin ecart) {
        if (!vue_.cotes) return;
        plan_.Cote(a, b, vue_.accent == lettre ? Trait{Couleur::Repere, 1.6} : LigneCote);
        Lettre({(a.x + b.x) / 2 + ecart.x, (a.y + b.y) / 2 + ecart.y}, lettre);
    }
    void Attache(PointDessin de, PointDessin a) {
        if (vue_.cotes) plan_.Ligne(de, a, LigneCote);
    }
    void Fleche(PointDessin de, PointDessin a) { plan_.Fleche(de, a, Arete); }
    void Point(PointDessin p, double rayon) { plan_.Disque(p, rayon, Corps); }
    void Pivot(PointDessin p) { plan_.Disque(p, 2, {Couleur::Repere, 1.2}); }

private:
    PlanDessin plan_;
    const VueSolide& vue_;
};

// ---- bodies

/// A frustum of the radii `r` below and `s` above, standing on `bas`.
void Fut(Plume& plume, PointDessin bas, double r, double s, double h) {
    const PointDessin haut{bas.x, bas.y + h};
    std::vector<PointDessin> contour = Ellipse(bas, r, r * Aplati, 180, 360);
    const std::vector<PointDessin> dessus = Ellipse(haut, s, s * Aplati, 0, 180);
    contour.insert(contour.end(), dessus.begin(), dessus.end());
    contour.push_back(contour.front());
    plume.Plein(contour);
    plume.Plein(Ellipse(haut, s, s * Aplati));
}

/// The opening of an upright tube: its rim and, through it, the far wall.
void Trou(Plume& plume, PointDessin haut, double s, double h) {
    plume.Courbe(Ellipse(haut, s, s * Aplati), Corps);
    const double profondeur = std::min(h, 1.2 * s * Aplati);
    plume.Courbe(Ellipse({haut.x, haut.y - profondeur}, s, s * Aplati, 25, 155));
}

/// A lying cylinder of the length l, its middle at `c`; the right end is seen.
void Couche(Plume& plume, PointDessin c, double r, double l) {
    const PointDessin gauche{c.x - l / 2, c.y}, droite{c.x + l / 2, c.y};
    std::vector<PointDessin> contour = Ellipse(gauche, r * Aplati, r, 90, 270);
    const std::vector<PointDessin> bout = Ellipse(droite, r * Aplati, r, -90, 90);
    contour.insert(contour.end(), bout.begin(), bout.end());
    contour.push_back(contour.front());
    plume.Plein(contour);
    plume.Plein(Ellipse(droite, r * Aplati, r));
}

/// A block D wide, d deep and H high, seen from the front and the right; `c` is the middle of its base.
void Brique(Plume& plume, PointDessin c, double D, double d, double H) {
    const PointDessin f{0.62 * d, 0.34 * d}; // what the depth looks like
    const PointDessin a{c.x - (D + f.x) / 2, c.y - f.y / 2};
    plume.Plein({a, {a.x + D, a.y}, {a.x + D, a.y + H}, {a.x, a.y + H}, a});
    plume.Plein({{a.x, a.y + H},
                 {a.x + D, a.y + H},
                 {a.x + D + f.x, a.y + H + f.y},
                 {a.x + f.x, a.y + H + f.y},
                 {a.x, a.y + H}});
    plume.Plein({{a.x + D, a.y},
                 {a.x + D + f.x, a.y + f.y},
                 {a.x + D + f.x, a.y + H + f.y},
                 {a.x + D, a.y + H},
                 {a.x + D, a.y}});
    const double ecart = 5;
    plume.CoteNiveau(a.x, a.x + D, a.y - 8, a.y, "D");
    plume.Attache({a.x + D, a.y}, {a.x + D + ecart, a.y - ecart});
    plume.Attache({a.x + D + f.x, a.y + f.y}, {a.x + D + f.x + ecart, a.y + f.y - ecart});
    plume.CoteEntre({a.x + D + ecart, a.y - ecart}, {a.x + D + f.x + ecart, a.y + f.y - ecart}, "d", {4, -3});
    plume.CoteDebout(a.y + f.y, a.y + H + f.y, a.x + D + f.x + 11, a.x + D + f.x, "H");
}

void Boule(Plume& plume, PointDessin c, double r) {
    plume.Plein(Ellipse(c, r, r));
    plume.Courbe(Ellipse(c, r, r * Aplati, 180, 360));
}

// ---- centred on the axis

void Plateau(Plume& plume) {
    constexpr double r = 36, h = 11;
    plume.AxeAutour(0, -h / 2 - r * Aplati, h / 2);
    Fut(plume, {0, -h / 2}, r, r, h);
    plume.Axe({0, h / 2}, {0, 30});
    plume.CoteNiveau(-r, r, -30, -h / 2, "D");
    plume.CoteDebout(-h / 2, h / 2, r + 10, r, "H");
}

void Couronne(Plume& plume) {
    constexpr double r = 36, s = 17, h = 11;
    plume.AxeAutour(0, -h / 2 - r * Aplati, h / 2);
    Fut(plume, {0, -h / 2}, r, r, h);
    Trou(plume, {0, h / 2}, s, h);
    plume.Axe({0, h / 2 - 4}, {0, 22});
    plume.CoteNiveau(-r, r, -30, -h / 2, "D");
    plume.CoteNiveau(-s, s, 30, h / 2, "d");
    plume.CoteDebout(-h / 2, h / 2, r + 10, r, "H");
}

void CylindreCouche(Plume& plume) {
    constexpr double r = 14, l = 68;
    plume.AxeAutour(0, -r, r);
    Couche(plume, {0, 0}, r, l);
    plume.Axe({0, r}, {0, 34});
    plume.CoteNiveau(-l / 2, l / 2, -29, -r, "H");
    plume.CoteDebout(-r, r, l / 2 + 14, l / 2, "D");
}

void TubeCouche(Plume& plume) {
    constexpr double r = 15, s = 8, l = 66;
    plume.AxeAutour(0, -r, r);
    Couche(plume, {0, 0}, r, l);
    plume.Courbe(Ellipse({l / 2, 0}, s * Aplati, s), Corps);
    plume.Axe({0, r}, {0, 34});
    plume.CoteNiveau(-l / 2, l / 2, -29, -r, "H");
    plume.CoteDebout(-s, s, l / 2 + 9, l / 2, "d");
    plume.CoteDebout(-r, r, l / 2 + 20, l / 2, "D");
}

void TroncDeCone(Plume& plume) {
    constexpr double r = 34, s = 18, h = 36;
    constexpr double bas = -17;
    plume.AxeAutour(0, bas - r * Aplati, bas + h);
    Fut(plume, {0, bas}, r, s, h);
    plume.CoteNiveau(-r, r, -34, bas, "D");
    plume.CoteNiveau(-s, s, 34, bas + h, "d");
    plume.CoteDebout(bas, bas + h, r + 11, r, "H");
}

void Bras(Plume& plume) {
    constexpr double x = -38, l = 76;
    plume.Axe({x, -4}, {x, -24});
    Couche(plume, {0, 0}, 3.5, l);
    plume.Axe({x, 4}, {x, 30});
    plume.CoteNiveau(x, x + l, -20, -3, "D");
}

void Rectangle(Plume& plume) {
    plume.AxeAutour(0, -19, 9);
    Brique(plume, {0, -10}, 56, 34, 18);
    plume.Axe({0, 9}, {0, 33});
}

void Polygone(Plume& plume) {
    constexpr int N = 6;
    constexpr double r = 36, h = 13;
    const auto coin = [](int i, double y) {
        const double angle = (i * 360.0 / N) / RadDeg;
        return PointDessin{r * std::cos(angle), y + r * Aplati * std::sin(angle)};
    };
    plume.AxeAutour(0, -h / 2 - r * Aplati, h / 2);
    plume.Courbe(Ellipse({0, h / 2}, r, r * Aplati), {Couleur::TexteDiscret, 0.8, true});
    std::vector<PointDessin> dessus;
    for (int i = 0; i <= N; ++i) dessus.push_back(coin(i, h / 2));
    plume.Plein(dessus);
    for (int i = N / 2; i < N; ++i)
        plume.Plein({coin(i, h / 2), coin(i + 1, h / 2), coin(i + 1, -h / 2), coin(i, -h / 2), coin(i, h / 2)});
    plume.Axe({0, h / 2}, {0, 30});
    plume.CoteNiveau(-r, r, -30, -h / 2, "D");
    plume.CoteDebout(-h / 2, h / 2, r + 10, r, "H");
    plume.Lettre({-14, h / 2}, "N");
}

void Sphere(Plume& plume) {
    constexpr double r = 25;
    plume.AxeAutour(0, -r, r);
    Boule(plume, {0, 0}, r);
    plume.CoteNiveau(-r, r, -34, 0, "D");
}

void Tore(Plume& plume) {
    constexpr double r = 27, s = 9, pente = 0.42;
    plume.AxeAutour(0, -r * pente - s, r * pente + s);
    plume.Plein(Ellipse({0, 0}, r + s, r * pente + s));
    plume.Courbe(Ellipse({0, 0}, r, r * pente), {Couleur::TexteDiscret, 0.8, true});
    plume.Courbe(Ellipse({0, 1.5}, r - s, 3.6, 180, 360), Corps);
    plume.Courbe(Ellipse({0, -1}, r - s - 2.5, 3.6, 0, 180), Corps);
    plume.Axe({0, 2}, {0, 30});
    plume.CoteNiveau(-r, r, -32, 0, "D");
    plume.CoteNiveau(r - s, r + s, 27, 0, "d");
}

// ---- away from the axis

constexpr double XAxe = -40, XCorps = 17;

/// The axis of rotation on the left, the arm R to the middle of the body, and the body's own middle line.
void AxeExcentre(Plume& plume, double bas, double haut) {
    plume.Axe({XAxe, -26}, {XAxe, 30});
    plume.Axe({XAxe, (bas + haut) / 2}, {XCorps, (bas + haut) / 2});
    plume.CoteNiveau(XAxe, XCorps, -33, bas, "R");
}

void Debout(Plume& plume, double s) {
    constexpr double r = 19, h = 24, bas = -14;
    AxeExcentre(plume, bas, bas + h);
    Fut(plume, {XCorps, bas}, r, r, h);
    plume.CoteNiveau(XCorps - r, XCorps + r, s > 0 ? 36 : 28, bas + h, "D");
    plume.CoteDebout(bas, bas + h, XCorps + r + 11, XCorps + r, "H");
    if (s == 0) return;
    Trou(plume, {XCorps, bas + h}, s, h);
    plume.CoteNiveau(XCorps - s, XCorps + s, 24, bas + h, "d");
}

void CylindreDeboutExcentre(Plume& plume) {
    Debout(plume, 0);
}
void TubeDeboutExcentre(Plume& plume) {
    Debout(plume, 10);
}

void CoucheExcentre(Plume& plume, double s) {
    constexpr double r = 13, l = 42, droite = XCorps + l / 2;
    AxeExcentre(plume, -r, r);
    Couche(plume, {XCorps, 0}, r, l);
    plume.CoteNiveau(XCorps - l / 2, droite, 26, r, "H");
    plume.CoteDebout(-r, r, droite + (s > 0 ? 16 : 12), droite, "D");
    if (s == 0) return;
    plume.Courbe(Ellipse({droite, 0}, s * Aplati, s), Corps);
    plume.CoteDebout(-s, s, droite + 6, droite, "d");
}

void CylindreCoucheExcentre(Plume& plume) {
    CoucheExcentre(plume, 0);
}
void TubeCoucheExcentre(Plume& plume) {
    CoucheExcentre(plume, 7);
}

void SphereExcentree(Plume& plume) {
    constexpr double r = 18;
    AxeExcentre(plume, -r, r);
    Boule(plume, {XCorps, 0}, r);
    plume.CoteNiveau(XCorps - r, XCorps + r, 30, 0, "D");
}

void RectangleExcentre(Plume& plume) {
    AxeExcentre(plume, -13, 9);
    Brique(plume, {XCorps, -9}, 34, 24, 18);
}

void MasseExcentree(Plume& plume) {
    AxeExcentre(plume, -9, 9);
    plume.Point({XCorps, 0}, 9);
    plume.Lettre({XCorps, 0}, "M");
}

// ---- the others

void ValeursDonnees(Plume& plume) {
    plume.AxeAutour(0, -24, 24);
    std::vector<PointDessin> contour; // any body
    for (int i = 0; i <= 72; ++i) {
        const double angle = i * 5 / RadDeg;
        const double r = 24 + 4 * std::cos(2 * angle) + 2.5 * std::sin(3 * angle);
        contour.push_back({1.3 * r * std::cos(angle), r * std::sin(angle)});
    }
    plume.Plein(contour);
    plume.Axe({0, -28}, {0, 28});
    plume.Lettre({-14, 0}, "M");
}

void Convoyeur(Plume& plume) {
    constexpr double r = 13, x = 30;
    for (const double centre : {-x, x}) plume.Point({centre, -4}, r);
    for (const double y : {-4 - r, -4 + r}) plume.Courbe({{-x, y}, {x, y}}, Corps);
    plume.Plein({{-14, -4 + r}, {12, -4 + r}, {12, 27}, {-14, 27}, {-14, -4 + r}});
    plume.Lettre({-1, 18}, "M");
    plume.Fleche({16, 18}, {30, 18});
    for (const double centre : {-x, x}) plume.Pivot({centre, -4});
    plume.CoteDebout(-4 - r, -4 + r, -x - r - 7, -x, "D");
}

void Desequilibre(Plume& plume) {
    constexpr double R = 38, angle = 40;
    const PointDessin O{-16, -18}, M = Polaire(O, R, angle);
    plume.Axe({O.x - 12, O.y}, {O.x + 50, O.y});
    plume.Courbe(Arc(O, R, -10, 100), {Couleur::TexteDiscret, 0.8, true});
    plume.Courbe({O, M}, Corps);
    plume.Point(M, 8);
    plume.Pivot(O);
    plume.Fleche({M.x, M.y - 8}, {M.x, M.y - 24});
    plume.Lettre(M, "M");
    plume.Courbe(Arc(O, 22, 0, angle), LigneCote);
    plume.Lettre(Polaire(O, 27, angle / 2), "ß");
    const PointDessin ecart = Polaire({0, 0}, 9, angle + 90);
    plume.CoteEntre({O.x + ecart.x, O.y + ecart.y}, {M.x + ecart.x, M.y + ecart.y}, "R",
                    Polaire({0, 0}, 6, angle + 90));
}

using Figure = void (*)(Plume& plume);

/// By code, from 1.
constexpr Figure figures[] = {
    Plateau,
    Couronne,
    CylindreCouche,
    TubeCouche,
    TroncDeCone,
    Bras,
    Rectangle,
    Polygone,
    Sphere,
    CylindreDeboutExcentre,
    TubeDeboutExcentre,
    CylindreCoucheExcentre,
    TubeCoucheExcentre,
    SphereExcentree,
    RectangleExcentre,
    MasseExcentree,
    ValeursDonnees,
    Convoyeur,
    Desequilibre,
    Tore,
};

} // namespace

void DessineSolide(Dessin& dessin, int TypeSolide, const VueSolide& vue) {
    if (TypeSolide < 1 || TypeSolide > static_cast<int>(std::size(figures))) return;
    Plume plume(dessin, vue);
    figures[TypeSolide - 1](plume);
}
