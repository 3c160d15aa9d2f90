// First and second differences of the radius and of the two offset curves, point by point. How two neighbours make a
// difference, and how the end of the table is closed, is the cam's own.
#pragma once

#include "core/Etude.h"

struct Difference {
    double PointProfil::*de;
    double PointProfil::*vers;
};

inline constexpr Difference DifferencesPremieres[] = {
    {&PointProfil::XExterieur, &PointProfil::XExterieur1},
    {&PointProfil::YExterieur, &PointProfil::YExterieur1},
    {&PointProfil::XInterieur, &PointProfil::XInterieur1},
    {&PointProfil::YInterieur, &PointProfil::YInterieur1},
};
inline constexpr Difference DifferencesSecondes[] = {
    {&PointProfil::DeriveeRayon, &PointProfil::Derivee2Rayon}, {&PointProfil::XExterieur1, &PointProfil::XExterieur2},
    {&PointProfil::YExterieur1, &PointProfil::YExterieur2},    {&PointProfil::XInterieur1, &PointProfil::XInterieur2},
    {&PointProfil::YInterieur1, &PointProfil::YInterieur2},
};

/// Fills the first differences at points 0 to `NombrePoints` - 1.
/// @param derive called with the value at a point and at the next
template <class Derive> void CalculePremieresDifferences(Derive derive) {
    for (long i = 0; i < etude.resultats.NombrePoints; ++i) {
        PointProfil& ici = etude.resultats.Profil[i];
        const PointProfil& suivant = etude.resultats.Profil[i + 1];
        ici.DeriveeRayon = derive(etude.resultats.Points[i].Rayon, etude.resultats.Points[i + 1].Rayon);
        for (const auto& d : DifferencesPremieres) ici.*d.vers = derive(ici.*d.de, suivant.*d.de);
    }
}

/// The same for the second ones, from the first.
template <class Derive> void CalculeSecondesDifferences(Derive derive) {
    for (long i = 0; i < etude.resultats.NombrePoints; ++i) {
        PointProfil& ici = etude.resultats.Profil[i];
        const PointProfil& suivant = etude.resultats.Profil[i + 1];
        for (const auto& d : DifferencesSecondes) ici.*d.vers = derive(ici.*d.de, suivant.*d.de);
    }
}
