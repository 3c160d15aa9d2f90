// A plausible pair for the tests: eight rollers, eight stops.
#pragma once

#include "conjugate/SaisieConjugue.h"

inline SaisieConjugue ExempleConjugue(const char* loi = "MS") {
    SaisieConjugue s;
    s.Q = 100.25;
    s.R = 42;
    s.M = 8;
    s.N = 8;
    s.A = 150.5;
    s.W = 0.25;
    s.Loi = loi;
    s.Ipm = 99.5;
    s.D = 26;
    s.F = 15;
    s.B10 = 7750;
    s.CLim = 10350;
    s.VitesseGraisse = 7400;
    return s;
}
