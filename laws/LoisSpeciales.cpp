#include "laws/LoisSpeciales.h"

#include <cmath>

namespace {

const double PiCarre = Pi * Pi;
/// A fast part of exactly four fifths leaves a slow part of length 0, which rounding may put below it.
constexpr double ToleranceE = 1e-12;

const double HesserD = 58.21875 * PiCarre + 40.0 * Pi + 83.125;

} // namespace

const double HesserCa = 400.0 * PiCarre / HesserD;
const double HesserCv = (112.5 * PiCarre + 40.0 * Pi) / HesserD;

PointLoi EvalueHesser(double x) {
    const double Ca = HesserCa;
    const double k = Ca / (800.0 * PiCarre), kv = Ca / (20.0 * Pi);
    const double dix = 10.0 * Pi * x;
    if (x <= 0.05)
        return {Ca / (100.0 * PiCarre) * (dix - std::sin(dix)), Ca / (10.0 * Pi) * (1.0 - std::cos(dix)),
                Ca * std::sin(dix)};
    if (x <= 0.1625)
        return {k * (400.0 * PiCarre * x * x - 40.0 * Pi * (Pi - 2.0) * x + PiCarre - 8.0), kv * (2.0 * dix - Pi + 2.0),
                Ca};
    if (x <= 0.5) {
        const double u = Pi / 0.3375 * (x + 0.00625);
        return {k * (-45.5625 * std::sin(u) + 200.0 * PiCarre * x * x + 5.0 * Pi * (5.0 * Pi + 16.0) * x + 37.5625 -
                     4.28125 * PiCarre),
                kv * (-3.375 * std::cos(u) + dix + 0.625 * Pi + 2.0), Ca / 2.0 * (std::sin(u) + 1.0)};
    }
    if (x <= 0.8375) {
        const double w = Pi / 0.3375 * (x - 0.33125);
        return {k * (-45.5625 * std::sin(w) - 200.0 * PiCarre * x * x + 5.0 * Pi * (85.0 * Pi + 16.0) * x + 128.6875 -
                     104.28125 * PiCarre),
                kv * (-dix - 3.375 * std::cos(w) + 10.625 * Pi + 2.0), Ca / 2.0 * (std::sin(w) - 1.0)};
    }
    if (x <= 0.95)
        return {k * (-400.0 * PiCarre * x * x + (760.0 * PiCarre + 80.0 * Pi) * x + 174.25 - 244.5625 * PiCarre),
                kv * (-2.0 * dix + 19.0 * Pi + 2.0), -Ca};
    return {k * (8.0 * dix - 8.0 * std::sin(dix) + 116.4375 * PiCarre + 166.25),
            Ca / (10.0 * Pi) * (1.0 - std::cos(dix)), Ca * std::sin(dix)};
}

AvanceRapide PrepareAvanceRapide(double partAngle, double partSortie) {
    AvanceRapide loi;
    const double r = partSortie;
    const double Q = (partAngle + partAngle) / 4.0, P = Q / 2.0, E = 2.0 - 4.0 * Q - 2.0 * P;
    loi.r = r;
    loi.Q = Q;
    loi.P = P;
    loi.E = E;
    // Below the first limit the slow approach would have to run backwards; below 0 its length would.
    loi.place = !(E < Divise(2.0 * Q * (1.0 + r) - 2.0 * r, r)) && E >= -ToleranceE;
    if (!loi.place) return loi;
    const double b4 = 4.0 * P, b5 = b4 + E / 2.0;
    loi.bornes = {P, P + P, P + P + P, b4, b5, b5 + P / 2.0};
    loi.A1 = Divise(2.0 * Q * Pi * (1.0 + 3.0 * r) - r * Pi * (2.0 + 4.0 * Q + E),
                    2.0 * Q * (8.0 * Q * Q - Q * (2.0 + 4.0 * Q + E)));
    loi.A2 = 3.0 * loi.A1 - r * Pi / (Q * Q);
    loi.A3 = (Q / P) * (r * Pi / (Q * Q) - 2.0 * loi.A1);
    loi.V1 = 2.0 * Q * loi.A1 / Pi;
    loi.V2 = 2.0 * Q * (loi.A1 - loi.A2) / Pi;
    return loi;
}

PointLoi EvalueAvanceRapide(const AvanceRapide& loi, double x) {
    const double Q = loi.Q, P = loi.P, E = loi.E, A1 = loi.A1, A2 = loi.A2, A3 = loi.A3, V2 = loi.V2;
    const auto& b = loi.bornes;
    if (x < b[0]) {
        const double y = Pi * x / Q;
        return {Q * A1 * (x - std::sin(y) * Q / Pi) / Pi, Q * A1 * (1.0 - std::cos(y)) / Pi, A1 * std::sin(y)};
    }
    if (x < b[1]) {
        const double y = Pi / Q * (x - P);
        return {Q * A1 / Pi * (x - Q * std::cos(y) / Pi), Q * A1 * (1.0 + std::sin(y)) / Pi, A1 * std::cos(y)};
    }
    // The braking of the fast part is one half wave over two of the parts.
    if (x < b[3]) {
        const double y = Pi / Q * (x - Q);
        return {Q * Q / Pi * (A2 - A1) + Q / Pi * (2.0 * A1 - A2) * x + (Q / Pi) * (Q / Pi) * A2 * std::sin(y),
                Q / Pi * (2.0 * A1 - A2) + Q * A2 * std::cos(y) / Pi, -A2 * std::sin(y)};
    }
    const double finRapide = Q * Q / Pi * (3.0 * A2 - A1);
    if (x < b[4]) return {finRapide + V2 * x, V2, 0.0};
    const double C0 = finRapide + P / Pi * A3 * (2.0 * Q + E / 2.0);
    const double course = C0 + (V2 - P * A3 / Pi) * x, courbe = (P / Pi) * (P / Pi) * A3;
    const double vitesse = V2 - P / Pi * A3;
    if (x < b[5]) {
        const double y = Pi / P * (x - (2.0 * Q + E / 2.0));
        return {course + courbe * std::sin(y), vitesse + P * A3 * std::cos(y) / Pi, -A3 * std::sin(y)};
    }
    const double y = Pi / P * (x - (2.0 * Q + (E + P) / 2.0));
    return {course + courbe * std::cos(y), vitesse - P / Pi * A3 * std::sin(y), -A3 * std::cos(y)};
}

LoiLiquide PrepareLiquide(double A) {
    LoiLiquide loi;
    const double B = 3.0 * A, C = 1.0 - (A + B) / 2.0;
    loi.A = A;
    loi.B = B;
    loi.C = C;
    loi.bornes = {A / 2.0, A / 2.0 + B / 2.0, A / 2.0 + B / 2.0 + C / 2.0};
    loi.Ca = Divise(2.0 * PiCarre * 2.0 * C,
                    2.0 * C * (2.0 * (B * B - A * A) - Pi * B * (A + B)) + (A + B) * (Pi * C * (A + B) + 2.0 * Pi * C));
    loi.Cd = Divise(loi.Ca * (A + B), 2.0 * C);
    loi.Cv = loi.Ca * (A + B) / Pi;
    return loi;
}

PointLoi EvalueLiquide(const LoiLiquide& loi, double x) {
    const double A = loi.A, B = loi.B, C = loi.C, Ca = loi.Ca, Cd = loi.Cd;
    if (A != 0.0 && x <= loi.bornes[0]) {
        const double y = Pi / A * x;
        return {Ca * (A / Pi) * (x - A / Pi * std::sin(y)), Ca * (A / Pi) * (1.0 - std::cos(y)), Ca * std::sin(y)};
    }
    if (x <= loi.bornes[1]) {
        const double y = Pi / B * (x - loi.bornes[0]);
        return {Ca / Pi * ((B * B - A * A) / Pi + A * x - B * B / Pi * std::cos(y)), Ca / Pi * (A + B * std::sin(y)),
                Ca * std::cos(y)};
    }
    // The deceleration is one half wave of length C, written as two quarter waves.
    const double debut = Ca / Pi * ((B * B - A * A) / Pi - B * (A + B) / 2.0) + Cd * C * (A + B) / (2.0 * Pi);
    const double vitesse = ((A + B) * Ca - C * Cd) / Pi;
    const double course = debut + x * vitesse, courbe = Cd * (C / Pi) * (C / Pi);
    if (x <= loi.bornes[2]) {
        const double y = Pi / C * (x - (A + B) / 2.0);
        return {course + courbe * std::sin(y), vitesse + Cd * std::cos(y) * C / Pi, -Cd * std::sin(y)};
    }
    const double y = Pi / C * (x - (A + B + C) / 2.0);
    return {course + courbe * std::cos(y), vitesse - Cd * std::sin(y) * C / Pi, -Cd * std::cos(y)};
}
