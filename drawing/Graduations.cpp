#include "drawing/Graduations.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

constexpr long NombreMax = 100; ///< graduations of an axis

/// Steps stay among the numbers that have a power of ten.
constexpr double EtendueMin = 1e-300;

} // namespace

double PasGraduationAngle(double etendue, double nombre) {
    for (const double pas : {1.0, 2.0, 5.0, 10.0, 15.0, 30.0, 45.0, 60.0, 90.0, 180.0})
        if (etendue / pas <= nombre) return pas;
    return 360.0 * std::max(1.0, PasGraduation(etendue / 360.0, nombre));
}

double PasGraduation(double etendue, double nombre) {
    etendue = std::clamp(etendue, EtendueMin, EtendueMax);
    const double puissance = std::pow(10.0, std::floor(std::log10(etendue / nombre)));
    for (const double pas : {puissance, 2.0 * puissance, 5.0 * puissance})
        if (etendue / pas <= nombre) return pas;
    return 10.0 * puissance;
}

std::vector<double> ValeursGraduees(double premier, double dernier, double pas) {
    constexpr double tolerance = 1e-9; // in steps
    std::vector<double> valeurs;
    const double etendue = dernier - premier;
    if (!(pas > 0.0) || !std::isfinite(etendue)) return valeurs;
    // Counted, never added up: beside a large number a step may be too small to be seen.
    const double nombre = std::min(std::floor(etendue / pas + tolerance), static_cast<double>(NombreMax - 1));
    for (long i = 0; static_cast<double>(i) <= nombre; ++i) {
        const double valeur = premier + static_cast<double>(i) * pas;
        if (valeurs.empty() || valeur > valeurs.back()) valeurs.push_back(valeur);
    }
    return valeurs;
}
