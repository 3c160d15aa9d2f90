#include "planecams/GeometrieCame.h"

#include "core/Etude.h"
#include "data/Textes.h"
#include "planecams/DifferencesProfil.h"
#include "platform/Dialogues.h"

#include <cmath>
#include <string>

namespace {

/// Difference of two neighbours against the cam angle. The division by `PointsParDegre` is required as it stands, so
/// that this is the true derivative with one point per degree only.
double Derive(double ici, double suivant) {
    return (ici - suivant) * 180.0 / etude.PointsParDegre / Pi;
}

void CalculeAnglesTangents() {
    etude.AngleTangentMax = 0;
    const long N = etude.NombrePoints;
    for (long i = 0; i <= N; ++i) {
        const double R = etude.Points[i].Rayon;
        const double R2 = i < N ? etude.Points[i + 1].Rayon : R;
        const double angle = std::atan(Divise((R - R2) * etude.PointsParDegre * (180.0 / Pi), R)) + Pi / 2.0;
        etude.Profil[i].AngleTangent = angle;
        if (std::abs(angle) > std::abs(etude.AngleTangentMax)) etude.AngleTangentMax = angle;
    }
}

void CalculeCourbesDecalees() {
    const double G = etude.RayonGalet;
    for (long i = 0; i <= etude.NombrePoints; ++i) {
        PointProfil& profil = etude.Profil[i];
        const double R = etude.Points[i].Rayon;
        const double a = etude.Points[i].Angle * Pi / 180.0;
        const double t = a + profil.AngleTangent;
        const double cosA = std::cos(a), sinA = std::sin(a), cosT = std::cos(t), sinT = std::sin(t);
        profil.XInterieur = cosA * R - sinT * G;
        profil.YInterieur = sinA * R + cosT * G;
        profil.XExterieur = cosA * R + sinT * G;
        profil.YExterieur = sinA * R - cosT * G;
    }
}

void CalculeDifferences() {
    // Index of the last degree, not of the last point: with more than one point per degree the closing value lands in
    // mid-table and the last point keeps 0, as required.
    const long M = Entier16(static_cast<double>(etude.NombrePoints) / etude.PointsParDegre);
    CalculePremieresDifferences(Derive);
    PointProfil& fin = etude.Profil[M];
    const PointProfil& debut = etude.Profil[0];
    fin.DeriveeRayon = debut.DeriveeRayon;
    fin.YExterieur1 = debut.YExterieur1;
    fin.YInterieur1 = debut.YInterieur1;
    CalculeSecondesDifferences(Derive);
    fin.Derivee2Rayon = debut.Derivee2Rayon;
    fin.YExterieur2 = debut.YExterieur2;
    fin.YInterieur2 = debut.YInterieur2;
}

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

void CalculeRayonsCourbure(bool developpee, bool conjuguees) {
    const long N = etude.NombrePoints, p = etude.PointsParDegre;
    etude.RayonCourbureMin = 1e99;
    for (long i = 0; i < N; i += p) {
        const double rho = RayonCourburePrimitif(etude.Points[i], etude.Profil[i], developpee);
        etude.Profil[i].RayonCourbure = rho;
        if (rho != 0.0 && std::abs(rho) < etude.RayonCourbureMin) etude.RayonCourbureMin = std::abs(rho);
    }
    for (long i = 0; i <= N && !conjuguees; i += p) {
        PointProfil& c = etude.Profil[i];
        c.RayonCourbureExterieur = RayonDeCourbure(c.XExterieur1, c.YExterieur1, c.XExterieur2, c.YExterieur2);
    }
    for (long i = 0; i <= N; ++i) {
        PointProfil& c = etude.Profil[i];
        c.RayonCourbureInterieur = RayonDeCourbure(c.XInterieur1, c.YInterieur1, c.XInterieur2, c.YInterieur2);
    }
}

/// An offset curve that is straight keeps the radius 0 and counts as too small: kept on purpose.
bool TropPetit(double rayonCourbure) {
    return std::abs(rayonCourbure) < etude.RayonGalet;
}

std::string LigneCourbure(long point, int texte) {
    return Texte(439) + " : " + std::to_string(point) + " => " + Texte(texte) + "\n";
}

} // namespace

void CalculeProfil() {
    CalculeAnglesTangents();
    CalculeCourbesDecalees();
    CalculeDifferences();
}

bool CameDeveloppee() {
    return etude.TypeCame == "Oscillation" || etude.TypeCame == "Cylindrique";
}

double Pente(double angleTangent) {
    return angleTangent * 180.0 / Pi - (CameDeveloppee() ? 0.0 : 90.0);
}

double PenteMaxi() {
    return Pente(etude.AngleTangentMax);
}

void ControleBrasCentre() {
    const double B = std::atan(Divise(etude.CoteB, etude.CoteA)) * 180.0 / Pi;
    const double P0 = etude.AnglePO1A + etude.Points[0].AngleBras;
    for (long i = 0; i <= etude.NombrePoints; ++i) {
        const double P = etude.AnglePO1A + etude.Points[i].AngleBras;
        if ((P0 < B && P > B) || (P0 > B && P < B)) etude.Erreur = Vrai;
    }
    if (!SansErreur()) LesDialogues().Message(Icone::Critique, Texte(427));
}

void ControleCourbure() {
    const bool conjuguees = etude.TypeCame == "ConjuguesOscillation";
    CalculeRayonsCourbure(CameDeveloppee(), conjuguees);

    int nombre = 0;
    std::string pitch, exterieur;
    for (long i = 0; i <= etude.NombrePoints; i += etude.PointsParDegre) {
        const PointProfil& c = etude.Profil[i];
        if (c.RayonCourbure < 0.0) {
            if (TropPetit(c.RayonCourbureInterieur)) {
                ++nombre;
                pitch += LigneCourbure(i, 632);
            }
            if (!conjuguees && TropPetit(c.RayonCourbureExterieur)) exterieur += LigneCourbure(i, 633);
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
