#include "conjugate/InertiePropre.h"

#include "core/Nombres.h"

namespace {

struct LigneAcceleration {
    double N, A;
    double K;
};

constexpr double Quelconque = -1; ///< any angle

/// The last row that fits counts.
constexpr LigneAcceleration accelerations[] = {
    {0.6, Quelconque, 9.49}, {0.75, Quelconque, 6.62}, {1, 210, 8.01}, {1, 300, 8.01}, {1, 240, 6.62},
    {1, 270, 6.62},          {1, 330, 6.62},           {2, 150, 8.01}, {2, 180, 6.62}, {2, 210, 6.62},
    {2, 240, 6.62},          {2, 270, 5.53},           {2, 300, 5.53},
};

/// Above two stops, for 90, 120 ... 300 degrees.
constexpr double KPlusDeDeux = 5.53;

enum class Selon { Tous, Rayon, Galets }; ///< what `valeur` of a row is compared with

struct LigneInertie {
    double Q;
    int M;
    Selon selon;
    double valeur;
    double J;
};

/// The 0.21 is kept as it stands, though its neighbours are ten times smaller. The row of 0.1873 compares the number of
/// rollers with 89 and so fits nothing: kept on purpose.
constexpr LigneInertie inerties[] = {
    {40, 8, Selon::Tous, 0, 0.000047},    {40, 6, Selon::Tous, 0, 0.000043},   {40, 10, Selon::Tous, 0, 0.000092},
    {63, 8, Selon::Rayon, 23, 0.0003},    {63, 8, Selon::Rayon, 28, 0.0006},   {63, 6, Selon::Rayon, 18, 0.0002},
    {63, 6, Selon::Rayon, 23, 0.0003},    {63, 6, Selon::Rayon, 28, 0.0005},   {63, 10, Selon::Tous, 0, 0.0007},
    {80, 8, Selon::Rayon, 28, 0.0011},    {80, 8, Selon::Rayon, 35, 0.002},    {80, 6, Selon::Rayon, 24, 0.0007},
    {80, 6, Selon::Rayon, 28, 0.001},     {80, 6, Selon::Rayon, 35, 0.0019},   {80, 10, Selon::Tous, 0, 0.0026},
    {100, 8, Selon::Rayon, 33, 0.0034},   {100, 8, Selon::Rayon, 42, 0.006},   {100, 6, Selon::Rayon, 30, 0.0024},
    {100, 6, Selon::Rayon, 33, 0.003},    {100, 6, Selon::Rayon, 42, 0.0055},  {100, 10, Selon::Tous, 0, 0.0077},
    {125, 8, Selon::Rayon, 43, 0.011},    {125, 8, Selon::Rayon, 56, 0.21},    {125, 6, Selon::Rayon, 37, 0.007},
    {125, 6, Selon::Rayon, 43, 0.0102},   {125, 6, Selon::Rayon, 56, 0.0196},  {125, 10, Selon::Tous, 0, 0.0267},
    {160, 8, Selon::Rayon, 59, 0.0551},   {160, 8, Selon::Rayon, 72, 0.0849},  {160, 6, Selon::Rayon, 48, 0.0268},
    {160, 6, Selon::Rayon, 59, 0.0434},   {160, 6, Selon::Rayon, 72, 0.0695},  {160, 10, Selon::Tous, 0, 0.0896},
    {200, 8, Selon::Rayon, 73, 0.1203},   {200, 8, Selon::Galets, 89, 0.1873}, {200, 6, Selon::Rayon, 59, 0.0672},
    {200, 6, Selon::Rayon, 73, 0.1067},   {200, 6, Selon::Rayon, 89, 0.1705},  {200, 10, Selon::Tous, 0, 0.2347},
    {315, 8, Selon::Rayon, 115, 0.93345}, {315, 8, Selon::Rayon, 142, 1.5785}, {315, 6, Selon::Rayon, 93, 0.5069},
    {315, 6, Selon::Rayon, 115, 0.8609},  {315, 6, Selon::Rayon, 142, 1.4705}, {315, 10, Selon::Tous, 0, 1.8819},
};

bool Convient(const LigneInertie& ligne, double M, double R) {
    switch (ligne.selon) {
    case Selon::Rayon:
        return R == ligne.valeur;
    case Selon::Galets:
        return M == ligne.valeur;
    default:
        return true;
    }
}

/// 72 Pi, rounded.
constexpr double FacteurVitesse = 226.1947;

} // namespace

double AngleInertie(double N, double A) {
    return N == 6 || N == 8 || N == 10 ? 2 * A : A;
}

double CoefficientAcceleration(double N, double A) {
    double K = 0;
    for (const auto& ligne : accelerations)
        if (N == ligne.N && (ligne.A == Quelconque || A == ligne.A)) K = ligne.K;
    if (N > 2 && A >= 90 && A <= 300 && A / 30 == Int(A / 30)) K = KPlusDeDeux;
    return K;
}

double InertieRoue(double Q, double M, double R) {
    for (const auto& ligne : inerties)
        if (Q == ligne.Q && M == ligne.M && Convient(ligne, M, R)) return ligne.J;
    return 0;
}

double Eig_mom(double M, double R, double N, double Q, double A, double Ipm) {
    const double angle = AngleInertie(N, A);
    const double K = CoefficientAcceleration(N, angle);
    return Divise(FacteurVitesse * K * (Ipm * Ipm), angle * angle * N) * InertieRoue(Q, M, R);
}
