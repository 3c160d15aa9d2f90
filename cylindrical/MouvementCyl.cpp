// Speed and acceleration of a zone: stroke C (mm, or degrees of the arm) over 1000 and over the duration, times the
// unit law's. On the arm this is the system's own scaling too; times the arm's length over 1000 it gives the roller
// centre's. The roller rolls at the speed of the cam's surface put together square with that of the follower.
#include "cylindrical/MouvementCyl.h"

#include "cams/ParcoursZones.h"

#include <algorithm>
#include <cmath>

namespace {

/// Peripheral speed of the cam, m/s.
double VitessePeripherique() {
    return 2.0 * etude.donnees.VitesseCame * Pi / 60.0 * etude.donnees.DiametreCame / 2.0 / 1000.0;
}

/// The roller of a study, once for all its points.
struct Galet {
    double V = VitessePeripherique();                 ///< m/s
    double rayon = etude.donnees.RayonGalet / 1000.0; ///< m
    double toursParMinute = 60.0 / (2.0 * Pi);        ///< of one radian a second

    /// Its speed in Tr/min, rounded down.
    double Vitesse(double vitesseRayon) const {
        const double vitesse = std::sqrt(V * V + vitesseRayon * vitesseRayon);
        return Int(Divise(toursParMinute * vitesse, rayon));
    }
};

/// A row of the motion of a zone, from its row of the unit law.
PointLoi LigneMouvement(const PointLoi& unite, const Parcours& zone) {
    return {zone.depart + zone.course * unite.Course, zone.vitesse * unite.Vitesse, zone.accel * unite.Accel};
}

} // namespace

void MouvementCyl() {
    etude.durables.VitesseGaletMax = 0;
    const Galet galet;
    DerouleZones({&Zone::RayonDepart, &Zone::RayonFinal, etude.lois.DeFichier, true, true},
                 [galet](const Lieu& lieu, const PointLoi& unite, const Parcours& zone) {
                     Point& p = etude.resultats.Points[lieu.k];
                     const PointLoi m = LigneMouvement(unite, zone);
                     p.Rayon = m.Course;
                     p.VitesseRayon = m.Vitesse;
                     p.AccelRayon = m.Accel;
                     p.VitesseGalet = galet.Vitesse(p.VitesseRayon);
                 });
}

void MouvementCylOsc() {
    etude.durables.VitesseGaletMax = 0;
    etude.durables.LoiVitesseMax = 0;
    etude.durables.LoiAccelMax = 0;
    const Galet galet;
    DerouleZones({&Zone::AngleDepart, &Zone::AngleFinal, etude.lois.DeFichier, true, true},
                 [galet](const Lieu& lieu, const PointLoi& unite, const Parcours& zone) {
                     Point& p = etude.resultats.Points[lieu.k];
                     PointLoi& m = etude.resultats.Mouvement[lieu.k];
                     m = LigneMouvement(unite, zone);
                     SuitMaximum(m.Vitesse, lieu.repere, etude.durables.LoiVitesseMax,
                                 etude.durables.LoiVitesseMaxAngle);
                     SuitMaximum(m.Accel, lieu.repere, etude.durables.LoiAccelMax, etude.durables.LoiAccelMaxAngle);
                     p.Rayon = etude.donnees.RayonO1P * std::sin(m.Course * Pi / 180.0);
                     p.VitesseRayon = etude.donnees.RayonO1P * m.Vitesse / 1000.0;
                     p.AccelRayon = etude.donnees.RayonO1P * m.Accel / 1000.0;
                     p.VitesseGalet = galet.Vitesse(p.VitesseRayon);
                 });
    // The cam is as thick as the roller's travel and one roller, with 5 mm at either edge.
    const double X = AngleBrasExtreme() * Pi / 180.0;
    etude.donnees.EpaisseurCame =
        Val(Format(etude.donnees.RayonO1P * std::sin(X) + 2.0 * etude.donnees.RayonGalet + 10.0, "####.##"));
    etude.resultats.RayonMax = etude.donnees.EpaisseurCame;
}

double AngleBrasExtreme() {
    double extreme = 0;
    for (const PointLoi& m : etude.resultats.Mouvement) extreme = std::max(extreme, std::abs(m.Course));
    return extreme;
}
