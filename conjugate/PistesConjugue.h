// The tracks of the pair: the path of each roller past the cam, checked for looping and for undercut. phi is the angle
// of a roller from the line of the two shafts, radians; rho the radius of curvature of the pitch curve, mm. Track k
// starts at (2k - 1) h and is walked degree by degree of the input shaft as far as the roller comes.
#pragma once

#include "conjugate/SaisieConjugue.h"

#include <optional>
#include <string>
#include <vector>

/// The cutter needs so much more radius than the roller: 0.005 inch, mm.
inline constexpr double JeuUsinage = 0.005 * 25.4;

/// A contact of roller and cam.
struct Contact {
    double RCF = 0; ///< centre of the cam to centre of the roller, mm
    double PA = 0;  ///< pressure angle, degrees
};

/// @param omega speed of the output against that of the input
/// @throws ErreurExecution division by zero on the line of the shafts
Contact Sss(double Q, double R, double omega, double phi);

struct PointPiste {
    double T = 0;   ///< input angle, degrees
    double phi = 0; ///< rad
    double rho = 0; ///< mm
};

struct Courbures {
    double RayonMini = 1000000;                  ///< stays when no track was walked
    double RayonMaxi = -1000000;                 ///< likewise
    double PMin = 0;                             ///< smallest radius that is not negative, at most Q + R
    std::vector<std::vector<PointPiste>> pistes; ///< what was walked, one entry a track
};

/// The message of a track that loops; none when none does. The work variable of the check stays 0, on purpose: no
/// velocity is counted.
std::optional<std::string> ChercheLooping(const DonneesConjugue& d, std::vector<std::string>& ecran);

/// The radii of curvature on all tracks.
/// @param courbures as far as the tracks were walked
/// @return the message of an undercut track, which ends the walk; none when the roller fits everywhere
/// @throws ErreurExecution subscript out of range for an undercut track without letter; division by zero
std::optional<std::string> CalculeCourbures(const DonneesConjugue& d, Courbures& courbures,
                                            std::vector<std::string>& ecran);

/// Radius of curvature of the pitch curve, mm, where a roller stands at `phi`.
double RayonCourbureConjugue(const DonneesConjugue& d, const MouvementIndex& mouvement, double phi);
