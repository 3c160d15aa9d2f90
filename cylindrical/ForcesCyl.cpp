#include "cylindrical/ForcesCyl.h"

#include "cams/Efforts.h"

#include <cmath>

namespace {

constexpr double TempsDemarrage = 0.25; // s

/// A steel cylinder. @param hauteur mm; lengths in dm for the mass, in m for the inertia
void CalculeMasseCame(double hauteur) {
    const double rayon = etude.donnees.DiametreCame / 2.0;
    etude.resultats.MasseCame = (hauteur / 100.0 * MasseVolumique) * (Pi * (rayon / 100.0) * (rayon / 100.0));
    etude.resultats.InertieCame = (rayon / 1000.0) * (rayon / 1000.0) * etude.resultats.MasseCame * 0.5;
}

/// Torque on the cam alone, and the angle it turns through at an even acceleration.
void CalculeDemarrage() {
    const double omega = etude.donnees.VitesseCame * 2.0 * Pi / 60.0;
    etude.resultats.CoupleDemarrage = etude.resultats.InertieCame * omega / TempsDemarrage;
    etude.resultats.AngleDemarrage = 0.5 * omega * TempsDemarrage * 180.0 / Pi;
}

/// @param effort called with a point's subscript: force of the follower along its way, N
template <class Effort> void CalculeEfforts(Effort effort) {
    RemetEfforts();
    const double rayon = (etude.donnees.DiametreCame / 2.0) / 1000.0;
    for (long i = 1; i <= etude.resultats.NombrePoints; ++i) {
        Point& p = etude.resultats.Points[i];
        const double pente = etude.resultats.Profil[i].AngleTangent;
        p.ForceGalet = effort(i) / std::cos(pente);
        p.Couple = std::sin(pente) * p.ForceGalet * rayon;
        SuitEfforts(p, static_cast<double>(i));
    }
}

} // namespace

void ForcesCyl() {
    CalculeMasseCame(etude.resultats.RayonMax - etude.resultats.RayonMin);
    CalculeDemarrage();
    const double gravite = GraviteProjetee();
    CalculeEfforts([gravite](long i) {
        return etude.donnees.MasseA * (-gravite + etude.resultats.Points[i].AccelRayon * FacteurDynamique) -
               etude.donnees.ForceY;
    });
}

void ForcesCylOsc() {
    CalculeMasseCame(etude.donnees.EpaisseurCame);
    CalculeDemarrage();
    const double lp = etude.donnees.RayonO1P / 1000.0;
    CalculeEfforts([lp](long i) {
        const double moment = etude.donnees.InertieMasseA * FacteurDynamique * etude.resultats.Mouvement[i].Accel;
        return Divise(moment - etude.donnees.CoupleConstantO1, lp);
    });
}
