#include "cylindrical/GeometrieCyl.h"

#include "cams/DifferencesProfil.h"
#include "core/Etude.h"
#include "data/Textes.h"
#include "platform/Dialogues.h"

#include <cmath>
#include <string>

namespace {

void CalculePentes(double L) {
    etude.AngleTangentMax = 0;
    const long N = etude.NombrePoints;
    for (long i = 0; i <= N; ++i) {
        const double Y = etude.Points[i].Rayon;
        const double suivant = i < N ? etude.Points[i + 1].Rayon : Y;
        // Divided by the arc of a whole degree whatever the points per degree: required as it stands.
        const double angle = std::atan(Divise(suivant - Y, L * etude.PointsParDegre));
        etude.Profil[i].AngleTangent = angle;
        if (std::abs(angle) > std::abs(etude.AngleTangentMax)) etude.AngleTangentMax = angle;
    }
}

void CalculeFlancs(double L) {
    const double r = etude.RayonGalet;
    for (long i = 0; i <= etude.NombrePoints; ++i) {
        PointProfil& profil = etude.Profil[i];
        const double x = L * static_cast<double>(i), Y = etude.Points[i].Rayon;
        const double sinA = std::sin(profil.AngleTangent), cosA = std::cos(profil.AngleTangent);
        profil.XInterieur = x + r * sinA;
        profil.YInterieur = Y - r * cosA;
        profil.XExterieur = x - r * sinA;
        profil.YExterieur = Y + r * cosA;
    }
}

/// Differences per mm of arc, towards the next point; the last point repeats the value of the first.
void CalculeDifferences(double L) {
    const auto derive = [L](double ici, double suivant) { return (suivant - ici) / L; };
    PointProfil& fin = etude.Profil[etude.NombrePoints];
    const PointProfil& debut = etude.Profil[0];
    CalculePremieresDifferences(derive);
    fin.DeriveeRayon = debut.DeriveeRayon;
    for (const auto& d : DifferencesPremieres) fin.*d.vers = debut.*d.vers;
    CalculeSecondesDifferences(derive);
    for (const auto& d : DifferencesSecondes) fin.*d.vers = debut.*d.vers;
}

} // namespace

double ArcEntrePoints() {
    return (Pi / 180.0) * (etude.DiametreCame / 2.0) / etude.PointsParDegre;
}

void GeometrieCyl() {
    const double L = ArcEntrePoints();
    CalculePentes(L);
    CalculeFlancs(L);
    CalculeDifferences(L);
}

void ControleSpires() {
    const long tour = 360L * etude.PointsParDegre;
    int nombre = 0;
    for (long i = 1; i + tour <= etude.NombrePoints - 1; ++i)
        if (etude.Points[i + tour].Rayon - etude.Points[i].Rayon - 2.0 * etude.RayonGalet <= 0.0) ++nombre;
    if (nombre == 0) return;
    LesDialogues().Message(Icone::Critique,
                           Texte(126) + " " + std::to_string(nombre) + "\n" + Texte(430) + "\n" + Texte(431));
    etude.Erreur = Vrai;
}
