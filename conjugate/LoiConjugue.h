// The motion law of the conjugate pair: a flank, a part at constant velocity, a flank. A is the input angle of one
// index in degrees, W the part of it at constant velocity, N the number of stops; theta is the output rotation in
// radians, its derivatives are against the input angle in degrees. The law is the modified sine ("MS", `Cvu` 1.76) or
// the modified trapezoid ("MT", `Cvu` 2).
#pragma once

#include <array>
#include <string>
#include <vector>

/// One index under its law. `C` is the table `Constantes`, indices 1 to 35; 19 and 20 hold nothing.
struct LoiConjugue {
    double TP = 0, TPdeg = 0; ///< step of the output, radians and degrees
    double A = 0, W = 0, Cvu = 0;
    std::array<double, 36> C{};
};

/// Fills `Constantes`.
/// @throws ErreurExecution division by zero: no stop, no angle, or W that leaves no flank.
LoiConjugue RemplitConstantes(double N, double A, double W, double Cvu);

struct MouvementIndex {
    double theta = 0; ///< rad
    double omega = 0; ///< rad/deg
    double alpha = 0; ///< rad/deg²
};

/// The output at an input angle. The rotation of the rising flank with "MS" and of the falling flank with "MT" is 0:
/// the two tests on the law are not mirrors of each other, on purpose.
/// @param T input angle, degrees
/// @param Courbe 1 is the only curve there is; for any other nothing moves
/// @param ecran takes what the functions print on the screen, each text once
MouvementIndex Fqq(const LoiConjugue& loi, double T, int Courbe, std::vector<std::string>& ecran);

/// Rotation, radians.
double Fyyo(const LoiConjugue& loi, double T, std::vector<std::string>& ecran);
/// First and second derivative of the rotation; theta stays 0.
MouvementIndex Vafyyo(const LoiConjugue& loi, double T);
/// The flanks of the modified sine, scaled to the rotation over both. @param T2 from the start of the falling flank
double Ams1(const LoiConjugue& loi, double T, std::vector<std::string>& ecran);
double Dms1(const LoiConjugue& loi, double T2, std::vector<std::string>& ecran);
