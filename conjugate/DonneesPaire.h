// What a designer enters for a pair of conjugate cams that swing a double arm: its scalars, its zones, and what the two
// cams are called. The guide cam carries the roller G1 of the arm R1, the follower cam the roller G2 of the arm R2.
#pragma once

#include "cams/DescriptionZones.h"
#include "cams/GroupesDonnees.h"
#include "cams/Passes.h"
#include "data/Unites.h"

/// Masks of the scalars of a pair in study files.
inline constexpr const char* MasquePaire = "###.###";
inline constexpr const char* MasquePaireLarge = "####.###";

/// The zones are angles of the arm R1; those of the arm R2 follow.
inline constexpr DescriptionZones ZonesPaire{
    &Zone::AngleDepart, &Zone::AngleFinal, 478, 479, 177, UniteDegres, false, false};

/// None of them is refused here: a file is calculated as it stands. What the screen refuses is in LimitesPaire.
inline constexpr ChampEtude ChampsPaire[] = {
    {"CoteA", "Text14", 468, UniteMm, &DonneesEtude::CoteA, MasquePaire},
    {"CoteB", "Text15", 469, UniteMm, &DonneesEtude::CoteB, MasquePaire},
    {"RayonBrasR1", "Text2", 470, UniteMm, &DonneesEtude::RayonBrasR1, MasquePaire},
    {"RayonGaletG1", "Text3", 471, UniteMm, &DonneesEtude::RayonGaletG1, MasquePaire},
    {"RayonBrasR2", "Text4", 472, UniteMm, &DonneesEtude::RayonBrasR2, MasquePaire},
    {"RayonGaletG2", "Text5", 473, UniteMm, &DonneesEtude::RayonGaletG2, MasquePaire},
    {"VitesseCame", "Text8", 298, UniteTours, &DonneesEtude::VitesseCame, MasquePaire},
    {"AngleBras", "Text6", 474, UniteDegres, &DonneesEtude::AngleBras, MasquePaire},
    {"InertieO1", "Text7", 475, UniteKgM2, &DonneesEtude::InertieO1, MasquePaireLarge},
};
inline constexpr GroupeDonnees GroupesPaire[] = {
    {"Picture2", 151, {"CoteA", "CoteB", "AngleBras", "VitesseCame"}},
    {"Picture3", 484, {"RayonBrasR1", "RayonGaletG1"}, false, false, " G1 "},
    {"Picture4", 485, {"RayonBrasR2", "RayonGaletG2"}, false, false, " G2 "},
    {"Picture6", 158, {"InertieO1"}},
};
static_assert(Repartis(GroupesPaire, ChampsPaire));

/// The cams of a pair, and their places among the passes of a study.
enum CamePaire { CameGuide, CameSuiveuse };
inline constexpr DescriptionPasse PassesPaire[] = {
    {"Guide", 484, 499, 486, "Rayon du galet guide ,", "Point à point came guide"},
    {"Suiveur", 485, 500, 487, "Rayon du galet suiveur ,", "Point à point came suiveuse"},
};
