#include "planecams/GeometrieCame.h"

#include "cams/DifferencesProfil.h"
#include "core/Etude.h"
#include "data/Textes.h"
#include "platform/Dialogues.h"

#include <cmath>

namespace {

void CalculeAnglesTangents() {
    etude.resultats.AngleTangentMax = 0;
    const long N = etude.resultats.NombrePoints;
    for (long i = 0; i <= N; ++i) {
        const double R = etude.resultats.Points[i].Rayon;
        const double R2 = i < N ? etude.resultats.Points[i + 1].Rayon : R;
        const double angle = std::atan(Divise((R - R2) * etude.donnees.PointsParDegre * (180.0 / Pi), R)) + Pi / 2.0;
        etude.resultats.Profil[i].AngleTangent = angle;
        if (std::abs(angle) > std::abs(etude.resultats.AngleTangentMax)) etude.resultats.AngleTangentMax = angle;
    }
}

void CalculeCourbesDecalees() {
    const double G = etude.donnees.RayonGalet;
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        PointProfil& profil = etude.resultats.Profil[i];
        const double R = etude.resultats.Points[i].Rayon;
        const double a = etude.resultats.Points[i].Angle * Pi / 180.0;
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
    const long M = Entier16(static_cast<double>(etude.resultats.NombrePoints) / etude.donnees.PointsParDegre);
    // The division by `PointsParDegre` is required as it stands, so that this is the true derivative against the cam
    // angle with one point per degree only.
    const auto derive = [p = static_cast<double>(etude.donnees.PointsParDegre), pi = Pi](auto ici, auto suivant) {
        return (ici - suivant) * 180.0 / p / pi;
    };
    CalculePremieresDifferences(derive);
    PointProfil& fin = etude.resultats.Profil[M];
    const PointProfil& debut = etude.resultats.Profil[0];
    fin.DeriveeRayon = debut.DeriveeRayon;
    fin.YExterieur1 = debut.YExterieur1;
    fin.YInterieur1 = debut.YInterieur1;
    CalculeSecondesDifferences(derive);
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
    const double B = std::atan(Divise(etude.donnees.CoteB, etude.donnees.CoteA)) * 180.0 / Pi;
    const double P0 = etude.donnees.AnglePO1A + etude.resultats.Points[0].AngleBras;
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        const double P = etude.donnees.AnglePO1A + etude.resultats.Points[i].AngleBras;
        if ((P0 < B && P > B) || (P0 > B && P < B)) etude.resultats.Erreur = Vrai;
    }
    if (!SansErreur()) LesDialogues().Message(Icone::Critique, Texte(427));
}
