// Steps between the graduations of an axis.
#pragma once

/// Degrees between graduations: a round part of a turn that leaves at most `nombre` of them over `etendue` degrees.
double PasGraduationAngle(double etendue, double nombre);

/// 1, 2 or 5 times a power of ten that leaves at most `nombre` steps over `etendue`, above 0.
double PasGraduation(double etendue, double nombre);
