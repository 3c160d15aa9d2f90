#include "laws/LoisSpeciales.h"

#include "laws/LoiMSH.h"
#include "outils/VerifieLoi.h"

#include <gtest/gtest.h>

namespace {

void VerifieBouts(const PointLoi& debut, const PointLoi& fin) {
    EXPECT_NEAR(debut.Course, 0, 1e-12);
    EXPECT_NEAR(debut.Vitesse, 0, 1e-12);
    EXPECT_NEAR(fin.Course, 1, 1e-12);
    EXPECT_NEAR(fin.Vitesse, 0, 1e-10);
    EXPECT_NEAR(fin.Accel, 0, 1e-9);
}

} // namespace

TEST(LoisSpeciales, HesserHasItsPublishedFigures) {
    VerifieLoi(EvalueHesser, {0.05, 0.1625, 0.5, 0.8375, 0.95});
    VerifieBouts(EvalueHesser(0), EvalueHesser(1));
    EXPECT_NEAR(HesserCa, 5.039467, 5e-7);
    EXPECT_NEAR(HesserCv, 1.577761, 5e-7);
    EXPECT_NEAR(EvalueHesser(0.5).Vitesse, HesserCv, 1e-14);
    for (const auto& [x, s] : {std::pair{0.05, 0.00291}, {0.1625, 0.05285}, {0.8375, 0.94715}, {0.95, 0.99709}})
        EXPECT_NEAR(EvalueHesser(x).Course, s, 5e-6) << x;
}

TEST(LoisSpeciales, FastAdvanceReachesItsPartOfTheOutputAndStops) {
    for (const auto& [angle, sortie] :
         {std::pair{0.5, 0.8}, {0.5, 0.6}, {0.3, 0.6}, {0.75, 0.95}, {0.8, 0.9}, {0.5, 0.45}}) {
        const AvanceRapide loi = PrepareAvanceRapide(angle, sortie);
        ASSERT_TRUE(loi.place) << angle << " " << sortie;
        const LoiDeX deX = [&](double x) { return EvalueAvanceRapide(loi, x); };
        VerifieLoi(deX, {loi.bornes.begin(), loi.bornes.end()});
        VerifieBouts(deX(0), deX(1));
        EXPECT_NEAR(deX(angle).Course, sortie, 1e-12);
        EXPECT_NEAR(deX(angle).Vitesse, loi.V2, 1e-12);
        EXPECT_NEAR(deX(loi.bornes[1]).Vitesse, loi.V1, 1e-12);
        EXPECT_NEAR(loi.bornes[5] + loi.P / 2, 1, 1e-15);
    }
    // No room: the fast part takes more than four fifths, or the slow part would have to run backwards.
    EXPECT_FALSE(PrepareAvanceRapide(0.84, 0.9).place);
    EXPECT_FALSE(PrepareAvanceRapide(0.5, 0.05).place);
}

TEST(LoisSpeciales, LiquidsDecelerateInOneHalfWave) {
    for (const double A : {0.05, 0.125, 0.2, 0.45}) {
        const LoiLiquide loi = PrepareLiquide(A);
        const LoiDeX deX = [&](double x) { return EvalueLiquide(loi, x); };
        VerifieLoi(deX, {loi.bornes.begin(), loi.bornes.end()});
        VerifieBouts(deX(0), deX(1));
        EXPECT_NEAR(deX(2 * A).Vitesse, loi.Cv, 1e-12) << "all the speed is gained over twice A";
        EXPECT_NEAR(deX(2 * A + loi.C / 2).Accel, -loi.Cd, 1e-11);
    }
    EXPECT_THROW(PrepareLiquide(0), ErreurExecution);
}

TEST(LoisSpeciales, AsymmetricReturnJoinsTheRiseAndTheNextOne) {
    for (const double e : {1.0, 1.01, 1.1, 1.5, 2.0, 5.0, 7.3}) {
        const LoiMSHDissyme loi = PrepareMSHDissyme(e);
        ASSERT_TRUE(loi.existe) << e;
        EXPECT_NEAR(loi.montee.Ca, 5.214566, 5e-7);
        EXPECT_NEAR(loi.montee.Cv, 1.659848, 5e-7);
        // Rise and return on one axis, in units of the rise's angle; the whole is brought to 0..1 for the check.
        const double total = 1 + e;
        const LoiDeX entier = [&](double u) {
            const double x = u * total;
            PointLoi p = x <= 1 ? EvalueMonteeMSH(loi.montee, x) : EvalueDescente(loi, (x - 1) / e);
            p.Vitesse *= total;
            p.Accel *= total * total;
            return p;
        };
        const double r = loi.r;
        std::vector<double> bornes{0.125, 0.5, 1};
        for (const double z : {2 * r, 1 - 2 * r, 1 - r / 2}) bornes.push_back(1 + e * z);
        for (double& b : bornes) b /= total;
        VerifieLoi(entier, bornes, 1e-4);
        for (const double bout : {0.0, 1.0}) {
            EXPECT_NEAR(entier(bout).Course, 0, 1e-12) << e;
            EXPECT_NEAR(entier(bout).Vitesse, 0, 1e-10) << e;
            EXPECT_NEAR(entier(bout).Accel, 0, 1e-9) << e;
        }
        EXPECT_NEAR(EvalueDescente(loi, 0).Accel, -loi.montee.Ca, 1e-12) << "no jump at the top";
        EXPECT_NEAR(EvalueDescente(loi, 1 - r / 2).Accel, loi.montee.Ca, 1e-9) << "one amplitude";
    }
    EXPECT_FALSE(PrepareMSHDissyme(0.999).existe) << "a return faster than the rise";
}
