// What a designer enters for a plane cam: its zones, and what cannot be calculated with.
#pragma once

#include "cams/DescriptionZones.h"
#include "cams/LimitesSaisie.h"

inline constexpr DescriptionZones ZonesAngulaire{
    &Zone::AngleDepart, &Zone::AngleFinal, 175, 176, 177, UniteDegres, true, true};
inline constexpr DescriptionZones ZonesLineaire{
    &Zone::RayonDepart, &Zone::RayonFinal, 183, 184, 177, UniteMm, false, false};

/// The first scalar of the arm cam at which the calculation could not but divide by zero; none when all will do.
std::optional<FauteDonnee> ChercheFauteAngulaire();

/// The same for the cam with a translating follower.
std::optional<FauteDonnee> ChercheFauteLineaire();
