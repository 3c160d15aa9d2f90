// Steps between the graduations of an axis.
#pragma once

#include <vector>

/// Extent of values that have an axis around them; what lies beyond is drawn where it falls.
inline constexpr double EtendueMax = 1e307;

/// Degrees between graduations: a round part of a turn that leaves at most `nombre` of them over `etendue` degrees.
double PasGraduationAngle(double etendue, double nombre);

/// 1, 2 or 5 times a power of ten that leaves at most `nombre` steps over `etendue`, above 0.
double PasGraduation(double etendue, double nombre);

/// What stands every `pas` from `premier` to `dernier`: a hundred values at most, each once, and none where the numbers
/// leave no step.
std::vector<double> ValeursGraduees(double premier, double dernier, double pas);
