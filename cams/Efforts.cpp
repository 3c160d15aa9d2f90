#include "cams/Efforts.h"

#include "cams/ParcoursZones.h"

#include <cmath>

double GraviteProjetee() {
    const double g = (etude.donnees.AnglePesanteur - 90.0) * Pi / 180.0;
    return (std::cos(g) - std::sin(g)) * Gravite;
}

void RemetEfforts() {
    etude.resultats.ForceGaletMax = etude.resultats.CoupleMax = 0;
    etude.resultats.ForceGaletMaxAngle = etude.resultats.CoupleMaxAngle = 0;
}

void SuitEfforts(const Point& p, double repere) {
    SuitMaximum(p.ForceGalet, repere, etude.resultats.ForceGaletMax, etude.resultats.ForceGaletMaxAngle);
    SuitMaximum(p.Couple, repere, etude.resultats.CoupleMax, etude.resultats.CoupleMaxAngle);
}
