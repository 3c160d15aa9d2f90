#include "drawing/AxeGraphe.h"

#include "core/Nombres.h"
#include "drawing/Graduations.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double GraduationsAngles = 13, GraduationsValeurs = 5; ///< as many as the numbers leave room for

/// What is that much smaller than the largest value is a zero that was rounded.
constexpr double Arrondi0 = 1e-9;

bool PlusBas(PointDessin a, PointDessin b) {
    return a.y < b.y;
}

} // namespace

std::string TexteDecimales(double valeur, int decimales) {
    std::string masque = "0";
    if (decimales > 0) masque += "." + std::string(static_cast<std::size_t>(decimales), '0');
    return Format(valeur, masque);
}

AxeGraphe AxeAngles(double total) {
    AxeGraphe axe{0, total, {}, {}, "°"};
    const double pas = PasGraduationAngle(total, GraduationsAngles);
    for (const double angle : ValeursGraduees(0, total, pas)) axe.graduations.push_back({angle, Format(angle, "##0")});
    return axe;
}

AxeGraphe AxeSymetrique(double maximum, double pas, std::string_view masque) {
    const double bord = maximum == 0.0 ? 1.0 : maximum;
    AxeGraphe axe{-bord, bord, {{0.0, "0"}}, {}, {}};
    if (maximum <= 0) return axe;
    for (const double valeur : ValeursGraduees(pas, maximum, pas))
        for (const double v : {valeur, -valeur}) axe.graduations.push_back({v, Format(v, masque)});
    return axe;
}

ExtremesCourbe ChercheExtremes(std::span<const PointDessin> courbe) {
    const auto mini = std::min_element(courbe.begin(), courbe.end(), PlusBas);
    const auto maxi = std::max_element(courbe.begin(), courbe.end(), PlusBas);
    const double zero = Arrondi0 * std::max(std::abs(mini->y), std::abs(maxi->y));
    const auto arrondi = [zero](PointDessin p) { return std::abs(p.y) < zero ? PointDessin{p.x, 0.0} : p; };
    return {arrondi(*mini), arrondi(*maxi)};
}

AxeGraphe AxeAutour(std::span<const PointDessin> courbe) {
    const ExtremesCourbe extremes = ChercheExtremes(courbe);
    double petit = extremes.mini.y, grand = extremes.maxi.y;
    if (petit - (grand - petit) <= 0.0 && grand + (grand - petit) >= 0.0) {
        petit = std::min(petit, 0.0);
        grand = std::max(grand, 0.0);
    }
    const double etendue = std::min(grand > petit ? grand - petit : std::max(1.0, std::abs(grand)), EtendueMax);
    const double marge = 0.1 * etendue, pas = PasGraduation(1.2 * etendue, GraduationsValeurs);
    AxeGraphe axe{petit == 0.0 ? 0.0 : pas * std::floor((petit - marge) / pas),
                  pas * std::ceil((grand + marge) / pas),
                  {},
                  {},
                  {}};
    // As many decimals as the step has.
    const int decimales = static_cast<int>(-std::floor(std::log10(pas) + 1e-9));
    for (const double valeur : ValeursGraduees(axe.mini, axe.maxi + pas / 2, pas))
        axe.graduations.push_back({valeur, TexteDecimales(std::abs(valeur) < pas / 2 ? 0.0 : valeur, decimales)});
    return axe;
}
