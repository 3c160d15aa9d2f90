// The return of the asymmetric law, in its own variable z from 0 (top) to 1, with e = return angle / rise angle:
// quarter waves of one amplitude k, which is the acceleration -Ca of the rise's end per unit of the return, k = Ca e²,
// so that it does not jump at the top. Four parts, with the lengths 2 r, 1 - 4 r, 3 r / 2 and r / 2, end at
//
//     b1 = 2 r,   b2 = 1 - 2 r,   b3 = 1 - r / 2,   1:
//
//     0..b1    a = -k cos(Pi z / (4 r))               the speed grows to -V, V = 4 k r / Pi
//     b1..b2   a = 0                                  constant speed
//     b2..b3   a = k sin(Pi (z - b2) / (3 r))         braking: up, three quarters of V ...
//     b3..1    a = k cos(Pi (z - b3) / r)             ... and down, the last quarter
//
// They run through k (r² (24 / Pi² - 14 / Pi) + 4 r / Pi) of the stroke; set to 1, times 2 Pi² / k, this is the
// quadratic of r below. At r = 1/4 there is no part at constant speed, and the return is the mirror image of the rise.
#include "laws/LoiMSH.h"

#include <algorithm>
#include <cmath>

namespace {

/// The shares of the asymmetric law's rise: no part at constant speed, deceleration over the second half.
constexpr double PartA = 0.25, PartB = 0.75;

/// The braking waves of a return stand 3 to 1.
constexpr double Rapport = 3.0;
constexpr double LimitePart = 2.0 / (1.0 + Rapport + 1.0);

/// Share at which the part at constant speed has shrunk to nothing; rounding must not lose the mirror of the rise.
constexpr double PartMiroir = 0.25, ToleranceMiroir = 1e-9;

Loi MonteeDissyme() {
    const double A = PartA, B = PartB, C = 0.0, E = 2.0 - (A + B + C);
    Loi loi;
    loi.CoefA = A;
    loi.CoefB = B;
    loi.CoefC = C;
    loi.Ca = 2.0 * Pi * Pi / (Pi * (A + B) * (A + C) + 2.0 * (E * E - A * A + B * B));
    loi.Cv = loi.Ca * (A + B) / Pi;
    return loi;
}

/// A root as a share; 0 when it is above the limit, or leaves the part at constant speed less than nothing.
double PartAdmise(double racine) {
    const double r = std::abs(racine - PartMiroir) <= ToleranceMiroir ? PartMiroir : racine;
    return r > 0.0 && r <= LimitePart && 1.0 - 4.0 * r >= 0.0 ? r : 0.0;
}

/// The share r of a return of amplitude k; 0 when there is none. Of two admissible roots the larger is taken.
double PartDescente(double k) {
    const double p = 4.0 * (7.0 * Pi - 12.0), q = -8.0 * Pi, t = 2.0 * Pi * Pi / k;
    const double discriminant = q * q - 4.0 * p * t;
    if (discriminant < 0.0) return 0.0;
    const double racine = std::sqrt(discriminant);
    return std::max(PartAdmise((-q + racine) / (2.0 * p)), PartAdmise((-q - racine) / (2.0 * p)));
}

} // namespace

Loi PartsMSH(const Loi& ligne) {
    Loi loi = ligne;
    loi.CoefB = ligne.CoefC;
    loi.CoefC = 2.0 * ligne.CoefD;
    loi.CoefS = 0.5;
    return loi;
}

void PrepareLoiMSH(const Loi& ligne) {
    etude.lois.LoiEtude = PartsMSH(ligne);
}

PointLoi EvalueMonteeMSH(const Loi& loi, double x) {
    const double A = loi.CoefA, B = loi.CoefB, C = loi.CoefC, Ca = loi.Ca;
    const double E = 2.0 - (A + B + C);
    const double b1 = A / 2.0, b2 = (B + A) / 2.0, b3 = (B + A + C) / 2.0;
    if (A != 0.0 && x <= b1) {
        const double angle = x * Pi / A;
        return {Ca * (A / Pi) * (x - (A / Pi) * std::sin((Pi / A) * x)), Ca * (A / Pi) * (1.0 - std::cos(angle)),
                Ca * std::sin(angle)};
    }
    if (B != 0.0 && x <= b2) {
        const double u = (Pi / B) * (x - A / 2.0);
        return {(Ca / Pi) * (A * x - A * A / Pi + (B * B / Pi) * (1.0 - std::cos(u))),
                (Ca / Pi) * (std::sin(u) * B + A), Ca * std::cos(u)};
    }
    if (C != 0.0 && x <= b3)
        return {(Ca / Pi) * ((B + A) * x - (B + A) * B / 2.0 - (A * A - B * B) / Pi), Ca * (B + A) / Pi, 0.0};
    const double t = Divise(Pi, E) * (x - b3);
    return {1.0 - Ca * (E / Pi) * (E / Pi) * (1.0 - std::sin(t)), (Ca * E / Pi) * std::cos(t), -Ca * std::sin(t)};
}

void CalculeLoiMSH() {
    const long n = etude.resultats.NombrePoints;
    etude.lois.LoiUnite.Redimensionne(n);
    for (long i = 0; i <= n / 2; ++i) {
        const PointLoi p =
            EvalueMonteeMSH(etude.lois.LoiEtude, Divise(2.0 * static_cast<double>(i), static_cast<double>(n)));
        etude.lois.LoiUnite[i] = p;
        etude.lois.LoiUnite[n - i] = {p.Course, -p.Vitesse, p.Accel};
    }
}

LoiMSHDissyme PrepareMSHDissyme(double e) {
    LoiMSHDissyme loi;
    loi.montee = MonteeDissyme();
    loi.e = e;
    loi.k = loi.montee.Ca * e * e;
    loi.r = PartDescente(loi.k);
    loi.existe = loi.r > 0.0;
    return loi;
}

PointLoi EvalueDescente(const LoiMSHDissyme& loi, double z) {
    const double k = loi.k, r = loi.r, V = 4.0 * k * r / Pi;
    const double b1 = 2.0 * r, b2 = 1.0 - 2.0 * r, b3 = 1.0 - r / 2.0;
    const double courseB1 = 16.0 * k * r * r / (Pi * Pi), courseB2 = courseB1 + V * (b2 - b1);
    // Course, speed and deceleration counted from the top, per unit of the return.
    PointLoi p;
    if (z <= b1) {
        const double y = Pi * z / (4.0 * r);
        p = {courseB1 * (1.0 - std::cos(y)), V * std::sin(y), k * std::cos(y)};
    } else if (z <= b2) {
        p = {courseB1 + V * (z - b1), V, 0.0};
    } else if (z <= b3) {
        const double y = Pi * (z - b2) / (3.0 * r);
        p = {courseB2 + V / 4.0 * (z - b2) + 9.0 * k * r * r / (Pi * Pi) * std::sin(y),
             V / 4.0 + 3.0 / 4.0 * V * std::cos(y), -k * std::sin(y)};
    } else {
        // Told from the end, where everything is at rest.
        const double y = Pi * (1.0 - z) / r;
        p = {1.0 - k * r / Pi * ((1.0 - z) - r / Pi * std::sin(y)), k * r / Pi * (1.0 - std::cos(y)), -k * std::sin(y)};
    }
    return {1.0 - p.Course, -p.Vitesse / loi.e, -p.Accel / (loi.e * loi.e)};
}
