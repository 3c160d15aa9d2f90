#include "cylindrical/DonneesCyl.h"

#include <algorithm>
#include <cmath>

double ProposeCoteA() {
    double amax = 0;
    for (long z = 1; z <= etude.donnees.NombreZones; ++z)
        amax = std::max(amax, std::abs(etude.donnees.Zones[z].AngleFinal));
    return Val(Format(etude.donnees.RayonO1P * (1.0 + std::cos(amax * Pi / 180.0)) / 2.0, "###.##"));
}
