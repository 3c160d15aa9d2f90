#include "planecams/SchemasCames.h"

#include "core/Etude.h"
#include "drawing/PlanDessin.h"

#include <cmath>
#include <vector>

namespace {

/// A cam that touches the roller of radius `galet` at `P`, and swells on the far side.
std::vector<PointDessin> ContourCame(PointDessin P, double galet) {
    const double base = std::hypot(P.x, P.y) - galet, direction = std::atan2(P.y, P.x) * RadDeg;
    std::vector<PointDessin> points;
    for (int i = 0; i <= 120; ++i) {
        const double angle = i * 3.0;
        const double gonfle = (1 - std::cos((angle - direction - 25) / RadDeg)) / 2;
        const double repos = (1 - std::cos(25 / RadDeg)) / 2;
        points.push_back(Polaire({0, 0}, base + 20 * (gonfle - repos), angle));
    }
    return points;
}

} // namespace

void DessineSchemaBras(Dessin& dessin, const std::string& accent) {
    constexpr double galet = 12, AngleBras = 8, AnglePO1A = 70;
    const PointDessin O{0, 0}, O1{-75, -105};
    const PointDessin P = Polaire(O1, 118, AngleBras + AnglePO1A), A = Polaire(O1, 125, AngleBras);
    const Trait cote{Couleur::TexteDiscret, 1.0}, axe{Couleur::Graduation, 1.0, true};
    const auto trait = [&](const char* nom, Trait ordinaire) {
        return accent == nom ? Trait{Couleur::Repere, ordinaire.epaisseur + 1} : ordinaire;
    };
    PlanDessin plan(dessin, {{-118, -140}, {72, 62}}, 10);

    plan.Contour(ContourCame(P, galet), {Couleur::Came, 1.6}, true);
    plan.Ligne({-100, 0}, {66, 0}, axe);
    plan.Ligne({0, -128}, {0, 58}, axe);
    plan.Ligne({O1.x - 14, O1.y}, {62, O1.y}, axe);
    plan.Ligne(O1, P, trait("O1-P", {Couleur::Bras, 2.2}));
    plan.Ligne(O1, A, trait("O1-A", {Couleur::Bras, 2.2}));
    plan.Disque(P, galet, trait("galet", {Couleur::Galet, 1.6}));
    for (const auto& pivot : {O, O1, P, A}) plan.Disque(pivot, 2.6, {Couleur::Axe, 1.4});

    plan.Cote({O1.x, -128}, {O.x, -128}, trait("a", cote));
    plan.Ligne(O1, {O1.x, -132}, cote);
    plan.Cote({-104, O1.y}, {-104, 0}, trait("b", cote));
    plan.Ligne({O1.x, O1.y}, {-108, O1.y}, cote);
    plan.Contour(Arc(O1, 38, AngleBras, AngleBras + AnglePO1A), trait("P-O1-A", cote), false);
    plan.Contour(Arc(O1, 78, 0, AngleBras), cote, false);

    plan.Nom({O1.x / 2, -136}, "a", Ancrage::Centre, accent == "a");
    plan.Nom({-111, O1.y / 2}, "b", Ancrage::Centre, accent == "b");
    plan.Nom({7, 9}, "O", Ancrage::Gauche, false);
    plan.Nom({O1.x - 6, O1.y - 9}, "O1", Ancrage::Droite, false);
    plan.Nom({P.x - 15, P.y + 6}, "P", Ancrage::Droite, accent == "galet" || accent == "O1-P");
    plan.Nom({A.x + 3, A.y + 11}, "A", Ancrage::Gauche, accent == "O1-A");
    plan.Nom({A.x - 34, A.y + 5}, "O1-A", Ancrage::Centre, accent == "O1-A");
    plan.Nom({(O1.x + P.x) / 2 - 5, (O1.y + P.y) / 2 + 10}, "O1-P", Ancrage::Droite, accent == "O1-P");
    const PointDessin nomAngle = Polaire(O1, 43, AngleBras + AnglePO1A / 2);
    plan.Nom(nomAngle, "P-O1-A", Ancrage::Gauche, accent == "P-O1-A");
    plan.Nom({O1.x + 81, O1.y + 6}, "(a)", Ancrage::Gauche, false);
}

void DessineSchemaTranslation(Dessin& dessin, const std::string& accent) {
    constexpr double galet = 13;
    // Below the cam: what pushes the follower up, its outer force and gravity at 90 degrees, pushes the roller against
    // it.
    const PointDessin O{0, 0}, P{0, -66};
    const Trait cote{Couleur::TexteDiscret, 1.0}, axe{Couleur::Graduation, 1.0, true};
    PlanDessin plan(dessin, {{-90, -140}, {98, 84}}, 10);
    plan.Contour(ContourCame(P, galet), {Couleur::Came, 1.6}, true);
    plan.Ligne({-86, 0}, {86, 0}, axe);
    plan.Ligne({0, -136}, {0, 80}, axe);
    plan.Ligne(P, {0, -118}, {Couleur::Bras, 2.2});
    for (const double x : {-9.0, 9.0}) plan.Ligne({x, -96}, {x, -128}, {Couleur::Axe, 1.4});
    plan.Disque(P, galet, {accent == "galet" ? Couleur::Repere : Couleur::Galet, 1.6});
    for (const auto& centre : {O, P}) plan.Disque(centre, 2.6, {Couleur::Axe, 1.4});
    plan.Ligne(P, {84, P.y}, cote);
    plan.Cote({78, 0}, {78, P.y}, cote);
    plan.Nom({83, P.y / 2}, "R", Ancrage::Gauche, false);
    plan.Nom({7, 9}, "O", Ancrage::Gauche, false);
    plan.Nom({-17, P.y - 4}, "P", Ancrage::Droite, false);
    plan.Fleche({-26, -126}, {-26, -100}, {Couleur::Repere, 1.6});
    plan.Nom({-32, -113}, "y", Ancrage::Droite, true);
}
