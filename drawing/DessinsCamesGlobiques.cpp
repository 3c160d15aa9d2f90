// Globoidal cams: bodies whose generating curve is an arc about the axis of the turret, seen along that axis. A point
// of the cam is given by its angle tau on the turret, its distance rho from the turret's axis, and the turn phi of the
// cam (0 is the side of the turret, Pi the far side).
#include "drawing/DessinsCames.h"

#include "core/Etude.h"
#include "drawing/PlumeCames.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double Entraxe = 34;
constexpr double RhoCorps = 23;   ///< bottom of the grooves
constexpr double RhoNervure = 18; ///< top of the ribs
constexpr double TauBout = 0.86;  ///< ends of the cam, radians on the turret
constexpr double Axe = -22.5;     ///< height of the cam's axis in the window
constexpr double DemiGalet = 3;
constexpr double RhoGalet = 22; ///< end of a roller

PointFigure Place(double tau, double rho, double phi) {
    return {rho * std::sin(tau), Axe + (Entraxe - rho * std::cos(tau)) * std::cos(phi)};
}

/// A point of the turret, straight above the cam.
PointFigure PlaceTourelle(double tau, double rho) {
    return {rho * std::sin(tau), Axe + Entraxe - rho * std::cos(tau)};
}

/// Arc of the body at one distance, from `tau1` to `tau2`.
void AjouteArc(std::vector<PointFigure>& contour, double tau1, double tau2, double rho, double phi) {
    constexpr int Pas = 16;
    for (int i = 0; i <= Pas; ++i) contour.push_back(Place(tau1 + (tau2 - tau1) * i / Pas, rho, phi));
}

void DessineCorps(PlumeCames& plume) {
    const double bout = Place(TauBout, RhoCorps, 0).x;
    for (const double cote : {-1.0, 1.0})
        plume.Surface({{cote * bout, Axe + 5},
                       {cote * (bout + 18), Axe + 5},
                       {cote * (bout + 18), Axe - 5},
                       {cote * bout, Axe - 5}},
                      Couleur::Came);
    std::vector<PointFigure> contour;
    AjouteArc(contour, -TauBout, TauBout, RhoCorps, 0);
    AjouteArc(contour, TauBout, -TauBout, RhoCorps, Pi);
    plume.Surface(contour, Couleur::Came);
}

/// A rib whose middle lies at tau(phi) with a half width, both on the turret: its sections above and below the body,
/// and the band that leads from one to the other over the near side.
template <class Milieu> void DessineNervure(PlumeCames& plume, const Milieu& milieu, double demiLargeur) {
    constexpr int Pas = 72;
    const auto bords = [&](double phi) {
        const double tau = milieu(phi);
        return std::pair{std::clamp(tau - demiLargeur, -TauBout, TauBout),
                         std::clamp(tau + demiLargeur, -TauBout, TauBout)};
    };
    for (const double phi : {0.0, Pi}) {
        const auto [gauche, droite] = bords(phi);
        if (gauche == droite) continue;
        std::vector<PointFigure> section;
        AjouteArc(section, gauche, droite, RhoNervure, phi);
        AjouteArc(section, droite, gauche, RhoCorps, phi);
        plume.Surface(section, Couleur::Primitif);
    }
    std::vector<PointFigure> bande, retour;
    for (int i = 0; i <= Pas; ++i) {
        const double phi = Pi * i / Pas;
        const auto [gauche, droite] = bords(phi);
        if (gauche == droite) continue;
        bande.push_back(Place(gauche, RhoNervure, phi));
        retour.push_back(Place(droite, RhoNervure, phi));
    }
    bande.insert(bande.end(), retour.rbegin(), retour.rend());
    if (!bande.empty()) plume.Surface(bande, Couleur::Primitif);
}

/// A roller on its radial pin, between two distances from the turret's axis.
void DessineGalet(PlumeCames& plume, double tau, double racine) {
    const PointFigure a = PlaceTourelle(tau, racine), b = PlaceTourelle(tau, RhoGalet);
    const double nx = DemiGalet * std::cos(tau), ny = DemiGalet * std::sin(tau);
    plume.Surface({{a.x - nx, a.y - ny}, {b.x - nx, b.y - ny}, {b.x + nx, b.y + ny}, {a.x + nx, a.y + ny}},
                  Couleur::Galet);
}

} // namespace

void DessineIndexeurGlobique(Dessin& dessin) {
    PlumeCames plume(dessin);
    constexpr int Galets = 8;
    const double Pas = 2 * Pi / Galets;
    constexpr double RayonTourelle = 14;
    const double demiNervure = Pas / 2 - DemiGalet / 20;
    DessineCorps(plume);
    for (int nervure = -2; nervure <= 2; ++nervure)
        DessineNervure(
            plume,
            [nervure, Pas](double phi) {
                const double avance = std::clamp((phi - 0.6) / (Pi - 1.2), 0.0, 1.0);
                return Pas * (nervure + avance - std::sin(2 * Pi * avance) / (2 * Pi));
            },
            demiNervure);
    for (int i = 0; i < Galets; ++i) DessineGalet(plume, Pas * (i + 0.5), RayonTourelle - 1);
    const PointFigure centre = PlaceTourelle(0, 0);
    plume.Disque(centre, RayonTourelle, Couleur::Bras);
    plume.Cercle(centre, RayonTourelle - 4, Couleur::Bras, true);
    plume.Pivot(centre, 4);
    plume.Fleche(centre, RayonTourelle - 4, 50, 130);
}

void DessineOscillateurGlobique(Dessin& dessin) {
    PlumeCames plume(dessin);
    constexpr double DemiCourse = 0.36, EcartGalets = 0.36;
    const double demiNervure = EcartGalets - DemiGalet / 20;
    DessineCorps(plume);
    DessineNervure(
        plume, [](double phi) { return DemiCourse * std::cos(phi); }, demiNervure);
    const PointFigure centre = PlaceTourelle(0, 0), sortie{centre.x - 12, centre.y + 26};
    for (const double ecart : {-EcartGalets, EcartGalets}) DessineGalet(plume, DemiCourse + ecart, 10);
    plume.Biellette(centre, 6, sortie, 3, Couleur::Bras);
    plume.Biellette(centre, 7, PlaceTourelle(DemiCourse, 9), 6, Couleur::Bras);
    plume.Disque(sortie, 1.4, Couleur::Bras);
    plume.Pivot(centre, 4);
    plume.Fleche(centre, 30, 64, 96, true);
}
