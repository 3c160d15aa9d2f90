#include "conjugate/SchemaPaire.h"

#include "core/Etude.h"
#include "drawing/PlanDessin.h"

#include <cmath>
#include <vector>

namespace {

/// A cam around the origin that touches the roller of radius `galet` at `P`.
std::vector<PointDessin> ContourCame(PointDessin P, double galet, double bosse) {
    const double base = std::hypot(P.x, P.y) - galet, direction = std::atan2(P.y, P.x) * RadDeg;
    std::vector<PointDessin> points;
    for (int i = 0; i <= 120; ++i) {
        const double angle = i * 3.0;
        points.push_back(Polaire({0, 0}, base + bosse * (1 - std::cos((angle - direction) / RadDeg)) / 2, angle));
    }
    return points;
}

} // namespace

void DessineSchemaPaire(Dessin& dessin, const std::string& accent) {
    constexpr double galet1 = 12, galet2 = 10, angle1 = 95, angle2 = 12;
    const PointDessin O{0, 0}, O1{-88, -70};
    const PointDessin G1 = Polaire(O1, 112, angle1 - 42), G2 = Polaire(O1, 128, angle2 - 2);
    const Trait cote{Couleur::TexteDiscret, 1.0}, axe{Couleur::Graduation, 1.0, true};
    const auto trait = [&](const char* nom, Trait ordinaire) {
        return accent == nom ? Trait{Couleur::Repere, ordinaire.epaisseur + 1} : ordinaire;
    };
    PlanDessin plan(dessin, {{-122, -112}, {78, 66}}, 10);
    plan.Contour(ContourCame(G1, galet1, 16), {Couleur::Came, 1.6}, false);
    plan.Contour(ContourCame(G2, galet2, -14), {Couleur::Courbe2, 1.6}, false);
    plan.Ligne({-70, 0}, {70, 0}, axe);
    plan.Ligne({0, -88}, {0, 60}, axe);
    plan.Ligne({O1.x - 14, O1.y}, {70, O1.y}, axe);
    plan.Ligne(O1, G1, trait("R1", {Couleur::Bras, 2.2}));
    plan.Ligne(O1, G2, trait("R2", {Couleur::Bras, 2.2}));
    plan.Disque(G1, galet1, trait("G1", {Couleur::Galet, 1.6}));
    plan.Disque(G2, galet2, trait("G2", {Couleur::Galet, 1.6}));
    for (const auto& pivot : {O, O1, G1, G2}) plan.Disque(pivot, 2.6, {Couleur::Axe, 1.4});
    plan.Cote({O1.x, -98}, {O.x, -98}, trait("a", cote));
    plan.Ligne(O1, {O1.x, -102}, cote);
    plan.Cote({-108, O1.y}, {-108, 0}, trait("b", cote));
    plan.Ligne(O1, {-112, O1.y}, cote);
    plan.Ligne({-112, 0}, {-70, 0}, cote);
    plan.Contour(Arc(O1, 40, angle2 - 2, angle1 - 42), trait("angle", cote), false);

    plan.Nom({O1.x / 2, -106}, "a", Ancrage::Centre, accent == "a");
    plan.Nom({-115, O1.y / 2}, "b", Ancrage::Centre, accent == "b");
    plan.Nom({6, 9}, "O", Ancrage::Gauche, false);
    plan.Nom({O1.x - 5, O1.y - 9}, "O1", Ancrage::Droite, false);
    plan.Nom({G1.x - 15, G1.y + 8}, "G1", Ancrage::Droite, accent == "G1");
    plan.Nom({G2.x + 13, G2.y - 8}, "G2", Ancrage::Gauche, accent == "G2");
    const PointDessin milieu1{(O1.x + G1.x) / 2, (O1.y + G1.y) / 2}, milieu2{(O1.x + G2.x) / 2, (O1.y + G2.y) / 2};
    plan.Nom({milieu1.x - 6, milieu1.y + 6}, "R1", Ancrage::Droite, accent == "R1");
    plan.Nom({milieu2.x + 8, milieu2.y - 9}, "R2", Ancrage::Centre, accent == "R2");
}
