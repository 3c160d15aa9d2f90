#include "conjugate/LoiConjugue.h"

#include "conjugate/Notes.h"
#include "core/Etude.h"
#include "core/Nombres.h"

#include <cmath>

namespace {

constexpr const char* NonProgramme = "Not yet programmed";

void ImprimeHorsLimites(const char* fonction, const char* limites, double Z, std::vector<std::string>& ecran) {
    Note(ecran, fonction);
    Note(ecran, limites);
    Note(ecran, "Z = " + Format(Z, "0.00"));
}

MouvementIndex FlancMontant(const LoiConjugue& loi, double T) {
    const auto& C = loi.C;
    const double Za = T / C[17], Aa = C[11] * Za;
    if (loi.Cvu >= 2) {
        if (Za <= 0.25) return {0, C[25] * (1 - std::cos(Aa)), C[26] * std::sin(Aa)};
        if (Za <= 0.75) return {0, C[25] * (C[27] + Aa), C[26]};
        return {0, C[25] * (C[28] + std::cos(Aa)), -C[26] * std::sin(Aa)};
    }
    // (1 - Za) and not (1 - cos Aa): kept on purpose.
    if (Za <= 0.25) return {0, C[29] * (1 - Za), C[30] * std::sin(Aa)};
    const double X = (1 - Za) * C[31];
    return {0, C[29] * (1 + 3 * std::cos(X)), C[30] * std::sin(X)};
}

MouvementIndex FlancDescendant(const LoiConjugue& loi, double T2) {
    const auto& C = loi.C;
    const double Zb = T2 / C[17], Ab = C[11] * Zb;
    if (loi.Cvu >= 2) {
        if (Zb < 0.25) return {0, C[25] * (C[28] + std::cos(Ab)), -C[26] * std::sin(Ab)};
        if (Zb <= 0.75) return {0, C[25] * (C[35] - Ab), -C[26]};
        return {0, C[25] * (1 - std::cos(Ab)), C[26] * std::sin(Ab)};
    }
    if (Zb > 0.75) return {0, C[29] * (1 - std::cos(Ab)), C[30] * std::sin(Ab)};
    const double X = Ab / 3;
    return {0, C[29] * (1 + 3 * std::cos(X)), -C[30] * std::sin(X)};
}

} // namespace

LoiConjugue RemplitConstantes(double N, double A, double W, double Cvu) {
    LoiConjugue loi{Divise(2 * Pi, N), 0, A, W, Cvu, {}};
    loi.TPdeg = loi.TP * 180 / Pi;
    auto& C = loi.C;
    C[1] = Pi / (4 + Pi);
    C[2] = 1 / (4 * Pi);
    C[3] = 4 * Pi;
    C[4] = 2 / Pi;
    C[5] = 9 * C[2];
    C[6] = Pi / 3;
    C[7] = C[3] / 3;
    C[8] = 4 / Pi;
    C[9] = Pi + 2;
    C[10] = Pi + 4;
    C[11] = 2 * Pi;
    C[12] = 2 / (Pi + 2);
    C[13] = Divise(loi.TP * (1 - W) / 2, W * Cvu + (1 - W)); // rotation over a flank
    C[14] = loi.TP - 2 * C[13];                              // rotation at constant velocity
    C[15] = (1 - W) / 2;
    C[16] = (1 + W) / 2;
    C[17] = C[15] * A; // input angle of a flank
    C[18] = W * A;     // input angle at constant velocity
    C[21] = 2 * C[17];
    C[22] = 2 * C[13];
    C[23] = Divise(C[13], C[17]);
    C[24] = Divise(C[23], C[17]);
    C[25] = C[12] * C[23];
    C[26] = C[11] * C[12] * C[24];
    C[27] = 1 - Pi / 2;
    C[28] = Pi + 1;
    C[29] = C[1] * C[23];
    C[30] = C[11] * C[1] * C[24];
    C[31] = 2 * C[6];
    C[32] = 180 / Pi;
    C[33] = C[32] * C[32];
    if (C[18] != 0) C[34] = C[14] / C[18];
    C[35] = 1.5 * Pi + 1;
    return loi;
}

double Ams1(const LoiConjugue& loi, double T, std::vector<std::string>& ecran) {
    const auto& C = loi.C;
    const double Z = Divise(T, C[21]);
    if (Z >= 0 && Z <= 0.125) return C[22] * (C[1] * (Z - C[2] * std::sin(C[3] * Z)));
    if (Z > 0.125 && Z <= 0.5) return C[22] * (C[1] * (Z + C[4] - C[5] * std::sin(C[7] * Z + C[6])));
    ImprimeHorsLimites("Message from function AMS1 :", "Z not in the range 0<= Z <=0.5", Z, ecran);
    return 0;
}

double Dms1(const LoiConjugue& loi, double T2, std::vector<std::string>& ecran) {
    const auto& C = loi.C;
    const double Z = Divise(C[17] + T2, C[21]);
    // The value of the law is left out of this range: kept on purpose.
    if (Z >= 0.5 && Z <= 0.875) return C[22] * (0 - 0.5);
    if (Z > 0.875 && Z <= 1) return C[22] * (C[1] * (Z + C[8] - C[2] * std::sin(C[3] * Z)) - 0.5);
    ImprimeHorsLimites("Message from FUNCTION DMS1 :", "Z not in the range 0.5 <= Z <= 1", Z, ecran);
    return 0;
}

double Fyyo(const LoiConjugue& loi, double T, std::vector<std::string>& ecran) {
    const auto& C = loi.C;
    const double Z = Divise(T, loi.A), T1 = T - C[17], T2 = T1 - C[18];
    if (Z <= C[15]) {
        if (loi.Cvu == 2) return Ams1(loi, T, ecran);
        Note(ecran, NonProgramme);
        return 0;
    }
    if (Z > C[16]) {
        if (loi.Cvu < 2) return C[13] + C[14] + Dms1(loi, T2, ecran);
        Note(ecran, NonProgramme);
        return 0;
    }
    return C[13] + Divise(T1 * C[14], C[18]);
}

MouvementIndex Vafyyo(const LoiConjugue& loi, double T) {
    const auto& C = loi.C;
    const double Z = Divise(T, loi.A);
    if (Z <= C[15]) return FlancMontant(loi, T);
    if (Z <= C[16]) return {0, C[34], 0};
    return FlancDescendant(loi, T - C[17] - C[18]);
}

MouvementIndex Fqq(const LoiConjugue& loi, double T, int Courbe, std::vector<std::string>& ecran) {
    if (Courbe != 1) {
        Note(ecran, "This accelerationcurve not yet included");
        return {};
    }
    MouvementIndex mouvement = Vafyyo(loi, T);
    mouvement.theta = Fyyo(loi, T, ecran);
    return mouvement;
}
