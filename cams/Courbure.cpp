#include "cams/Courbure.h"

#include "core/Etude.h"
#include "data/Textes.h"
#include "platform/Dialogues.h"

#include <cmath>
#include <string>

namespace {

double PuissanceTroisDemis(double x) {
    return x * std::sqrt(x);
}

/// Radius of curvature of a curve given by its first and second differences; 0 where it is straight.
double RayonDeCourbure(double x1, double y1, double x2, double y2) {
    const double numerateur = y2 * x1 - x2 * y1;
    return numerateur == 0.0 ? 0.0 : PuissanceTroisDemis(y1 * y1 + x1 * x1) / numerateur;
}

/// Radius of curvature of the pitch curve, in polar coordinates, or on the developed cam where the motion is a height.
double RayonCourburePrimitif(const Point& point, const PointProfil& profil, bool developpee) {
    const double R = point.Rayon, R1 = profil.DeriveeRayon, R2 = profil.Derivee2Rayon;
    const double numerateur = developpee ? R2 : R * R + 2.0 * R1 * R1 - R2 * R;
    if (numerateur == 0.0) return 0.0;
    return PuissanceTroisDemis((developpee ? 1.0 : R * R) + R1 * R1) / numerateur;
}

void CalculeRayonsCourbure() {
    const bool developpee = etude.resultats.Developpee;
    const long N = etude.resultats.NombrePoints, p = etude.donnees.PointsParDegre;
    etude.resultats.RayonCourbureMin = 1e99;
    for (long i = 0; i < N; i += p) {
        const double rho = RayonCourburePrimitif(etude.resultats.Points[i], etude.resultats.Profil[i], developpee);
        etude.resultats.Profil[i].RayonCourbure = rho;
        if (rho != 0.0 && std::abs(rho) < etude.resultats.RayonCourbureMin)
            etude.resultats.RayonCourbureMin = std::abs(rho);
    }
    for (long i = 0; i <= N && etude.resultats.ProfilExterieur; i += p) {
        PointProfil& c = etude.resultats.Profil[i];
        c.RayonCourbureExterieur = RayonDeCourbure(c.XExterieur1, c.YExterieur1, c.XExterieur2, c.YExterieur2);
    }
    for (long i = 0; i <= N; ++i) {
        PointProfil& c = etude.resultats.Profil[i];
        c.RayonCourbureInterieur = RayonDeCourbure(c.XInterieur1, c.YInterieur1, c.XInterieur2, c.YInterieur2);
    }
}

/// An offset curve that is straight keeps the radius 0 and counts as too small: kept on purpose.
bool TropPetit(double rayonCourbure) {
    return std::abs(rayonCourbure) < etude.donnees.RayonGalet;
}

std::string LigneCourbure(long point, int texte) {
    return Texte(439) + " : " + std::to_string(point) + " => " + Texte(texte) + "\n";
}

} // namespace

void ControleCourbure() {
    CalculeRayonsCourbure();

    int nombre = 0;
    std::string pitch, exterieur;
    for (long i = 0; i <= etude.resultats.NombrePoints; i += etude.donnees.PointsParDegre) {
        const PointProfil& c = etude.resultats.Profil[i];
        if (c.RayonCourbure < 0.0) {
            if (TropPetit(c.RayonCourbureInterieur)) {
                ++nombre;
                pitch += LigneCourbure(i, 632);
            }
            if (etude.resultats.ProfilExterieur && TropPetit(c.RayonCourbureExterieur))
                exterieur += LigneCourbure(i, 633);
        } else if (c.RayonCourbure > 0.0 && TropPetit(c.RayonCourbure)) {
            ++nombre;
            pitch += LigneCourbure(i, 631);
        }
    }
    // One single point is tolerated, and the first list alone decides.
    if (nombre > 1)
        LesDialogues().Message(Icone::Critique, "\n" + Texte(126) + " " + std::to_string(nombre) + " " + Texte(428) +
                                                    "\n\n" + Texte(429) + pitch + exterieur);
}
