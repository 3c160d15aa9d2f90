#include "conjugate/LoiConjugue.h"

#include "core/Etude.h"
#include "core/Nombres.h"

#include <gtest/gtest.h>

namespace {

constexpr double stops = 5.5, angle = 133.7, partConstante = 0.29;

struct LoiEssai : LoiConjugue {
    explicit LoiEssai(double cvu) : LoiConjugue(RemplitConstantes(stops, angle, partConstante, cvu)) {}
    double Flanc() const { return C[17]; }
    double DebutDescente() const { return C[17] + C[18]; }
    MouvementIndex En(double T) const { return Vafyyo(*this, T); }
};

/// The acceleration is the derivative of the velocity between two input angles.
void VerifieAcceleration(const LoiEssai& loi, double de, double a) {
    const double pas = 1e-4;
    for (double T = de + 2 * pas; T < a - 2 * pas; T += (a - de) / 37)
        ASSERT_NEAR(loi.En(T).alpha, (loi.En(T + pas).omega - loi.En(T - pas).omega) / (2 * pas), 1e-9) << T;
}

double Parcours(const LoiEssai& loi) {
    const int pas = 200000;
    double somme = 0;
    for (int i = 0; i < pas; ++i) somme += loi.En(angle * (i + 0.5) / pas).omega;
    return somme * angle / pas;
}

} // namespace

TEST(LoiConjugue, TheTrapezoidTurnsTheOutputByOneStep) {
    const LoiEssai loi(2);
    EXPECT_NEAR(Parcours(loi), 2 * Pi / stops, 1e-9);
    EXPECT_NEAR(loi.TPdeg, 360 / stops, 1e-12);
    EXPECT_NEAR(loi.C[14] / loi.C[18] / (loi.TP / angle), 2 / (partConstante * 2 + 1 - partConstante), 1e-12)
        << "highest velocity over the mean";
    const double quart = loi.Flanc() / 4, descente = loi.DebutDescente();
    for (const double debut : {0.0, descente}) {
        VerifieAcceleration(loi, debut, debut + quart);
        VerifieAcceleration(loi, debut + quart, debut + 3 * quart);
        VerifieAcceleration(loi, debut + 3 * quart, debut + 4 * quart);
    }
    EXPECT_NEAR(loi.En(0).omega, 0, 1e-15);
    EXPECT_NEAR(loi.En(angle).omega, 0, 1e-12);
}

TEST(LoiConjugue, TheModifiedSineTurnsAsItsVelocitySays) {
    const LoiEssai loi(1.76), trapeze(2);
    const double quart = loi.Flanc() / 4, descente = loi.DebutDescente();
    VerifieAcceleration(loi, quart, 4 * quart);
    VerifieAcceleration(loi, descente, descente + 3 * quart);
    VerifieAcceleration(loi, descente + 3 * quart, angle);
    std::vector<std::string> ecran;
    const double h = 1e-4;
    // The rising flank is turned with the other law, the falling one with its own.
    for (double T = 1.1 * quart; T < 3.9 * quart; T += 1.3)
        ASSERT_NEAR((Fyyo(trapeze, T + h, ecran) - Fyyo(trapeze, T - h, ecran)) / (2 * h) / trapeze.C[13],
                    loi.En(T).omega / loi.C[13], 1e-9)
            << T;
    for (double T = descente + 3.1 * quart; T < angle - 2 * h; T += 0.7)
        ASSERT_NEAR((Fyyo(loi, T + h, ecran) - Fyyo(loi, T - h, ecran)) / (2 * h), loi.En(T).omega, 1e-9) << T;
    EXPECT_TRUE(ecran.empty());
    EXPECT_NEAR(Fyyo(loi, angle - 1e-9, ecran), loi.TP, 1e-9);
    EXPECT_NEAR(Fyyo(loi, angle / 2, ecran), loi.TP / 2, 1e-12);
}

TEST(LoiConjugue, OdditiesOfTheLawAreKept) {
    const LoiEssai sinus(1.76), trapeze(2);
    std::vector<std::string> ecran;
    for (const double T : {0.0, 3.5, 20.25}) EXPECT_EQ(Fyyo(sinus, T, ecran), 0);
    EXPECT_EQ(Fyyo(trapeze, angle - 2.5, ecran), 0);
    EXPECT_EQ(ecran, std::vector<std::string>{"Not yet programmed"}) << "told once";
    EXPECT_EQ(Dms1(sinus, 0.1 * sinus.Flanc(), ecran), -sinus.C[22] / 2);
    EXPECT_NEAR(sinus.En(0.2 * sinus.Flanc()).omega, 0.8 * sinus.C[29], 1e-15) << "starts at speed";
    ecran.clear();
    EXPECT_EQ(Ams1(trapeze, trapeze.Flanc() * 1.004, ecran), 0);
    EXPECT_EQ(Ams1(trapeze, trapeze.Flanc() * 1.0041, ecran), 0);
    EXPECT_EQ(Dms1(trapeze, -1, ecran), 0);
    EXPECT_EQ(ecran, (std::vector<std::string>{
                         "Message from function AMS1 :", "Z not in the range 0<= Z <=0.5", "Z = 0.50",
                         "Message from FUNCTION DMS1 :", "Z not in the range 0.5 <= Z <= 1", "Z = 0.49"}));
}
