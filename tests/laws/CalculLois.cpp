#include "laws/CalculLois.h"

#include "laws/LoiMSH.h"

#include "outils/Catalogue.h"
#include "outils/Echec.h"
#include "outils/VerifieLoi.h"

#include <algorithm>
#include <cmath>

namespace {

class Lois : public AvecCatalogue {
protected:
    /// Evaluates a law as the law of zone `zone`, over `n` steps.
    static void Applique(const std::string& nom, double n, double symetrie = 0.5, std::int16_t zone = 1) {
        etude.donnees.Zones.Redimensionne(zone);
        etude.donnees.Zones[zone].NomLoi = nom;
        etude.donnees.Zones[zone].AngleCame = n;
        etude.donnees.Zones[zone].CoefSymetrie = symetrie;
        AppliqueLoi(zone);
    }

    static double Maximum(double PointLoi::*champ) {
        double maximum = 0;
        for (const auto& p : etude.lois.LoiUnite) maximum = std::max(maximum, std::abs(p.*champ));
        return maximum;
    }

    static NumeroErreur NumeroDe(const std::string& nom, double n, double symetrie = 0.5) {
        return EchecDe([&] { Applique(nom, n, symetrie); }).numero;
    }
};

const char* const usuelles[] = {"CYC",   "SHM",   "MT",    "MTC50", "MS",    "MSC15",
                                "MSC20", "MSC25", "MSC33", "MSC50", "MSC66", "MSC80"};

} // namespace

TEST_F(Lois, PublishedPeakFactors) {
    const struct {
        const char* nom;
        double ca, cv;
    } publiees[] = {{"CYC", 6.283185, 2},       {"SHM", 4.934802, 1.570796}, {"MT", 4.888124, 2},
                    {"MS", 5.527957, 1.759603}, {"MTC50", 6.517, 1.333},     {"MSC20", 5.999, 1.528},
                    {"MSC25", 6.194, 1.479},    {"MSC33", 6.616, 1.404},     {"MSC50", 8.013, 1.275},
                    {"MSC66", 11.009, 1.168},   {"MSC80", 17.192, 1.094},    {"MSC15", 5.8383, 1.5796}};
    for (const auto& p : publiees) {
        Applique(p.nom, 7200);
        // A unit of the last printed digit: 6.616 is 6.6166 cut, not rounded.
        const double ecart = p.ca == 5.527957 || p.ca == 6.283185 || p.ca == 4.934802 ? 1e-6 : 1e-3;
        EXPECT_NEAR(Maximum(&PointLoi::Accel), p.ca, ecart) << p.nom;
        EXPECT_NEAR(Maximum(&PointLoi::Vitesse), p.cv, ecart) << p.nom;
    }
}

TEST_F(Lois, EachLawIsTheIntegralOfItsAcceleration) {
    for (const char* nom : usuelles) {
        for (const double S : {0.5, 0.3, 0.75}) {
            SCOPED_TRACE(std::string(nom) + " " + std::to_string(S));
            Loi loi = etude.lois.ListeLois[ChercheLoi(nom)];
            PrepareLoi(loi);
            CoefSym = S;
            CoefSymCompl = 1 - S;
            const auto deX = [](double x) {
                EvalueLoiSymetrie(x);
                return PointLoi{LoiCourse, LoiVitesse, LoiAccel};
            };
            // The first half of the law lies over 0..S, the second over S..1.
            std::vector<double> bornes;
            for (const double b : {loi.CoefA / 2, (loi.CoefA + loi.CoefB) / 2, (1 - loi.CoefD) / 2, 0.5})
                if (b > 0) bornes.insert(bornes.end(), {b * 2 * S, 1 - b * 2 * (1 - S)});
            VerifieLoi(deX, bornes);
            for (const double bout : {0.0, 1.0}) {
                EXPECT_NEAR(deX(bout).Course, bout, 1e-12);
                EXPECT_NEAR(deX(bout).Vitesse, 0, 1e-9);
            }
        }
    }
}

TEST_F(Lois, SymmetryAtItsLimits) {
    // A coefficient of 1 has no second half; rounding must not carry the last point past the end either.
    Applique("CYC", 90, 1.0);
    EXPECT_NEAR(etude.lois.LoiUnite[90].Course, 1, 1e-12);
    for (double s = 0.01; s < 1; s += 0.01) {
        for (const char* nom : usuelles) {
            ASSERT_NO_THROW(Applique(nom, 73, s)) << nom << " " << s;
            ASSERT_NEAR(etude.lois.LoiUnite[73].Course, 1, 1e-9) << nom << " " << s;
        }
    }
    EXPECT_EQ(NumeroDe("MS", 90, 0.0), NumeroErreur::DivisionParZero);
}

TEST_F(Lois, FractionalExtentLeavesTheLastRowEmpty) {
    Applique("MS", 30.7);
    EXPECT_EQ(etude.lois.LoiUnite.BorneHaute(), 31);
    EXPECT_EQ(etude.lois.LoiUnite[31].Course, 0);
    Applique("MS", 307);
    const double attendu = etude.lois.LoiUnite[300].Course;
    Applique("MS", 30.7);
    EXPECT_NEAR(etude.lois.LoiUnite[30].Course, attendu, 1e-12);
}

TEST_F(Lois, CustomPercentageOverwritesTheRowOfItsZone) {
    const std::string avant = etude.lois.ListeLois[3].NomLoi;
    Applique("MS_Spe_ 40", 200, 0.5, 3);
    EXPECT_EQ(etude.lois.ListeLois[3].NomLoi, avant);
    EXPECT_DOUBLE_EQ(etude.lois.ListeLois[3].CoefA, 0.15);
    EXPECT_DOUBLE_EQ(etude.lois.ListeLois[3].CoefD, 0.4);
    const double milieu = etude.lois.LoiUnite[60].Course;
    Applique(avant, 200);
    EXPECT_EQ(etude.lois.LoiUnite[60].Course, milieu) << "a later zone of that row's law gets the custom coefficients";
}

TEST_F(Lois, FailuresAreRunTimeFailures) {
    EXPECT_EQ(NumeroDe("XYZ", 90), NumeroErreur::IndiceHorsLimites);
    EXPECT_EQ(NumeroDe("MS", 40000), NumeroErreur::Depassement);
    EXPECT_EQ(NumeroDe("MS_Special", 90), NumeroErreur::AppelIncorrect);
}

TEST_F(Lois, RiseAndReturnMeetsAtTheTop) {
    for (const char* nom : {"MSH", "MSHC20", "MSHC33", "MSHC50"}) {
        const long n = 3600;
        etude.resultats.NombrePoints = n;
        PrepareLoiMSH(etude.lois.ListeLois[ChercheLoi(nom)]);
        CalculeLoiMSH();
        const auto& u = etude.lois.LoiUnite;
        EXPECT_NEAR(u[n / 2].Course, 1, 1e-12) << nom;
        EXPECT_NEAR(Maximum(&PointLoi::Vitesse), etude.lois.LoiEtude.Cv, 1e-6) << nom;
        EXPECT_NEAR(Maximum(&PointLoi::Accel), etude.lois.LoiEtude.Ca, 1e-6) << nom;
        for (long i = 0; i < n / 2; ++i) {
            ASSERT_EQ(u[n - i].Course, u[i].Course);
            ASSERT_EQ(u[n - i].Vitesse, -u[i].Vitesse);
        }
        const Loi& loi = etude.lois.LoiEtude;
        VerifieLoi([&](double x) { return EvalueMonteeMSH(loi, x); },
                   {loi.CoefA / 2, (loi.CoefA + loi.CoefB) / 2, (loi.CoefA + loi.CoefB + loi.CoefC) / 2});
    }
}
