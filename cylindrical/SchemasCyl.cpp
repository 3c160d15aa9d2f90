#include "cylindrical/SchemasCyl.h"

#include "core/Etude.h"
#include "drawing/PlanDessin.h"

#include <cmath>

namespace {

constexpr double Rayon = 56, DemiHauteur = 62, Galet = 11;
constexpr Trait cote{Couleur::TexteDiscret, 1.0}, axe{Couleur::Graduation, 1.0, true};

/// The strokes of a sketch, one of whose dimensions is set off.
struct Accent {
    const std::string& nom;

    Trait operator()(const char* dimension, Trait ordinaire) const {
        return nom == dimension ? Trait{Couleur::Repere, ordinaire.epaisseur + 1} : ordinaire;
    }
    bool Sur(const char* dimension) const { return nom == dimension; }
};

/// The visible half of one flank of the groove, at `ecart` from its middle, which passes through the origin.
std::vector<PointDessin> Flanc(double ecart) {
    std::vector<PointDessin> points;
    for (double angle = -90; angle <= 90; angle += 3) {
        const double s = std::sin(angle / RadDeg);
        points.push_back({Rayon * s, 24 * std::sin(angle * 0.8 / RadDeg) + ecart});
    }
    return points;
}

void DessineTambour(PlanDessin& plan, const Accent& accent) {
    const PointDessin coins[] = {
        {-Rayon, -DemiHauteur}, {Rayon, -DemiHauteur}, {Rayon, DemiHauteur}, {-Rayon, DemiHauteur}};
    plan.Contour(coins, {Couleur::Came, 1.6}, true);
    for (const double x : {-12.0, 12.0})
        for (const double bout : {1.0, -1.0})
            plan.Ligne({x, bout * DemiHauteur}, {x, bout * (DemiHauteur + 14)}, {Couleur::Came, 1.6});
    plan.Ligne({0, -DemiHauteur - 22}, {0, DemiHauteur + 22}, axe);
    for (const double ecart : {-Galet, Galet}) plan.Contour(Flanc(ecart), {Couleur::Came, 1.4}, false);
    const double bas = -DemiHauteur - 28;
    for (const double x : {-Rayon, Rayon}) plan.Ligne({x, -DemiHauteur}, {x, bas - 4}, cote);
    plan.Cote({-Rayon, bas}, {Rayon, bas}, accent("D", cote));
    plan.Nom({0, bas - 9}, "Ø", Ancrage::Centre, accent.Sur("D"));
}

} // namespace

void DessineSchemaCyl(Dessin& dessin, const std::string& nom) {
    const Accent accent{nom};
    PlanDessin plan(dessin, {{-96, -108}, {112, 98}}, 8);
    DessineTambour(plan, accent);
    const PointDessin P{0, 0};
    plan.Ligne(P, {84, 0}, {Couleur::Bras, 2.2});
    for (const double x : {78.0, 90.0}) plan.Ligne({x, -26}, {x, 26}, {Couleur::Axe, 1.4});
    plan.Disque(P, Galet, accent("galet", {Couleur::Galet, 1.6}));
    plan.Disque(P, 2.6, {Couleur::Axe, 1.4});
    plan.Nom({-16, 12}, "P", Ancrage::Droite, accent.Sur("galet"));
    plan.Fleche({102, -16}, {102, 22}, {Couleur::Repere, 1.6});
    plan.Nom({106, 6}, "y", Ancrage::Gauche, true);
}

void DessineSchemaCylOsc(Dessin& dessin, const std::string& nom) {
    const Accent accent{nom};
    constexpr double angle = 14;
    PlanDessin plan(dessin, {{-146, -108}, {72, 98}}, 8);
    DessineTambour(plan, accent);
    const PointDessin P{0, 0}, O1 = Polaire(P, -122, angle);
    plan.Ligne(O1, {-Rayon - 4, O1.y}, axe);
    plan.Contour(Arc(O1, 46, 0, angle), cote, false);
    plan.Ligne(O1, P, accent("O1-P", {Couleur::Bras, 2.2}));
    plan.Disque(P, Galet, accent("galet", {Couleur::Galet, 1.6}));
    for (const auto& pivot : {O1, P}) plan.Disque(pivot, 2.6, {Couleur::Axe, 1.4});
    const double haut = DemiHauteur + 24;
    plan.Ligne(O1, {O1.x, haut + 4}, cote);
    plan.Cote({O1.x, haut}, {0, haut}, accent("a", cote));
    plan.Nom({O1.x / 2, haut + 8}, "a", Ancrage::Centre, accent.Sur("a"));
    plan.Nom({O1.x + 2, O1.y - 11}, "O1", Ancrage::Centre, false);
    plan.Nom({14, 14}, "P", Ancrage::Gauche, accent.Sur("galet"));
    plan.Nom({O1.x / 2 - 24, O1.y / 2 + 14}, "O1-P", Ancrage::Centre, accent.Sur("O1-P"));
    plan.Nom({O1.x + 50, O1.y + 6}, "ß", Ancrage::Gauche, false);
}
