// The developed cam: the cylinder's surface cut along a generating line and laid flat, x along the circumference from
// 0, y along the axis, in mm. A track of several turns lies on the same sheet once a turn.
#pragma once

#include "platform/Dessin.h"

#include <vector>

/// One passage of the track over the sheet.
struct TourDeveloppe {
    long debut = 0; ///< point of the results that its curves begin with
    std::vector<PointDessin> interieur, exterieur, primitif;
};

struct Developpee {
    double largeur = 0;                      ///< circumference
    double hauteurMini = 0, hauteurMaxi = 0; ///< of the roller centre
    double bas = 0, haut = 0;                ///< edges of the cylinder
    std::vector<TourDeveloppe> tours;
};

/// Of the present results; without turns where there are none.
Developpee CalculeDeveloppee();

/// Turns that the track takes around the cam, a part of one counted whole.
long NombreTours();

/// Where the roller centre of a point stands on the sheet.
PointDessin CentreGaletDeveloppe(long point);

/// The pivot of the arm that holds the roller there: at height 0, as far back as the arm reaches.
PointDessin PivotDeveloppe(long point);
