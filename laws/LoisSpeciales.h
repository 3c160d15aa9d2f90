// Unit laws that stand in no catalogue: lift from 0 to 1 over x from 0 to 1, with its two derivatives. Each is prepared
// once from its inputs and then evaluated point by point.
#pragma once

#include "core/Etude.h"

#include <array>

// ---- Hesser: an index law of fixed constants, with a long soft middle.

extern const double HesserCa; ///< 5.039467, maximum of the unit acceleration
extern const double HesserCv; ///< 1.577761, maximum of the unit speed
/// A further constant of the law, shown with it.
inline constexpr double HesserCoefFixe = 158.3195;

/// @param x 0..1
PointLoi EvalueHesser(double x);

// ---- Fast advance, slow approach: a fast part, a slow part at constant speed, a short stop.

struct AvanceRapide {
    double r = 0; ///< part of the output in fast advance
    double Q = 0, P = 0;
    double E = 0; ///< share of the slow part at constant speed; negative when there is no room for it
    std::array<double, 6> bornes{};
    double A1 = 0, A2 = 0, A3 = 0; ///< amplitudes: start and braking of the fast part, stop
    double V1 = 0, V2 = 0;         ///< speed of the fast part, of the slow approach
    bool place = false;            ///< the slow approach has room
};

/// @param partAngle of the whole angle that the fast part takes, above 0 and below 1
/// @param partSortie of the output, above 0 and below 1
/// @return only r to E are set when there is no room
AvanceRapide PrepareAvanceRapide(double partAngle, double partSortie);

/// @param x 0..1
PointLoi EvalueAvanceRapide(const AvanceRapide& loi, double x);

// ---- Liquids: a short acceleration, a long soft deceleration.

struct LoiLiquide {
    double A = 0, B = 0, C = 0;    ///< shares: rise and fall of the acceleration, half of the deceleration
    double Ca = 0, Cd = 0, Cv = 0; ///< amplitudes of acceleration and deceleration, maximum speed
    std::array<double, 3> bornes{};
};

/// @param A coefficient of the first rise, above 0 and below 0.5
/// @throws ErreurExecution division by zero for 0.
LoiLiquide PrepareLiquide(double A);

/// @param x 0..1
PointLoi EvalueLiquide(const LoiLiquide& loi, double x);
