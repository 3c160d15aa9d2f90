#include "cams/CompleteZones.h"

#include <cmath>

double RayonGaletCentre(double a, double b, double L, double angle, double decalage) {
    const double phi = (angle + decalage) * Pi / 180.0;
    etude.resultats.Erreur = Faux;
    const double c = std::cos(phi), s = std::sin(phi);
    const double limite = Divise((a * a + b * b + L * L) / 2.0, L);
    if (c * a + s * b <= limite) {
        const double carre = a * a + b * b + L * L - (c * a + s * b) * 2.0 * L;
        // The roller on the cam centre: rounding may leave less than nothing.
        if (carre < 0.0) throw ErreurExecution(NumeroErreur::AppelIncorrect);
        return std::sqrt(carre);
    }
    etude.resultats.Erreur = Vrai;
    return 0.0;
}

void CompleteZone(int z, bool bras) {
    Zone& zone = etude.donnees.Zones[z];
    zone.Temps = TempsZone(zone.AngleCame, etude.donnees.VitesseCame);
    etude.resultats.Erreur = Faux;
    if (!bras) return;
    const auto rayon = [](double angle) {
        return RayonGaletCentre(etude.donnees.CoteA, etude.donnees.CoteB, etude.donnees.RayonO1P, angle,
                                etude.donnees.AnglePO1A);
    };
    zone.RayonDepart = z == 1 ? rayon(zone.AngleDepart) : etude.donnees.Zones[z - 1].RayonFinal;
    const bool departAtteint = SansErreur();
    zone.RayonFinal = rayon(zone.AngleFinal);
    if (!departAtteint) etude.resultats.Erreur = Vrai;
}

void CompleteZones(bool bras) {
    bool atteintes = true;
    for (int z = 1; z <= etude.donnees.NombreZones; ++z) {
        CompleteZone(z, bras);
        atteintes = atteintes && SansErreur();
    }
    etude.resultats.Erreur = atteintes ? Faux : Vrai;
}
