#include "cams/CompleteZones.h"
#include "planecams/CamesPlates.h"

#include "outils/Catalogue.h"
#include "outils/DialoguesScript.h"
#include "outils/Echec.h"

#include <cmath>

namespace {

class CameAngulaire : public AvecCatalogue {
protected:
    DialoguesScript dialogues;

    CameAngulaire() {
        PoseMecanismeBras();
        etude.donnees.MasseBrasO1A = 0.8;
        etude.donnees.MasseBrasO1P = 0.6;
        etude.donnees.MasseA = 1.5;
        etude.donnees.EpaisseurCame = 12;
        etude.donnees.ForceY = -40;
        PoseZones({{25, 40, 90, "MS"}, {40, 40, 90, "MS"}, {40, 25, 120, "CYC"}, {25, 25, 60, "MS"}});
    }
};

} // namespace

TEST_F(CameAngulaire, RadiusIsTheDistanceOfTheRollerCentre) {
    CalculeCameAngulaire();
    ASSERT_TRUE(SansErreur());
    for (const auto& p : etude.resultats.Points) {
        const double phi = (p.AngleBras + 40) * Pi / 180;
        ASSERT_NEAR(p.Rayon, std::hypot(80 - 70 * std::cos(phi), 30 - 70 * std::sin(phi)), 1e-10);
    }
    EXPECT_NEAR(etude.resultats.RayonMax - etude.resultats.RayonMin,
                std::abs(etude.resultats.Points[0].Rayon - etude.resultats.Points[90].Rayon), 1e-9);
    EXPECT_TRUE(dialogues.boites.empty());
}

TEST_F(CameAngulaire, SpeedsAreTheDerivativesOfTheRadius) {
    etude.donnees.PointsParDegre = 10;
    CalculeCameAngulaire();
    const double dt = 1.0 / (300.0 * 6 * 10); // s a point
    const auto& P = etude.resultats.Points;
    for (long i = 20; i < 880; ++i) {
        ASSERT_NEAR((P[i + 1].Rayon - P[i - 1].Rayon) / 1000 / (2 * dt), P[i].VitesseRayon, 1e-4) << i;
        ASSERT_NEAR((P[i + 1].VitesseRayon - P[i - 1].VitesseRayon) / (2 * dt), P[i].AccelRayon, 0.5) << i;
    }
    for (long i = 901; i < 1799; ++i) ASSERT_EQ(P[i].AccelRayon, 0) << "the arm rests";
}

TEST_F(CameAngulaire, OffsetCurvesLieARollerRadiusAway) {
    CalculeCameAngulaire();
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        const auto& c = etude.resultats.Profil[i];
        const double a = etude.resultats.Points[i].Angle * Pi / 180, R = etude.resultats.Points[i].Rayon;
        const double x = R * std::cos(a), y = R * std::sin(a);
        ASSERT_NEAR(std::hypot(c.XInterieur - x, c.YInterieur - y), 10, 1e-9);
        ASSERT_NEAR((c.XInterieur + c.XExterieur) / 2, x, 1e-9);
        ASSERT_NEAR((c.YInterieur + c.YExterieur) / 2, y, 1e-9);
    }
    // At rest the profile is a circle about the cam centre.
    const auto& repos = etude.resultats.Profil[135];
    EXPECT_NEAR(std::hypot(repos.XInterieur, repos.YInterieur), etude.resultats.Points[135].Rayon - 10, 1e-9);
    EXPECT_NEAR(repos.RayonCourbure, etude.resultats.Points[135].Rayon, 1e-9);
    EXPECT_NEAR(std::abs(repos.RayonCourbureInterieur), etude.resultats.Points[135].Rayon - 10, 0.05);
}

TEST_F(CameAngulaire, EndPatchLandsOnTheLastDegree) {
    for (const double points : {1.0, 2.0}) {
        etude.donnees.PointsParDegre = points;
        CalculeCameAngulaire();
        const auto& profil = etude.resultats.Profil;
        EXPECT_EQ(profil[360].DeriveeRayon, profil[0].DeriveeRayon) << points;
        EXPECT_EQ(profil[360].YInterieur2, profil[0].YInterieur2);
    }
}

TEST_F(CameAngulaire, ForcesOfABalancedArmComeFromItsInertiaAlone) {
    etude.donnees.AnglePesanteur = 135; // gravity terms cancel: cos 45 = sin 45
    etude.donnees.ForceY = 0;
    CalculeCameAngulaire();
    const double J = 0.01 * 1.5 + 0.01 * 0.8 / 3 + 0.0049 * 0.6 / 3;
    EXPECT_NEAR(etude.resultats.InertieBras + etude.donnees.InertieMasseA, J, 1e-15);
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        const auto& p = etude.resultats.Points[i];
        ASSERT_NEAR(p.ForceGalet, 1.4 * J * etude.resultats.Mouvement[i].Accel / 0.07, 1e-6);
        // Power at the cam: torque against the pressure angle, whose tangent is the slope of the radius.
        ASSERT_NEAR(p.Couple, p.Rayon / 1000 * p.ForceGalet * std::tan(etude.resultats.Profil[i].AngleTangent - Pi / 2),
                    1e-9);
    }
    const double rayon = (etude.resultats.RayonMax + 20) / 100;
    EXPECT_NEAR(etude.resultats.MasseCame, 7.8 * Pi * rayon * rayon * 0.12, 1e-9);
}

TEST_F(CameAngulaire, ARestingArmCarriesItsWeightAndTheOuterForces) {
    etude.donnees.AnglePesanteur = 90;
    etude.donnees.MasseBrasO1P = 0;
    etude.donnees.ForceX = 25;
    CalculeCameAngulaire();
    const double a = 40 / RadDeg;
    const Point& p = etude.resultats.Points[135];
    EXPECT_NEAR(p.ForceGalet * 0.07, -(0.8 / 2 + 1.5) * 0.1 * std::cos(a) * 9.81, 1e-9);
    EXPECT_NEAR(p.Couple, 0.1 * (25 * std::sin(a) - 40 * std::cos(a)), 1e-9);
}

TEST_F(CameAngulaire, APeakOfZeroKeepsNoPlaceOfTheCalculationBefore) {
    using R = ResultatsEtude;
    constexpr std::int16_t R::*places[] = {&R::VitesseRayonMaxAngle, &R::AccelRayonMaxAngle, &R::ForceGaletMaxAngle,
                                           &R::CoupleMaxAngle};
    CalculeCameAngulaire();
    for (const auto place : places) ASSERT_NE(etude.resultats.*place, 0);
    etude.donnees.MasseBrasO1A = etude.donnees.MasseBrasO1P = etude.donnees.MasseA = etude.donnees.ForceY = 0;
    PoseZones({{25, 25, 360, "MS"}});
    CalculeCameAngulaire();
    EXPECT_EQ(etude.resultats.AccelRayonMax, 0);
    EXPECT_EQ(etude.resultats.CoupleMax, 0);
    for (const auto place : places) EXPECT_EQ(etude.resultats.*place, 0);
}

TEST_F(CameAngulaire, ChecksTellWhatIsWrong) {
    etude.donnees.RayonGalet = 60;
    CalculeCameAngulaire();
    ASSERT_GE(dialogues.boites.size(), 2u);
    EXPECT_EQ(dialogues.boites[0].texte.find(Texte(432) + " ; "), 0u);
    EXPECT_NE(dialogues.boites[1].texte.find(Texte(428)), std::string::npos);
    EXPECT_TRUE(SansErreur()) << "neither stops the study";

    dialogues.boites.clear();
    etude.donnees.RayonGalet = 5;
    PoseZones({{25, -60, 180, "MS"}, {-60, 25, 180, "MS"}});
    CalculeCameAngulaire();
    EXPECT_FALSE(SansErreur());
    EXPECT_EQ(dialogues.boites.back().texte, Texte(427));
    EXPECT_EQ(dialogues.boites.back().icone, Icone::Critique);
}

TEST_F(CameAngulaire, RunTimeFailuresLeaveTheStudyInDegreesAndNoResults) {
    using D = DonneesEtude;
    const std::tuple<double D::*, double, NumeroErreur> cas[] = {
        {&D::RayonO1P, 0, NumeroErreur::DivisionParZero},
        {&D::CoteA, 0, NumeroErreur::DivisionParZero}, // the pivot above the centre
        {&D::MasseA, 1e308, NumeroErreur::ResultatNonFini}};
    for (const auto& [membre, valeur, numero] : cas) {
        const double garde = etude.donnees.*membre;
        etude.donnees.*membre = valeur;
        etude.resultats.ResultatsPrets = Vrai;
        EXPECT_EQ(EchecDe(CalculeCameAngulaire).numero, numero) << valeur;
        EXPECT_EQ(etude.donnees.Zones[1].AngleCame, 90) << valeur;
        EXPECT_TRUE(etude.resultats.Points.Vide()) << valeur;
        EXPECT_EQ(etude.resultats.ResultatsPrets, Faux) << valeur;
        etude.donnees.*membre = garde;
    }
}
