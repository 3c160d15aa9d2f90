#include "conjugate/LimitesPaire.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int TexteNul = 197, TexteVitesse = 200, TexteCotes = 657, TexteGrandeurs = 498;

constexpr double DonneesEtude::*grandeurs[] = {&DonneesEtude::RayonBrasR1, &DonneesEtude::RayonGaletG1,
                                               &DonneesEtude::RayonBrasR2, &DonneesEtude::RayonGaletG2,
                                               &DonneesEtude::InertieO1};

} // namespace

std::optional<FautePaire> ChercheFauteVitesse(const DonneesEtude& donnees) {
    if (donnees.VitesseCame != 0.0) return {};
    return FautePaire{"VitesseCame", TexteVitesse};
}

std::optional<FautePaire> ChercheFautePaire(const DonneesEtude& donnees) {
    if (donnees.CoteA == 0.0 && donnees.CoteB == 0.0) return FautePaire{"CoteA", TexteCotes};
    // The product decides, on purpose: two negative numbers make up for each other.
    double produit = 1;
    for (const auto grandeur : grandeurs) produit *= donnees.*grandeur;
    // The last of these fields is where the check has always led.
    if (!(produit > 0.0)) return FautePaire{"InertieO1", TexteGrandeurs};
    // The line from the cam centre to the pivot is taken by its slope: what divides by zero is told before.
    if (donnees.CoteA == 0.0) return FautePaire{"CoteA", TexteNul};
    return {};
}

bool DonneesNegatives(const DonneesEtude& donnees) {
    return std::any_of(std::begin(grandeurs), std::end(grandeurs),
                       [&](const auto grandeur) { return donnees.*grandeur < 0.0; });
}
