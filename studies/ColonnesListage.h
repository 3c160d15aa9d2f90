// The columns of the point-to-point listings, those of one cam and of several alike. The cam angle comes first in each.
#pragma once

#include "cams/Pente.h"
#include "core/ValeurPoint.h"
#include "data/Unites.h"

struct ColonneListage {
    int texte; ///< text number of the heading
    int unite; ///< text number of the unit
    double (*valeur)(long point);
    const char* masque;
    int texteDeveloppee = 0; ///< the heading on a developed cam, where it is another
};

/// Pressure angle, degrees: 0 where the follower rests.
inline double AnglePression(long point) {
    return Pente(etude.resultats.Profil[point].AngleTangent);
}

inline constexpr const char* MasqueLongueur = "###.###";
inline constexpr const char* MasqueVitesse = "##.###";
inline constexpr const char* MasqueAccel = "###.##";

inline constexpr ColonneListage ColonneAngle{245, UniteDegres, DuPoint<&Point::Angle>, "##0"};

/// Motion of the roller centre.
inline constexpr ColonneListage ColonnesGalet[] = {
    {247, UniteMm, DuPoint<&Point::Rayon>, MasqueLongueur, 244},
    {225, UniteMS, DuPoint<&Point::VitesseRayon>, MasqueVitesse},
    {226, UniteMS2, DuPoint<&Point::AccelRayon>, MasqueAccel},
    {261, UniteTours, DuPoint<&Point::VitesseGalet>, MasqueAccel},
};

/// Motion of the arm.
inline constexpr ColonneListage ColonnesBras[] = {
    {246, UniteDegres, DuMouvement<&PointLoi::Course>, MasqueLongueur},
    {248, UniteRadS, DuMouvement<&PointLoi::Vitesse>, MasqueVitesse},
    {249, UniteRadS2, DuMouvement<&PointLoi::Accel>, MasqueAccel},
};

inline constexpr ColonneListage ColonnePression[] = {{253, UniteDegres, AnglePression, "###.##"}};

inline constexpr ColonneListage ColonnesEfforts[] = {
    {251, UniteN, DuPoint<&Point::ForceGalet>, "###.##"},
    {252, UniteNm, DuPoint<&Point::Couple>, "###.###"},
    ColonnePression[0],
};

/// Radii of curvature of the pitch curve and of the inner profile, which every cam has.
inline constexpr ColonneListage ColonnesCourbure[] = {
    {254, UniteMm, DuProfil<&PointProfil::RayonCourbure>, "###.##"},
    {255, UniteMm, DuProfil<&PointProfil::RayonCourbureInterieur>, "###.##"},
};
