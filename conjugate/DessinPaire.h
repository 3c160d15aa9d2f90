// The drawing of a pair of conjugate cams on their shaft, with the double arm and both rollers.
#pragma once

#include "drawing/Etendue.h"
#include "platform/Dessin.h"

#include <vector>

/// The curves of one cam of the present pair, cam millimetres about the cam centre, y up.
struct ContoursPaire {
    std::vector<PointDessin> profil, primitif; ///< inner profile and pitch curve
    double calage;                             ///< angle that the cam is keyed at on the shaft, radians
};

/// @param points that a curve needs at least; of more, every so manyth is taken. 0 for all
ContoursPaire CalculeContoursPaire(std::size_t rang, long points);

/// What a drawing of the pair covers at any angle: the larger of the cams with the roller G1 and 10 mm around the cam
/// centre, and the arms.
Etendue EtenduePaire();

/// The arm pivot, and the centre of a roller at point `i` of its cam.
PointDessin PivotPaire();
PointDessin CentreGalet(std::size_t rang, long i);

/// Both cams with the shaft at `angle` degrees (0..360) from its start, clockwise. The guide cam touches its roller;
/// the follower cam is keyed to it as both stand at the start, so that what the pair gapes or binds is seen.
void DessinePaire(Dessin& dessin, double angle);

/// Units of a surface of that size for one millimetre of the pair.
double EchellePaire(double largeur, double hauteur);
