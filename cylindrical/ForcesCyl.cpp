#include "cylindrical/ForcesCyl.h"

#include "cams/Efforts.h"

#include <cmath>

namespace {

constexpr double TempsDemarrage = 0.25; // s

/// A steel cylinder. @param hauteur mm; lengths in dm for the mass, in m for the inertia
void CalculeMasseCame(double hauteur) {
    const double rayon = etude.DiametreCame / 2.0;
    etude.MasseCame = (hauteur / 100.0 * MasseVolumique) * (Pi * (rayon / 100.0) * (rayon / 100.0));
    etude.InertieCame = (rayon / 1000.0) * (rayon / 1000.0) * etude.MasseCame * 0.5;
}

/// Torque on the cam alone, and the angle it turns through at an even acceleration.
void CalculeDemarrage() {
    const double omega = etude.VitesseCame * 2.0 * Pi / 60.0;
    etude.CoupleDemarrage = etude.InertieCame * omega / TempsDemarrage;
    etude.AngleDemarrage = 0.5 * omega * TempsDemarrage * 180.0 / Pi;
}

/// @param effort called with a point's subscript: force of the follower along its way, N
template <class Effort> void CalculeEfforts(Effort effort) {
    RemetEfforts();
    const double rayon = (etude.DiametreCame / 2.0) / 1000.0;
    for (long i = 1; i <= etude.NombrePoints; ++i) {
        Point& p = etude.Points[i];
        const double pente = etude.Profil[i].AngleTangent;
        p.ForceGalet = effort(i) / std::cos(pente);
        p.Couple = std::sin(pente) * p.ForceGalet * rayon;
        SuitEfforts(p, static_cast<double>(i));
    }
}

} // namespace

void ForcesCyl() {
    CalculeMasseCame(etude.RayonMax - etude.RayonMin);
    CalculeDemarrage();
    const double gravite = GraviteProjetee();
    CalculeEfforts([gravite](long i) {
        return etude.MasseA * (-gravite + etude.Points[i].AccelRayon * FacteurDynamique) - etude.ForceY;
    });
}

void ForcesCylOsc() {
    CalculeMasseCame(etude.EpaisseurCame);
    CalculeDemarrage();
    const double lp = etude.RayonO1P / 1000.0;
    CalculeEfforts([lp](long i) {
        const double moment = etude.InertieMasseA * FacteurDynamique * etude.Mouvement[i].Accel;
        return Divise(moment - etude.CoupleConstantO1, lp);
    });
}
