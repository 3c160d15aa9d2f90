#include "cylindrical/CamesCylindriques.h"
#include "cams/Pente.h"
#include "cylindrical/DeveloppeeCyl.h"
#include "cylindrical/DonneesCyl.h"

#include "outils/Catalogue.h"
#include "outils/DialoguesScript.h"

#include <cmath>

namespace {

class CameCylindrique : public AvecCatalogue {
protected:
    DialoguesScript dialogues;

    CameCylindrique() {
        etude.donnees.TypeCame = "Cylindrique";
        etude.donnees.RayonGalet = 8;
        etude.donnees.VitesseCame = 120;
        etude.donnees.DiametreCame = 100;
        etude.donnees.MasseA = 3;
        etude.donnees.ForceY = 20;
        etude.donnees.AnglePesanteur = 270;
        etude.donnees.PointsParDegre = 1;
        PoseZones({{0, 30, 120, "CYC"}, {30, 30, 60, "MS"}, {30, 0, 120, "MS", 0.4}, {0, 0, 60, "MS"}});
    }
};

class CameCylOsc : public CameCylindrique {
protected:
    CameCylOsc() {
        etude.donnees.TypeCame = "Oscillation";
        etude.donnees.RayonO1P = 90;
        etude.donnees.InertieMasseA = 0.2;
        etude.donnees.CoupleConstantO1 = 5;
        PoseZones({{-10, 20, 120, "CYC"}, {20, 20, 60, "MS"}, {20, -10, 180, "CYC"}});
    }
};

} // namespace

TEST_F(CameCylindrique, HeightFollowsTheLawAndItsSpeedsAreItsDerivatives) {
    etude.donnees.PointsParDegre = 4;
    CalculeCameCylindrique();
    ASSERT_TRUE(SansErreur());
    EXPECT_TRUE(dialogues.boites.empty());
    EXPECT_TRUE(etude.resultats.Mouvement.Vide());
    const auto& P = etude.resultats.Points;
    ASSERT_EQ(etude.resultats.NombrePoints, 1440);
    for (long i = 0; i <= 480; ++i) {
        const double x = static_cast<double>(i) / 480;
        ASSERT_NEAR(P[i].Rayon, 30 * (x - std::sin(2 * Pi * x) / (2 * Pi)), 1e-10);
    }
    const double dt = 1.0 / (120.0 * 6 * 4); // s a point
    for (long i = 730; i < 1190; ++i) {
        ASSERT_NEAR((P[i + 1].Rayon - P[i - 1].Rayon) / 1000 / (2 * dt), P[i].VitesseRayon, 1e-4) << i;
        ASSERT_NEAR((P[i + 1].VitesseRayon - P[i - 1].VitesseRayon) / (2 * dt), P[i].AccelRayon, 0.1) << i;
    }
    // The peak of the cycloid's speed: twice the mean, in the middle of its zone, told by its subscript.
    EXPECT_NEAR(P[240].VitesseRayon, 2 * 0.030 / (120.0 / 120 / 6), 1e-12);
    EXPECT_EQ(etude.resultats.VitesseRayonMaxAngle, 240);
    // The roller rolls on the surface of the cam: 0.1 pi m a turn, and 16 pi mm of its own.
    EXPECT_EQ(P[240].VitesseGalet, std::floor(std::hypot(0.628318530717958, P[240].VitesseRayon) * 60 / 2 / Pi / .008));
}

TEST_F(CameCylindrique, AtADwellTheFlanksLieParallelAtTheRollersRadius) {
    CalculeCameCylindrique();
    const double arc = Pi * 100 / 360;
    for (long i = 120; i < 180; ++i) {
        const auto& c = etude.resultats.Profil[i];
        ASSERT_EQ(c.AngleTangent, 0);
        ASSERT_NEAR(c.XInterieur, arc * static_cast<double>(i), 1e-10);
        ASSERT_NEAR(c.YInterieur, 22, 1e-10);
        ASSERT_NEAR(c.YExterieur, 38, 1e-10);
        ASSERT_TRUE(c.RayonCourbure == 0 || i >= 178) << "straight, but for the difference that looks ahead";
    }
    // Elsewhere each flank lies a roller radius from the pitch curve, square to the track.
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        const auto& c = etude.resultats.Profil[i];
        const double x = arc * static_cast<double>(i), y = etude.resultats.Points[i].Rayon;
        ASSERT_NEAR(std::hypot(c.XInterieur - x, c.YInterieur - y), 8, 1e-9);
        ASSERT_NEAR((c.XInterieur - x) * std::cos(c.AngleTangent) + (c.YInterieur - y) * std::sin(c.AngleTangent), 0,
                    1e-9);
        ASSERT_NEAR(c.XInterieur + c.XExterieur, 2 * x, 1e-9);
    }
}

TEST_F(CameCylindrique, SlopesAndDifferencesAreThoseOfTheDevelopedCurve) {
    CalculeCameCylindrique();
    const auto pente = [](double x) { return 30 / (Pi * 100 / 3) * (1 - std::cos(2 * Pi * x)); };
    for (long i = 1; i < 119; ++i) {
        const double x = (static_cast<double>(i) + 0.5) / 120;
        ASSERT_NEAR(etude.resultats.Profil[i].DeriveeRayon, pente(x), 1e-4) << i;
        ASSERT_NEAR(std::tan(etude.resultats.Profil[i].AngleTangent), pente(x), 1e-4) << i;
    }
    EXPECT_NEAR(PenteMaxi(), std::atan(pente(0.5)) * RadDeg, 0.02);
    // With more points the slope stays that of a step over a whole degree, and shrinks.
    const double unParDegre = std::tan(etude.resultats.AngleTangentMax);
    etude.donnees.PointsParDegre = 4;
    CalculeCameCylindrique();
    EXPECT_NEAR(std::tan(etude.resultats.AngleTangentMax), unParDegre / 4, 1e-4);
    EXPECT_NEAR(etude.resultats.Profil[240].DeriveeRayon, pente(0.5), 1e-4) << "the differences are true all the same";
}

TEST_F(CameCylindrique, ForcesAndTorqueByHand) {
    CalculeCameCylindrique();
    // At rest: the weight of 3 kg, less the outer force along y.
    EXPECT_NEAR(etude.resultats.Points[150].ForceGalet, 3 * 9.81 - 20, 1e-12);
    EXPECT_EQ(etude.resultats.Points[150].Couple, 0);
    EXPECT_EQ(etude.resultats.Points[0].ForceGalet, 0) << "the first point has none";
    for (long i = 1; i <= etude.resultats.NombrePoints; ++i) {
        const auto& p = etude.resultats.Points[i];
        const double a = etude.resultats.Profil[i].AngleTangent;
        ASSERT_NEAR(p.ForceGalet * std::cos(a), 3 * (1.4 * p.AccelRayon + 9.81) - 20, 1e-9);
        ASSERT_NEAR(p.Couple, p.ForceGalet * std::sin(a) * 0.05, 1e-12);
    }
    EXPECT_EQ(std::abs(etude.resultats.Points[etude.resultats.CoupleMaxAngle].Couple), etude.resultats.CoupleMax);
    // A steel cylinder of 30 mm by 100 mm, started to 120 Tr/min in 0.25 s.
    EXPECT_NEAR(etude.resultats.MasseCame, 0.3 * 7.8 * Pi * 0.25, 1e-9);
    EXPECT_NEAR(etude.resultats.CoupleDemarrage, etude.resultats.MasseCame * 0.0025 / 2 * 4 * Pi / 0.25, 1e-9);
    EXPECT_NEAR(etude.resultats.AngleDemarrage, 90, 1e-9);
}

TEST_F(CameCylindrique, NeighbouringTurnsMustLeaveAWall) {
    PoseZones({{0, 60, 720, "MS"}});
    CalculeCameCylindrique();
    EXPECT_TRUE(SansErreur()) << "a turn on, the track is 30 mm away or more";
    EXPECT_TRUE(dialogues.boites.empty());
    // Two rollers' radii apart are too near already, all along the first dwell.
    PoseZones({{0, 0, 100, "MS"}, {0, 16, 260, "MS"}, {16, 16, 360, "MS"}});
    CalculeCameCylindrique();
    EXPECT_FALSE(SansErreur());
    long nombre = 0;
    for (long i = 1; i <= 359; ++i)
        if (etude.resultats.Points[i + 360].Rayon - etude.resultats.Points[i].Rayon <= 16) ++nombre;
    ASSERT_EQ(dialogues.boites.size(), 1u);
    EXPECT_EQ(dialogues.boites[0].icone, Icone::Critique);
    EXPECT_EQ(dialogues.boites[0].texte,
              Texte(126) + " " + std::to_string(nombre) + "\n" + Texte(430) + "\n" + Texte(431));
    EXPECT_EQ(etude.donnees.Zones[3].AngleCame, 360);
    // The second turn is that of the first laid back by a circumference.
    const Developpee d = CalculeDeveloppee();
    ASSERT_EQ(d.tours.size(), 2u);
    EXPECT_NEAR(d.tours[1].primitif.front().x, 0, 1e-9);
    EXPECT_NEAR(d.tours[1].primitif.back().x, Pi * 100, 1e-9);
    EXPECT_NEAR(CentreGaletDeveloppe(540).x, Pi * 50, 1e-9);
}

TEST_F(CameCylOsc, TheRollerRidesOnTheArm) {
    etude.durables.VitesseGaletMax = 1e6; // of another study
    CalculeCameCylOsc();
    ASSERT_TRUE(SansErreur());
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        ASSERT_NEAR(etude.resultats.Points[i].Rayon, 90 * std::sin(etude.resultats.Mouvement[i].Course / RadDeg),
                    1e-10);
        ASSERT_NEAR(etude.resultats.Points[i].VitesseRayon, 0.09 * etude.resultats.Mouvement[i].Vitesse, 1e-12);
    }
    EXPECT_NEAR(etude.resultats.Mouvement[60].Course, 5, 1e-12);
    // Stroke over 1000, twice the mean speed of a cycloid over a sixth of a second.
    EXPECT_NEAR(etude.durables.LoiVitesseMax, 2 * 0.030 * 6, 1e-12);
    EXPECT_EQ(etude.donnees.EpaisseurCame, 56.78) << "90 sin 20 degrees, the roller and 10 mm, to the hundredth";
    EXPECT_LT(etude.durables.VitesseGaletMax, 1000) << "cleared";
}

TEST_F(CameCylOsc, ForcesAndTorqueByHand) {
    CalculeCameCylOsc();
    // At rest the constant torque alone, on an arm of 90 mm.
    EXPECT_NEAR(etude.resultats.Points[150].ForceGalet, -5 / 0.09, 1e-12);
    for (long i = 1; i <= etude.resultats.NombrePoints; ++i) {
        const double a = etude.resultats.Profil[i].AngleTangent, F = etude.resultats.Points[i].ForceGalet;
        ASSERT_NEAR(F * std::cos(a) * 0.09, 0.2 * 1.4 * etude.resultats.Mouvement[i].Accel - 5, 1e-9);
        ASSERT_NEAR(etude.resultats.Points[i].Couple, F * std::sin(a) * 0.05, 1e-12);
    }
}

TEST_F(CameCylOsc, TheProposedDistanceHalvesTheStrayOfTheArc) {
    EXPECT_EQ(ProposeCoteA(), 87.29) << "90 (1 + cos 20) / 2";
    PoseZones({{20, -60, 180, "MS"}, {-60, 20, 180, "MS"}});
    EXPECT_EQ(ProposeCoteA(), 67.5) << "the largest magnitude of the final angles";
}
