#include "cams/Efforts.h"

#include "cams/ParcoursZones.h"

#include <cmath>

double GraviteProjetee() {
    const double g = (etude.AnglePesanteur - 90.0) * Pi / 180.0;
    return (std::cos(g) - std::sin(g)) * Gravite;
}

void RemetEfforts() {
    etude.ForceGaletMax = 0;
    etude.CoupleMax = 0;
}

void SuitEfforts(const Point& p, double repere) {
    SuitMaximum(p.ForceGalet, repere, etude.ForceGaletMax, etude.ForceGaletMaxAngle);
    SuitMaximum(p.Couple, repere, etude.CoupleMax, etude.CoupleMaxAngle);
}
