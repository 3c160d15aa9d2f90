#include "planecams/GeometrieCame.h"

#include "cams/DifferencesProfil.h"
#include "core/Etude.h"
#include "data/Textes.h"
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

} // namespace

void CalculeProfil() {
    CalculeAnglesTangents();
    CalculeCourbesDecalees();
    CalculeDifferences();
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
