// What a designer enters for a cylindrical cam: its scalars, what they must not be, its zones, and the distance of the
// arm's pivot that suits its swing.
#pragma once

#include "cams/DescriptionZones.h"
#include "cams/GroupesDonnees.h"
#include "data/Unites.h"

/// Text numbers of what is a radius on a plane cam and a height here.
enum TextesCyl { TexteHauteurMini = 796, TexteHauteurMaxi = 797, TexteHauteurMm = 798, TexteHauteurCourte = 799 };

inline constexpr DescriptionZones ZonesCylindrique{
    &Zone::RayonDepart, &Zone::RayonFinal, 397, 398, 399, UniteMm, false, true, true, true};
inline constexpr DescriptionZones ZonesOscillation{
    &Zone::AngleDepart, &Zone::AngleFinal, 181, 182, 177, UniteDegres, false, false, true, true};

// Arm and cylinder are told before roller and speed.

/// The cam with a translating follower.
inline constexpr ChampEtude ChampsCylindrique[] = {
    {"RayonGalet", "Text2", 123, UniteMm, &DonneesEtude::RayonGalet, MasqueDonnee, NulOuNegatif, 201, 2},
    {"VitesseCame", "Text1", 157, UniteTours, &DonneesEtude::VitesseCame, MasqueDonnee, Nul, 200, 2},
    {"AnglePesanteur", "Text3", 169, UniteDegres, &DonneesEtude::AnglePesanteur, MasqueDonnee},
    {"DiametreCame", "Text10", 394, UniteMm, &DonneesEtude::DiametreCame, MasqueDonnee, NulOuNegatif, 419, 1},
    {"MasseA", "Text4", 395, UniteKg, &DonneesEtude::MasseA, MasqueDonnee},
    {"ForceY", "Text5", 167, UniteN, &DonneesEtude::ForceY, MasqueForce},
};
inline constexpr GroupeDonnees GroupesCylindrique[] = {
    {"Picture2", 151, {"VitesseCame", "RayonGalet", "DiametreCame"}},
    {"Picture3", 162, {"MasseA"}},
    {"Picture4", 392, {"ForceY"}, true},
    {"Pesanteur", 168, {"AnglePesanteur"}, true, true},
};
static_assert(Repartis(GroupesCylindrique, ChampsCylindrique));

/// The cam with an oscillating follower.
inline constexpr ChampEtude ChampsOscillation[] = {
    {"RayonGalet", "RayonGalet", 123, UniteMm, &DonneesEtude::RayonGalet, MasqueDonnee, NulOuNegatif, 201, 2},
    {"VitesseCame", "VitesseCame", 157, UniteTours, &DonneesEtude::VitesseCame, MasqueDonnee, Nul, 200, 2},
    {"DiametreCame", "Text3", 394, UniteMm, &DonneesEtude::DiametreCame, MasqueDonnee, NulOuNegatif, 419, 1},
    {"CoteA", "Text1", 400, UniteMm, &DonneesEtude::CoteA, MasqueDonnee},
    {"RayonO1P", "Text2", 155, UniteMm, &DonneesEtude::RayonO1P, MasqueDonnee, NulOuNegatif, 202},
    {"InertieMasseA", "Text6", 239, UniteKgM2, &DonneesEtude::InertieMasseA, MasqueDonnee},
    {"CoupleConstantO1", "Text7", 240, UniteNm, &DonneesEtude::CoupleConstantO1, MasqueDonnee},
};
inline constexpr GroupeDonnees GroupesOscillation[] = {
    {"Picture2", 151, {"CoteA", "RayonO1P", "DiametreCame", "RayonGalet", "VitesseCame"}},
    {"Picture3", 158, {"InertieMasseA", "CoupleConstantO1"}},
};
static_assert(Repartis(GroupesOscillation, ChampsOscillation));

/// Distance a from the cam's axis to the pivot O1, mm to two decimals, at which the arc of the roller strays from the
/// axis as far to one side as to the other: half-way between the arm's length and its projection at the largest of the
/// zones' final angles.
double ProposeCoteA();
