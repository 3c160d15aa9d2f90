// First and second differences of the radius and of the two offset curves, point by point. How two neighbours make a
// difference, and how the end of the table is closed, is the cam's own.
#pragma once

#include "core/Etude.h"

#include <cstddef>

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

/// Two numbers that the processor works on at once: the divisions in `derive` are what these differences cost.
using Paire [[gnu::vector_size(2 * sizeof(double))]] = double;

/// Fills the differences of one point, two by two.
template <std::size_t nombre, class Derive>
void DerivePoint(const Difference (&differences)[nombre], PointProfil& ici, const PointProfil& suivant, Derive derive) {
    std::size_t c = 0;
    for (; c + 1 < nombre; c += 2) {
        const Difference &une = differences[c], &autre = differences[c + 1];
        const Paire resultat = derive(Paire{ici.*une.de, ici.*autre.de}, Paire{suivant.*une.de, suivant.*autre.de});
        ici.*une.vers = resultat[0];
        ici.*autre.vers = resultat[1];
    }
    if (c < nombre) ici.*differences[c].vers = derive(ici.*differences[c].de, suivant.*differences[c].de);
}

/// Fills the first differences at points 0 to `NombrePoints` - 1.
/// @param derive called with the value at a point and at the next, or with two of each
template <class Derive> void CalculePremieresDifferences(Derive derive) {
    for (long i = 0; i < etude.resultats.NombrePoints; ++i) {
        PointProfil& ici = etude.resultats.Profil[i];
        ici.DeriveeRayon = derive(etude.resultats.Points[i].Rayon, etude.resultats.Points[i + 1].Rayon);
        DerivePoint(DifferencesPremieres, ici, etude.resultats.Profil[i + 1], derive);
    }
}

/// The same for the second ones, from the first.
template <class Derive> void CalculeSecondesDifferences(Derive derive) {
    for (long i = 0; i < etude.resultats.NombrePoints; ++i)
        DerivePoint(DifferencesSecondes, etude.resultats.Profil[i], etude.resultats.Profil[i + 1], derive);
}
