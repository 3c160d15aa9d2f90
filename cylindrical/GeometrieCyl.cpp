#include "cylindrical/GeometrieCyl.h"

#include "cams/DifferencesProfil.h"
#include "core/Etude.h"
#include "data/Textes.h"
#include "platform/Dialogues.h"

#include <cmath>
#include <string>

namespace {

void CalculePentes(double L) {
    etude.resultats.AngleTangentMax = 0;
    const long N = etude.resultats.NombrePoints;
    for (long i = 0; i <= N; ++i) {
        const double Y = etude.resultats.Points[i].Rayon;
        const double suivant = i < N ? etude.resultats.Points[i + 1].Rayon : Y;
        // Divided by the arc of a whole degree whatever the points per degree: required as it stands.
        const double angle = std::atan(Divise(suivant - Y, L * etude.donnees.PointsParDegre));
        etude.resultats.Profil[i].AngleTangent = angle;
        if (std::abs(angle) > std::abs(etude.resultats.AngleTangentMax)) etude.resultats.AngleTangentMax = angle;
    }
}

void CalculeFlancs(double L) {
    const double r = etude.donnees.RayonGalet;
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        PointProfil& profil = etude.resultats.Profil[i];
        const double x = L * static_cast<double>(i), Y = etude.resultats.Points[i].Rayon;
        const double sinA = std::sin(profil.AngleTangent), cosA = std::cos(profil.AngleTangent);
        profil.XInterieur = x + r * sinA;
        profil.YInterieur = Y - r * cosA;
        profil.XExterieur = x - r * sinA;
        profil.YExterieur = Y + r * cosA;
    }
}

/// Differences per mm of arc, towards the next point; the last point repeats the value of the first.
void CalculeDifferences(double L) {
    const auto derive = [L](auto ici, auto suivant) { return (suivant - ici) / L; };
    PointProfil& fin = etude.resultats.Profil[etude.resultats.NombrePoints];
    const PointProfil& debut = etude.resultats.Profil[0];
    CalculePremieresDifferences(derive);
    fin.DeriveeRayon = debut.DeriveeRayon;
    for (const auto& d : DifferencesPremieres) fin.*d.vers = debut.*d.vers;
    CalculeSecondesDifferences(derive);
    for (const auto& d : DifferencesSecondes) fin.*d.vers = debut.*d.vers;
}

} // namespace

double ArcEntrePoints() {
    return (Pi / 180.0) * (etude.donnees.DiametreCame / 2.0) / etude.donnees.PointsParDegre;
}

void GeometrieCyl() {
    const double L = ArcEntrePoints();
    CalculePentes(L);
    CalculeFlancs(L);
    CalculeDifferences(L);
}

double PenteVraieMaxi() {
    double course = 0;
    for (long i = 0; i < etude.resultats.NombrePoints; ++i) {
        const double c = etude.resultats.Points[i + 1].Rayon - etude.resultats.Points[i].Rayon;
        if (std::abs(c) > std::abs(course)) course = c;
    }
    return std::atan(Divise(course, ArcEntrePoints())) * 180.0 / Pi;
}

void ControleSpires() {
    const long tour = 360L * etude.donnees.PointsParDegre;
    int nombre = 0;
    for (long i = 1; i + tour <= etude.resultats.NombrePoints - 1; ++i)
        if (etude.resultats.Points[i + tour].Rayon - etude.resultats.Points[i].Rayon - 2.0 * etude.donnees.RayonGalet <=
            0.0)
            ++nombre;
    if (nombre == 0) return;
    LesDialogues().Message(Icone::Critique,
                           Texte(126) + " " + std::to_string(nombre) + "\n" + Texte(430) + "\n" + Texte(431));
    etude.resultats.Erreur = Vrai;
}
