// The outer radius of a plane cam is taken as the largest radius of the roller centre plus one roller diameter.
#include "planecams/ForcesCame.h"

#include "cams/Efforts.h"

#include <cmath>

namespace {

/// Thickness and radius in dm for the mass, in m for the inertia.
void CalculeMasseCame() {
    const double rayon = 2.0 * etude.RayonGalet + etude.RayonMax;
    etude.MasseCame = MasseVolumique * etude.EpaisseurCame / 100.0 * Pi * (rayon / 100.0) * (rayon / 100.0);
    etude.InertieCame = (rayon / 1000.0) * (rayon / 1000.0) * etude.MasseCame * 0.5;
}

} // namespace

void CalculeForcesBras() {
    const double la = etude.RayonO1A / 1000.0, lp = etude.RayonO1P / 1000.0;
    RemetEfforts();
    etude.InertieMasseA = la * la * etude.MasseA;
    etude.InertieBras = la * la * etude.MasseBrasO1A * (1.0 / 3.0) + lp * lp * etude.MasseBrasO1P * (1.0 / 3.0);
    const double J = etude.InertieBras + etude.InertieMasseA;
    CalculeMasseCame();
    const double gravite = GraviteProjetee();
    for (long i = 0; i <= etude.NombrePoints; ++i) {
        Point& p = etude.Points[i];
        const PointLoi& m = etude.Mouvement[i];
        const double theta = m.Course * Pi / 180.0;
        const double cosTheta = std::cos(theta);
        const double M1 = (etude.MasseBrasO1A / 2.0 + etude.MasseA) * la * cosTheta;
        // Multiplied by 180 and divided by Pi, the inverse of the conversion used elsewhere: required as it stands.
        const double M2 = lp * etude.MasseBrasO1P * std::cos(((etude.AnglePO1A + m.Course) * 180.0) / Pi);
        const double My = la * etude.ForceY * cosTheta;
        const double Mx = la * etude.ForceX * std::sin(theta);
        p.ForceGalet = Divise(m.Accel * (J * FacteurDynamique) - (M1 + M2) * gravite, lp);
        p.Couple = (p.Rayon / 1000.0) * p.ForceGalet * std::tan(etude.Profil[i].AngleTangent - Pi / 2.0) + Mx + My;
        SuitEfforts(p, p.Angle);
    }
}

void CalculeForcesLineaire() {
    RemetEfforts();
    CalculeMasseCame();
    const double gravite = GraviteProjetee();
    for (long i = 0; i <= etude.NombrePoints; ++i) {
        Point& p = etude.Points[i];
        const double b = etude.Profil[i].AngleTangent - Pi / 2.0;
        p.ForceGalet = Divise(etude.MasseA * (FacteurDynamique * p.AccelRayon + gravite) + etude.ForceY, std::cos(b));
        p.Couple = (p.Rayon / 1000.0) * p.ForceGalet * std::tan(b);
        SuitEfforts(p, p.Angle);
    }
}
