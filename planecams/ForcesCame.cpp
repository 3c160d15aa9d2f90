// The outer radius of a plane cam is taken as the largest radius of the roller centre plus one roller diameter.
#include "planecams/ForcesCame.h"

#include "cams/Efforts.h"

#include <cmath>

namespace {

/// Thickness and radius in dm for the mass, in m for the inertia.
void CalculeMasseCame() {
    const double rayon = 2.0 * etude.donnees.RayonGalet + etude.resultats.RayonMax;
    etude.resultats.MasseCame =
        MasseVolumique * etude.donnees.EpaisseurCame / 100.0 * Pi * (rayon / 100.0) * (rayon / 100.0);
    etude.resultats.InertieCame = (rayon / 1000.0) * (rayon / 1000.0) * etude.resultats.MasseCame * 0.5;
}

} // namespace

void CalculeForcesBras() {
    const double la = etude.donnees.RayonO1A / 1000.0, lp = etude.donnees.RayonO1P / 1000.0;
    RemetEfforts();
    etude.donnees.InertieMasseA = la * la * etude.donnees.MasseA;
    etude.resultats.InertieBras =
        la * la * etude.donnees.MasseBrasO1A * (1.0 / 3.0) + lp * lp * etude.donnees.MasseBrasO1P * (1.0 / 3.0);
    const double J = etude.resultats.InertieBras + etude.donnees.InertieMasseA;
    CalculeMasseCame();
    const double gravite = GraviteProjetee();
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        Point& p = etude.resultats.Points[i];
        const PointLoi& m = etude.resultats.Mouvement[i];
        const double theta = m.Course * Pi / 180.0;
        const double cosTheta = std::cos(theta);
        const double M1 = (etude.donnees.MasseBrasO1A / 2.0 + etude.donnees.MasseA) * la * cosTheta;
        // Multiplied by 180 and divided by Pi, the inverse of the conversion used elsewhere: required as it stands.
        const double M2 =
            lp * etude.donnees.MasseBrasO1P * std::cos(((etude.donnees.AnglePO1A + m.Course) * 180.0) / Pi);
        const double My = la * etude.donnees.ForceY * cosTheta;
        const double Mx = la * etude.donnees.ForceX * std::sin(theta);
        p.ForceGalet = Divise(m.Accel * (J * FacteurDynamique) - (M1 + M2) * gravite, lp);
        p.Couple =
            (p.Rayon / 1000.0) * p.ForceGalet * std::tan(etude.resultats.Profil[i].AngleTangent - Pi / 2.0) + Mx + My;
        SuitEfforts(p, p.Angle);
    }
}

void CalculeForcesLineaire() {
    RemetEfforts();
    CalculeMasseCame();
    const double gravite = GraviteProjetee();
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        Point& p = etude.resultats.Points[i];
        const double b = etude.resultats.Profil[i].AngleTangent - Pi / 2.0;
        p.ForceGalet = Divise(etude.donnees.MasseA * (FacteurDynamique * p.AccelRayon + gravite) + etude.donnees.ForceY,
                              std::cos(b));
        p.Couple = (p.Rayon / 1000.0) * p.ForceGalet * std::tan(b);
        SuitEfforts(p, p.Angle);
    }
}
