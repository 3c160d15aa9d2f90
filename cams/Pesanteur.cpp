#include "cams/Pesanteur.h"

#include "drawing/PlanDessin.h"

void DessinePesanteur(Dessin& dessin, double angle) {
    PlanDessin plan(dessin, {{-50, -50}, {50, 50}}, 4);
    plan.Cercle({0, 0}, 48, {Couleur::Graduation, 1.0});
    plan.Ligne({-48, 0}, {48, 0}, {Couleur::Graduation, 1.0, true});
    plan.Ligne({0, -48}, {0, 48}, {Couleur::Graduation, 1.0, true});
    plan.Fleche(Polaire({0, 0}, 30, angle + 180), Polaire({0, 0}, 42, angle), {Couleur::Repere, 2.2});
}
