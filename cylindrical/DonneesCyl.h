// What a designer enters for a cylindrical cam: its zones, what cannot be calculated with, and the distance of the
// arm's pivot that suits its swing.
#pragma once

#include "cams/DescriptionZones.h"
#include "cams/LimitesSaisie.h"

/// Text numbers of what is a radius on a plane cam and a height here.
enum TextesCyl { TexteHauteurMini = 796, TexteHauteurMaxi = 797, TexteHauteurMm = 798, TexteHauteurCourte = 799 };

inline constexpr DescriptionZones ZonesCylindrique{
    &Zone::RayonDepart, &Zone::RayonFinal, 397, 398, 399, UniteMm, false, true, true};
inline constexpr DescriptionZones ZonesOscillation{
    &Zone::AngleDepart, &Zone::AngleFinal, 181, 182, 177, UniteDegres, false, false, true};

/// The scalar without which a zone has no duration.
std::optional<FauteDonnee> ChercheFauteDuree();

/// The first scalar at which the calculation could not but fail; none when all will do.
std::optional<FauteDonnee> ChercheFauteCylindrique();
std::optional<FauteDonnee> ChercheFauteOscillation();

/// Distance a from the cam's axis to the pivot O1, mm to two decimals, at which the arc of the roller strays from the
/// axis as far to one side as to the other: half-way between the arm's length and its projection at the largest of the
/// zones' final angles.
double ProposeCoteA();
