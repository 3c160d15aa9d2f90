#include "conjugate/LimitesPaire.h"

namespace {

constexpr int TexteNul = 197, TexteVitesse = 200, TexteCotes = 657, TexteGrandeurs = 498;

constexpr struct {
    const char* nom;
    double DonneesEtude::*membre;
} grandeurs[] = {{"RayonBrasR1", &DonneesEtude::RayonBrasR1},
                 {"RayonGaletG1", &DonneesEtude::RayonGaletG1},
                 {"RayonBrasR2", &DonneesEtude::RayonBrasR2},
                 {"RayonGaletG2", &DonneesEtude::RayonGaletG2},
                 {"InertieO1", &DonneesEtude::InertieO1}};

} // namespace

std::optional<FautePaire> ChercheFauteVitesse(const DonneesEtude& donnees) {
    if (donnees.VitesseCame != 0.0) return {};
    return FautePaire{"VitesseCame", TexteVitesse};
}

std::optional<FautePaire> ChercheFautePaire(const DonneesEtude& donnees) {
    if (donnees.CoteA == 0.0 && donnees.CoteB == 0.0) return FautePaire{"CoteA", TexteCotes};
    // The line from the cam centre to the pivot is taken by its slope.
    if (donnees.CoteA == 0.0) return FautePaire{"CoteA", TexteNul};
    double produit = 1;
    for (const auto& grandeur : grandeurs) produit *= donnees.*grandeur.membre;
    // The last of these fields is where the check has always led.
    if (!(produit > 0.0)) return FautePaire{"InertieO1", TexteGrandeurs};
    for (const auto& grandeur : grandeurs)
        if (donnees.*grandeur.membre < 0.0) return FautePaire{grandeur.nom, TexteGrandeurs};
    return {};
}
