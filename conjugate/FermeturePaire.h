// Whether both rollers of a double arm can stand on their cams at once.
//
// The calculation lays the radius of each roller centre on the cam angle, and the cams are keyed to one shaft as they
// stand at the start of the motion. The centres that both pitch curves then offer are as far from each other as the
// rigid double arm demands only where the rollers see the shaft under the same angle as at the start; elsewhere the
// pair gapes or binds by the difference. The rollers themselves are held to be in one plane, which is the severe case.
#pragma once

#include "cams/Passes.h"

#include <array>
#include <vector>

/// A whole cam angle from the first to the last of neighbouring points, degrees.
struct PlageCame {
    double debut, fin;
};

/// A value with the cam angle (degrees) at which it stands.
struct ValeurCame {
    double valeur = 0;
    double angle = 0;
};

struct FermeturePaire {
    double entraxe = 0;              ///< distance of the roller centres on the double arm, mm
    std::vector<double> ecarts;      ///< of what the profiles offer from it, mm, a point each
    ValeurCame ecartMax;             ///< of largest magnitude, signed
    std::array<ValeurCame, 2> jeux;  ///< smallest distance from the contact of each cam to the other's roller, mm
    std::vector<PlageCame> ouvertes; ///< where the distance differs by more than `ToleranceFermeture`
    std::vector<PlageCame> heurtees; ///< where a contact lies inside the other roller
};

/// Difference of the distance that a pair of cams is made to bear, mm.
inline constexpr double ToleranceFermeture = 0.01;

/// Of the pair in `etude.passes`; nothing when there is none.
FermeturePaire CalculeFermeture();

/// Where the centre of a roller stands at point `i` of its cam: mm about the cam centre, y up.
struct PositionGalet {
    double x, y;
};
PositionGalet CentreGaletPaire(const PasseEtude& passe, long i);
/// The direction of that place, radians counter-clockwise from the x axis.
double DirectionGalet(const PasseEtude& passe, long i);

/// What is said of the closure on screen and on paper.
std::vector<LigneControle> LignesFermeture();

/// The differences alone, mm, a point each.
std::vector<double> EcartsFermeture();
