// What a drawing covers, in mechanism units, y up.
#pragma once

#include "platform/Dessin.h"

#include <algorithm>

struct Etendue {
    PointDessin bas, haut; ///< lower left and upper right corner

    double Largeur() const { return haut.x - bas.x; }
    double Hauteur() const { return haut.y - bas.y; }

    /// Grows as far as needed to hold a disc.
    void Contient(PointDessin centre, double rayon = 0) {
        bas = {std::min(bas.x, centre.x - rayon), std::min(bas.y, centre.y - rayon)};
        haut = {std::max(haut.x, centre.x + rayon), std::max(haut.y, centre.y + rayon)};
    }
};
