#include "globoidal/LoisGlobiques.h"

#include "core/FichierEntier.h"
#include "core/Lignes.h"
#include "core/Nombres.h"
#include "laws/FichierLoi.h"

#include <algorithm>
#include <cmath>

namespace {

/// A remainder of the shares this small is a rounding.
constexpr double ArrondiParts = 1e-9;

/// One of the four segments of the first half, by its formula.
PointLoi EvalueSegment(const LoiCinqSegments& loi, Segment segment, double u) {
    const auto& [a, b, c, d] = loi.parts;
    const double Amax = loi.Amax;
    switch (segment) {
    case Segment::Sinus: {
        const double t = Pi * u / a;
        return {Amax * (loi.q1 * u - Carre(loi.q1) * std::sin(t)), Amax * loi.q1 * (1.0 - std::cos(t)),
                Amax * std::sin(t)};
    }
    case Segment::Constante:
        return {Amax * (Carre(u) / 2.0 + loi.q2 * u + loi.q5), Amax * (u + loi.q2), Amax};
    case Segment::Cosinus: {
        const double w = Divise(Pi, c) * (u - (a + b) / 2.0);
        return {Amax * (loi.q3 * u + loi.q6 - Carre(c / Pi) * std::cos(w)), Amax * (loi.q3 + c / Pi * std::sin(w)),
                Amax * std::cos(w)};
    }
    default:
        return {Amax * (loi.q4 * u + loi.q7), Amax * loi.q4, 0.0};
    }
}

PointLoi EvalueSymetrique(const LoiCinqSegments& loi, double u, JointsLoi joints) {
    const Segment segment = joints(loi.parts, u);
    if (segment != Segment::Miroir) return EvalueSegment(loi, segment, u);
    return Retourne(EvalueSegment(loi, joints(loi.parts, 1.0 - u), 1.0 - u));
}

} // namespace

PartsLoi CompleteParts(double a, double b, double c) {
    const double d = 1.0 - a - b - c;
    return {a, b, c, std::abs(d) <= ArrondiParts ? 0.0 : d};
}

PartsLoi PartsLoiNommee(const std::string& nom, const Tableau<Loi>& catalogue) {
    for (const Loi& loi : catalogue)
        if (!nom.empty() && loi.NomLoi == nom) return CompleteParts(loi.CoefA, loi.CoefB, loi.CoefC);
    throw ErreurExecution(NumeroErreur::IndiceHorsLimites, nom);
}

Segment JointsIndexeur(const PartsLoi& parts, double u) {
    const auto& [a, b, c, d] = parts;
    if (u < a / 2.0) return Segment::Sinus;
    if (u < (a + b) / 2.0) return Segment::Constante;
    if (u <= (1.0 - d) / 2.0) return Segment::Cosinus;
    if (u < (1.0 + d) / 2.0) return Segment::Vitesse;
    return Segment::Miroir;
}

Segment JointsOscillateur(const PartsLoi& parts, double u) {
    const auto& [a, b, c, d] = parts;
    if (u <= a / 2.0 && a != 0.0) return Segment::Sinus;
    if (u <= (a + b) / 2.0) return Segment::Constante;
    if (u < (1.0 - d) / 2.0) return Segment::Cosinus;
    if (u <= (1.0 + d) / 2.0) return Segment::Vitesse;
    return Segment::Miroir;
}

LoiCinqSegments PrepareCinqSegments(const PartsLoi& parts) {
    const auto& [a, b, c, d] = parts;
    LoiCinqSegments loi{parts};
    loi.q1 = a / Pi;
    loi.q2 = a / Pi - a / 2.0;
    loi.q3 = a / Pi + b / 2.0;
    loi.q4 = a / Pi + b / 2.0 + c / Pi;
    loi.q5 = Carre(a) / 8.0 - Carre(a) / Carre(Pi);
    loi.q6 = Carre(a) / 8.0 + (Carre(c) - Carre(a)) / Carre(Pi) - Carre(a + b) / 8.0;
    loi.q7 = loi.q6 - c * (a + b + c) / (2.0 * Pi);
    loi.Amax = Divise(1.0, loi.q4 + 2.0 * loi.q7);
    loi.Vmax = loi.Amax * loi.q4;
    return loi;
}

PointLoi Evalue(const LoiCinqSegments& loi, double u, double S, JointsLoi joints) {
    if (S == 0.5) return EvalueSymetrique(loi, u, joints);
    const double complement = 1.0 - S;
    // The speed is left as it is: its peak does not depend on the symmetry.
    if (u <= S) {
        PointLoi point = EvalueSymetrique(loi, u / (2.0 * S), joints);
        point.Course = 2.0 * S * point.Course;
        point.Accel = point.Accel / (2.0 * S);
        return point;
    }
    // A rounding must not carry the end of the law beyond it, where a law without a sine rise has no formula.
    PointLoi point = EvalueSymetrique(loi, std::min(1.0, (u + complement - S) / (2.0 * complement)), joints);
    point.Course = 2.0 * complement * point.Course - complement + S;
    point.Accel = point.Accel / (2.0 * complement);
    return point;
}

LoiDissymetrique PrepareDissymetrique(const PartsLoi& parts) {
    const auto& [a, b, c, d] = parts;
    LoiDissymetrique loi{parts};
    loi.h1 = a / 2.0;
    loi.h2 = (a + b) / 2.0;
    loi.h3 = (a + b + c) / 2.0;
    loi.g = a / Pi + b / 2.0 + c / Pi;
    const double g2 = 2.0 * loi.h3 / Pi;
    const double A1 =
        loi.g + Carre(loi.h1) + 2.0 * (Carre(c) - Carre(a)) / Carre(Pi) - Carre(loi.h2) - 2.0 * c * loi.h3 / Pi;
    const double A2 = g2 + 8.0 * Carre(loi.h3) / Carre(Pi) - 4.0 * Carre(loi.h3) / Pi;
    // Lift per amplitude of the two halves; the shares make their speeds meet.
    const double montee = Divise(loi.g, A1), arret = Divise(g2, A2);
    const double part = Divise(arret, montee + arret);
    loi.Ap = 2.0 / A1 * part;
    loi.An = 2.0 / A2 * (1.0 - part);
    loi.Vmax = 2.0 * montee * part;
    return loi;
}

PointLoi Evalue(const LoiDissymetrique& loi, double u) {
    const auto& [a, b, c, d] = loi.parts;
    const double Ap = loi.Ap, An = loi.An, h2 = loi.h2, h3 = loi.h3;
    if (u < 0.0) return {};
    if (u < loi.h1 && a != 0.0) {
        const double t = Pi * u / a;
        return {Ap * a / Pi * (u - a / Pi * std::sin(t)), Ap * a / Pi * (1.0 - std::cos(t)), Ap * std::sin(t)};
    }
    if (u < h2)
        return {Ap * (Carre(u) / 2.0 + a * (1.0 / Pi - 0.5) * u + Carre(a) * (0.125 - 1.0 / Carre(Pi))),
                Ap * (u + a * (1.0 / Pi - 0.5)), Ap};
    if (u <= h3 && c != 0.0) {
        const double t = Pi / c * (u - h2);
        return {Ap * ((a / Pi + b / 2.0) * u + Carre(c / Pi) + Carre(a) * (0.125 - 1.0 / Carre(Pi)) -
                      Carre(a + b) / 8.0 - Carre(c / Pi) * std::cos(t)),
                Ap * (a / Pi + b / 2.0 + c / Pi * std::sin(t)), Ap * std::cos(t)};
    }
    if (u <= 1.0 - h3)
        return {Ap * (loi.g * u + Carre(a) / 8.0 + (Carre(c) - Carre(a)) / Carre(Pi) - Carre(h2) / 2.0 - c * h3 / Pi),
                Ap * loi.g, 0.0};
    const double t = Divise(Pi / 2.0, h3) * (1.0 - u);
    return {1.0 - 4.0 * An * Carre(h3 / Pi) * (1.0 - std::cos(t)), 2.0 * An * h3 / Pi * std::sin(t), -An * std::cos(t)};
}

PointLoi Retourne(const PointLoi& point) {
    return {1.0 - point.Course, point.Vitesse, -point.Accel};
}

FichierDeLoi::FichierDeLoi(const std::string& chemin) : chemin_(chemin) {
    if (chemin.empty()) throw ErreurExecution(NumeroErreur::FichierIntrouvable);
    const std::string contenu = LitFichierEntier(chemin);
    for (Lignes lignes(contenu); !lignes.Fin();) points_.push_back(LitPointLoi(lignes.Suivante()));
}

const PointLoi& FichierDeLoi::Ligne(std::size_t ligne) const {
    if (ligne < 1 || ligne > points_.size()) throw ErreurExecution(NumeroErreur::FinDeFichier, chemin_);
    return points_[ligne - 1];
}
