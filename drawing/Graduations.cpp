#include "drawing/Graduations.h"

#include <cmath>
#include <initializer_list>

double PasGraduationAngle(double etendue, double nombre) {
    for (const double pas : {1.0, 2.0, 5.0, 10.0, 15.0, 30.0, 45.0, 60.0, 90.0, 180.0})
        if (etendue / pas <= nombre) return pas;
    return 360.0;
}

double PasGraduation(double etendue, double nombre) {
    const double puissance = std::pow(10.0, std::floor(std::log10(etendue / nombre)));
    for (const double pas : {puissance, 2.0 * puissance, 5.0 * puissance})
        if (etendue / pas <= nombre) return pas;
    return 10.0 * puissance;
}
