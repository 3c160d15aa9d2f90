#include "studies/Graphique.h"

#include "core/Etude.h"
#include "cylindrical/DonneesCyl.h"
#include "cylindrical/MouvementCyl.h"
#include "data/Textes.h"
#include "studies/TypesEtude.h"

#include <algorithm>

namespace {

/// The forces of a cylindrical cam are calculated from the second point on.
long PremierEffort() {
    return etude.resultats.Developpee ? 1 : 0;
}

} // namespace

std::vector<Courbe> CourbesGalet() {
    // Heights may lie below 0 further than above it.
    const bool hauteurs = etude.resultats.Developpee;
    const double maximum =
        hauteurs ? std::max(etude.resultats.RayonMax, -etude.resultats.RayonMin) : etude.resultats.RayonMax;
    return {{hauteurs ? TexteHauteurMm : 281, maximum, [](long i) { return etude.resultats.Points[i].Rayon; }},
            {282, etude.resultats.VitesseRayonMax, [](long i) { return etude.resultats.Points[i].VitesseRayon; }},
            {283, etude.resultats.AccelRayonMax, [](long i) { return etude.resultats.Points[i].AccelRayon; }}};
}

std::vector<Courbe> CourbeRayon() {
    return {CourbesGalet().front()};
}

std::vector<Courbe> CourbesBras() {
    // The angle of the arm is drawn to the scale of the radius, so that both graphs compare; on a cylinder no radius
    // holds for it.
    const double maximum = etude.resultats.Developpee ? AngleBrasExtreme() : etude.resultats.RayonMax;
    return {{284, maximum, [](long i) { return etude.resultats.Mouvement[i].Course; }},
            {285, etude.durables.LoiVitesseMax, [](long i) { return etude.resultats.Mouvement[i].Vitesse; }},
            {286, etude.durables.LoiAccelMax, [](long i) { return etude.resultats.Mouvement[i].Accel; }}};
}

std::vector<Courbe> CourbesForce() {
    return {{287, etude.resultats.ForceGaletMax, [](long i) { return etude.resultats.Points[i].ForceGalet; },
             PremierEffort()}};
}

std::vector<Courbe> CourbesCouple() {
    return {{288, etude.resultats.CoupleMax, [](long i) { return etude.resultats.Points[i].Couple; }, PremierEffort()}};
}

AxeGraphe AxeAngleCame() {
    AxeGraphe axe = AxeAngles(etude.resultats.NombrePoints / static_cast<double>(etude.donnees.PointsParDegre));
    axe.legende = Texte(280);
    return axe;
}

CourbeGraphe PointsCourbe(const Courbe& courbe, Couleur couleur) {
    CourbeGraphe points{{}, couleur, {}};
    points.points.reserve(static_cast<std::size_t>(etude.resultats.NombrePoints) + 1);
    for (long i = courbe.premier; i <= etude.resultats.NombrePoints; ++i)
        points.points.push_back({static_cast<double>(i) / etude.donnees.PointsParDegre, courbe.valeur(i)});
    return points;
}

namespace {

/// A curve with an axis of its own.
void AjouteCourbe(Graphe& graphe, const Courbe& courbe, const std::string& nom) {
    const std::size_t rang = graphe.courbes.size();
    AxeGraphe axe = AxeSymetrique(courbe.maximum, courbe.maximum / 2, courbe.maximum < 10 ? "0.000" : "0.0");
    axe.couleur = CouleursCourbes[rang];
    graphe.verticaux.push_back(axe);
    CourbeGraphe points = PointsCourbe(courbe, CouleursCourbes[rang]);
    points.nom = nom;
    points.axe = rang;
    graphe.courbes.push_back(std::move(points));
}

} // namespace

void DessineGraphique(Dessin& dessin, std::span<const Courbe> courbes) {
    if (etude.resultats.Points.Vide() || etude.resultats.NombrePoints == 0) return;
    Graphe graphe;
    graphe.horizontal = AxeAngleCame();
    for (const Courbe& courbe : courbes) AjouteCourbe(graphe, courbe, Texte(courbe.legende));
    DessineGraphe(dessin, graphe, PlaceEntiere(dessin, graphe));
}

void DessineGraphiqueCames(Dessin& dessin, const TypeEtude& type, std::vector<Courbe> (*courbes)()) {
    Graphe graphe;
    PourChaqueCame(type, [&](const DescriptionPasse* came) {
        if (etude.resultats.NombrePoints == 0) return;
        graphe.horizontal = AxeAngleCame();
        for (const Courbe& courbe : courbes())
            AjouteCourbe(graphe, courbe,
                         (came == nullptr ? "" : Texte(came->nomCourt) + " : ") + Texte(courbe.legende));
    });
    if (!graphe.courbes.empty()) DessineGraphe(dessin, graphe, PlaceEntiere(dessin, graphe));
}
