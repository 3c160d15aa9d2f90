// The return of the asymmetric law, in its own variable z from 0 (top) to 1, with e = return angle / rise angle.
//
// At the top the rise ends with the acceleration -Ca of the rise, which is -k per unit of the return, k = Ca e². So
// that the acceleration does not jump there, the return begins with a quarter wave of amplitude k. Its parts end at
//
//     b1 = 2 r / 2,   b2 = (2 r + E2) / 2,   b3 = (2 r + E2 + r) / 2,   1,   with E2 = 2 - 4 r:
//
//     0..b1    a = -k cos(Pi z / (2 r))          the speed grows to -V, V = 2 k r / Pi
//     b1..b2   a = 0                             constant speed
//     b2..b3   a = k sin(Pi (z - b2) / r)        braking, a quarter wave up ...
//     b3..1    the same half wave, down          ... and one down, which takes V away again
//
// The speed is 0 at both ends and the acceleration joins everywhere, the next rise included, which begins with 0. The
// parts run through k (4 r² / Pi² + V/k (1 - 2 r) + r² / Pi) of the stroke. The share r is the root of
// p r² + q r + t = 0 below, that of a return whose quarter waves stand 3 to 1 as in the rise; with it the parts above
// fall short of the stroke. The rest is carried by a cycloid over the whole return, z - sin(2 Pi z) / (2 Pi): its speed
// and acceleration are 0 at both ends and its acceleration has no joint at all, so that nothing jumps and the stroke
// ends at 0.
#include "laws/LoiMSH.h"

#include <algorithm>
#include <cmath>

namespace {

/// The shares of the asymmetric law's rise: no part at constant speed, deceleration over the second half.
constexpr double PartA = 0.25, PartB = 0.75;

/// The quarter waves of a return stand 3 to 1; its shares cannot fill more than the interval.
constexpr double Rapport = 3.0;
constexpr double LimitePart = 2.0 / (1.0 + Rapport + 1.0);

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

/// The share r of a return of amplitude k; 0 when there is none. Of two admissible roots the larger is taken.
double PartDescente(double k) {
    const double p = 4.0 * (7.0 * Pi - 12.0), q = -8.0 * Pi, t = 2.0 * Pi * Pi / k;
    const double discriminant = q * q - 4.0 * p * t;
    if (discriminant < 0.0) return 0.0;
    const double petite = (-q - std::sqrt(discriminant)) / (2.0 * p);
    const double grande = (-q + std::sqrt(discriminant)) / (2.0 * p);
    if (grande <= LimitePart) return grande;
    return petite <= LimitePart ? petite : 0.0;
}

/// What the four parts run through, with speed and acceleration; z 0..1, the course counted from the top.
PointLoi EvalueParts(double k, double r, double z) {
    const double vitesse = 2.0 * k * r / Pi;
    const double b1 = r, b2 = 1.0 - r;
    const double courseB1 = k * 4.0 * r * r / (Pi * Pi);
    if (z <= b1) {
        const double angle = Pi * z / (2.0 * r);
        return {courseB1 * (1.0 - std::cos(angle)), vitesse * std::sin(angle), k * std::cos(angle)};
    }
    if (z <= b2) return {courseB1 + vitesse * (z - b1), vitesse, 0.0};
    const double angle = Pi * (z - b2) / r;
    return {courseB1 + vitesse * (b2 - b1) + vitesse / 2.0 * (z - b2) + k * r * r / (Pi * Pi) * std::sin(angle),
            vitesse / 2.0 * (1.0 + std::cos(angle)), -k * std::sin(angle)};
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
    if (loi.existe) loi.reste = 1.0 - EvalueParts(loi.k, loi.r, 1.0).Course;
    return loi;
}

PointLoi EvalueDescente(const LoiMSHDissyme& loi, double z) {
    const PointLoi parts = EvalueParts(loi.k, loi.r, z);
    const double tour = 2.0 * Pi * z;
    const double course = parts.Course + loi.reste * (z - std::sin(tour) / (2.0 * Pi));
    const double vitesse = parts.Vitesse + loi.reste * (1.0 - std::cos(tour));
    const double accel = parts.Accel + loi.reste * 2.0 * Pi * std::sin(tour);
    return {1.0 - course, -vitesse / loi.e, -accel / (loi.e * loi.e)};
}
