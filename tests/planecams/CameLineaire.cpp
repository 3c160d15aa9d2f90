#include "cams/LimitesSaisie.h"
#include "cams/RemarquesZones.h"
#include "planecams/CamesPlates.h"

#include "outils/Catalogue.h"
#include "outils/DialoguesScript.h"

#include <cmath>

namespace {

class CameLineaire : public AvecCatalogue {
protected:
    DialoguesScript dialogues;

    CameLineaire() {
        etude.donnees.TypeCame = "Lineaire";
        etude.donnees.RayonGalet = 10;
        etude.donnees.VitesseCame = 240;
        etude.donnees.MasseA = 2;
        etude.donnees.ForceY = 50;
        etude.donnees.EpaisseurCame = 15;
        etude.donnees.AnglePesanteur = 90;
        etude.donnees.PointsParDegre = 4;
        PoseZones({{50, 70, 120, "CYC"}, {70, 70, 60, "MS"}, {70, 50, 120, "MS", 0.4}, {50, 50, 60, "MS"}});
    }
};

} // namespace

TEST_F(CameLineaire, RadiusFollowsTheLawAndItsSpeedsAreItsDerivatives) {
    CalculeCameLineaire();
    ASSERT_TRUE(SansErreur());
    EXPECT_TRUE(dialogues.boites.empty());
    EXPECT_TRUE(etude.resultats.Mouvement.Vide());
    const auto& P = etude.resultats.Points;
    EXPECT_EQ(etude.resultats.NombrePoints, 1440);
    for (long i = 0; i <= 480; ++i) {
        const double x = static_cast<double>(i) / 480;
        ASSERT_NEAR(P[i].Rayon, 50 + 20 * (x - std::sin(2 * Pi * x) / (2 * Pi)), 1e-10);
    }
    EXPECT_EQ(etude.resultats.RayonMax, 70);
    EXPECT_NEAR(etude.resultats.RayonMin, 50, 1e-12);
    EXPECT_NEAR(etude.resultats.VitesseRayonMax, 2 * 0.02 / (120.0 / 240 / 6), 1e-9) << "cycloid: twice the mean speed";
    const double dt = 1.0 / (240.0 * 6 * 4);
    for (long i = 730; i < 1190; ++i) {
        ASSERT_NEAR((P[i + 1].Rayon - P[i - 1].Rayon) / 1000 / (2 * dt), P[i].VitesseRayon, 1e-3) << i;
    }
}

TEST_F(CameLineaire, ForcesAndTorqueBalanceTheSlope) {
    CalculeCameLineaire();
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        const auto& p = etude.resultats.Points[i];
        const double b = etude.resultats.Profil[i].AngleTangent - Pi / 2;
        ASSERT_NEAR(p.ForceGalet * std::cos(b), 2 * (1.4 * p.AccelRayon + 9.81) + 50, 1e-9);
        ASSERT_NEAR(p.Couple, p.Rayon / 1000 * p.ForceGalet * std::tan(b), 1e-12);
    }
    // The follower rests: no torque, weight and outer force alone.
    EXPECT_NEAR(etude.resultats.Points[600].ForceGalet, 2 * 9.81 + 50, 1e-9);
    EXPECT_NEAR(etude.resultats.Points[600].Couple, 0, 1e-12);
}

TEST_F(CameLineaire, AsManyZonesAndPointsAsANumberOfThemReaches) {
    etude.donnees.PointsParDegre = 1;
    std::vector<ZoneVoulue> zones(32767, {50, 50, 1, "MS"});
    zones.back().final = 51;
    PoseZones(zones);
    EXPECT_EQ(FautePoints(1), 0);
    CalculeCameLineaire();
    EXPECT_EQ(etude.resultats.NombrePoints, 32767);
    EXPECT_EQ(etude.resultats.Points[32766].Rayon, 50);
    EXPECT_NEAR(etude.resultats.Points[32767].Rayon, 51, 1e-12);
    EXPECT_EQ(SommeAngles(32767), 32767);
}
