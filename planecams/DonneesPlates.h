// What a designer enters for a plane cam: its scalars, what they must not be so that the calculation does not divide by
// zero, and its zones.
#pragma once

#include "cams/DescriptionZones.h"
#include "cams/GroupesDonnees.h"
#include "data/Unites.h"

inline constexpr DescriptionZones ZonesAngulaire{
    &Zone::AngleDepart, &Zone::AngleFinal, 175, 176, 177, UniteDegres, true, true};
inline constexpr DescriptionZones ZonesLineaire{
    &Zone::RayonDepart, &Zone::RayonFinal, 183, 184, 177, UniteMm, false, false};

/// The cam with an oscillating arm.
inline constexpr ChampEtude ChampsAngulaire[] = {
    {"CoteA", "Text1", 152, UniteMm, &DonneesEtude::CoteA, MasqueDonnee, Nul, 197},
    {"CoteB", "Text2", 153, UniteMm, &DonneesEtude::CoteB, MasqueDonnee},
    {"RayonO1A", "Text3", 154, UniteMm, &DonneesEtude::RayonO1A, MasqueDonnee},
    {"RayonO1P", "Text4", 155, UniteMm, &DonneesEtude::RayonO1P, MasqueDonnee, Nul, 202},
    {"AnglePO1A", "Text5", 156, UniteDegres, &DonneesEtude::AnglePO1A, MasqueDonnee},
    {"RayonGalet", "Text6", 123, UniteMm, &DonneesEtude::RayonGalet, MasqueDonnee, NulOuNegatif, 201},
    {"VitesseCame", "Text18", 157, UniteTours, &DonneesEtude::VitesseCame, MasqueDonnee, Nul, 200},
    {"AnglePesanteur", "Text17", 169, UniteDegres, &DonneesEtude::AnglePesanteur, MasqueDonnee},
    {"MasseBrasO1A", "Text7", 159, UniteKg, &DonneesEtude::MasseBrasO1A, MasqueDonnee},
    {"MasseBrasO1P", "Text8", 160, UniteKg, &DonneesEtude::MasseBrasO1P, MasqueDonnee},
    {"EpaisseurCame", "Text9", 161, UniteMm, &DonneesEtude::EpaisseurCame, MasqueDonnee},
    {"MasseA", "Text10", 163, UniteKg, &DonneesEtude::MasseA, MasqueDonnee},
    {"ForceX", "Text11", 166, UniteN, &DonneesEtude::ForceX, MasqueForce},
    {"ForceY", "Text12", 167, UniteN, &DonneesEtude::ForceY, MasqueForce},
};
inline constexpr GroupeDonnees GroupesAngulaire[] = {
    {"Picture2", 151, {"CoteA", "CoteB", "RayonO1A", "RayonO1P", "AnglePO1A", "RayonGalet", "VitesseCame"}},
    {"Picture3", 158, {"MasseBrasO1A", "MasseBrasO1P", "EpaisseurCame"}},
    {"Picture4", 162, {"MasseA"}},
    {"Exterieures", 165, {"ForceX", "ForceY"}, true},
    {"Pesanteur", 168, {"AnglePesanteur"}, true, true},
};
static_assert(Repartis(GroupesAngulaire, ChampsAngulaire));

/// The cam with a translating follower.
inline constexpr ChampEtude ChampsLineaire[] = {
    {"RayonGalet", "Text1", 123, UniteMm, &DonneesEtude::RayonGalet, MasqueDonnee, NulOuNegatif, 201},
    {"VitesseCame", "Text2", 157, UniteTours, &DonneesEtude::VitesseCame, MasqueDonnee, Nul, 200},
    {"AnglePesanteur", "Text17", 169, UniteDegres, &DonneesEtude::AnglePesanteur, MasqueDonnee},
    {"EpaisseurCame", "Text3", 161, UniteMm, &DonneesEtude::EpaisseurCame, MasqueDonnee},
    {"MasseA", "Text4", 163, UniteKg, &DonneesEtude::MasseA, MasqueDonnee},
    {"ForceY", "Text5", 167, UniteN, &DonneesEtude::ForceY, MasqueForce},
};
inline constexpr GroupeDonnees GroupesLineaire[] = {
    {"Picture2", 151, {"RayonGalet", "VitesseCame", "EpaisseurCame"}},
    {"Picture3", 162, {"MasseA"}},
    {"Picture4", 392, {"ForceY"}, true},
    {"Pesanteur", 168, {"AnglePesanteur"}, true, true},
};
static_assert(Repartis(GroupesLineaire, ChampsLineaire));
