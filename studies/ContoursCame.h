// The curves of a plane cam as the study record holds them, cam millimetres about the cam centre, y up.
#pragma once

#include "platform/Dessin.h"

#include <vector>

struct ContoursCame {
    std::vector<PointDessin> interieur, exterieur, primitif; ///< 0..`NombrePoints`
};

ContoursCame CalculeContours();
