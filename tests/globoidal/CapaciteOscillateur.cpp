#include "globoidal/CapaciteOscillateur.h"

#include "globoidal/ExemplesGlobiques.h"
#include "globoidal/LignesGlobiques.h"
#include "globoidal/LoisGlobiques.h"
#include "globoidal/ZonesOscillateur.h"
#include "outils/Catalogue.h"
#include "outils/DossierTemporaire.h"

#include <cmath>

namespace {

class CapaciteOscillateur : public AvecCatalogue {
protected:
    ResultatGlobique Calcule(const DonneesOscillateur& d) {
        return CalculeCapaciteOscillateur(d, etude.lois.ListeLois);
    }
    MouvementOscillateur Mouvement(const DonneesOscillateur& d) {
        return PrepareMouvement(d, d.AngleSortie, etude.lois.ListeLois);
    }

    /// A law file: forward over a, rest over b, back over c degrees of the motion's a + b + c.
    std::string EcritLoi(int a, int b, int c) {
        const int fin = a + b + c;
        const LoiCinqSegments loi = PrepareCinqSegments({0.5, 0, 0.5, 0});
        const auto zone = [&](double u, double angle, int sens) {
            const PointLoi p = Evalue(loi, u, 0.5, JointsIndexeur);
            const double r = fin / angle;
            return PointLoi{sens > 0 ? p.Course : 1 - p.Course, p.Vitesse * r * sens, p.Accel * r * r * sens};
        };
        return dossier.Ecrit("loi.Lmi", ContenuLoi([&](int i) {
                                 const double x = i / 2.0;
                                 if (x <= a) return zone(x / a, a, 1);
                                 if (x <= a + b) return PointLoi{1, 0, 0};
                                 return x <= fin ? zone((x - a - b) / c, c, -1) : PointLoi{};
                             }));
    }
    DossierTemporaire dossier;
};

} // namespace

TEST_F(CapaciteOscillateur, FlanksAndEnvelopeOfTwoRollers) {
    const DonneesOscillateur d = UnOscillateur();
    const ResultatGlobique r = Calcule(d);
    EXPECT_EQ(r.AngleFlanc1, 35); // half the pitch and half the stroke
    EXPECT_EQ(r.AngleFlanc2, 5);
    EXPECT_EQ(r.AngleFlancTravail, 35) << "raised to the first flank";
    const double fa = 35 / RadDeg, chanfrein = 0.063 * 25.4;
    EXPECT_NEAR(r.CameDiametre, 320 - (192 - 12 + chanfrein) * std::cos(fa) - 22 * std::sin(fa), 1e-9);
    EXPECT_NEAR(r.DiametreRogne, r.CameDiametre - (6 - chanfrein) * std::cos(fa), 1e-9);
    EXPECT_NEAR(r.CameLargeur, (192 + 12 - chanfrein) * std::sin(fa) - 22 * std::cos(fa), 1e-9);
    // Half the pitch and three quarters of a roller, on the half degree above.
    EXPECT_EQ(Calcule(UnOscillateur(3)).AngleFlancTravail, Int(2 * (20 + 0.75 * 22 / 96 * RadDeg) + 1) / 2);
}

TEST_F(CapaciteOscillateur, SteepestContactAndShaftLimit) {
    DonneesOscillateur d = UnOscillateur();
    d.AngleZoneC = 90;
    d.AngleZoneD = 90;
    const ResultatGlobique r = Calcule(d);
    const double Vmax = 1.7596033859537705, arbre = 370 / 0.112985;
    EXPECT_LT(Relatif(r.Resultats[LimiteArbre][0], arbre * 0.9 * 90 / 30 / Vmax), 1e-12) << "the faster zone";
    // On the way back a share of inertia up to one half leaves no torque: the way forward alone counts.
    EXPECT_GT(r.Resultats[LimiteArbre][1], arbre * 0.9 * 120 / 30 / Vmax);
    // The steepest contact is in the faster zone, between the rollers' middle and the line of centres.
    const double auMilieu = std::atan(Vmax * 30 / 90 * 96 / (160 - 96)) * RadDeg;
    EXPECT_NEAR(r.AnglePressionMaxi, auMilieu, 1e-9);
}

TEST_F(CapaciteOscillateur, ALawOfRiseAndReturnIsRunBackwardsWhereNoDwellFollows) {
    DonneesOscillateur d = UnOscillateur();
    d.LoiZoneA = d.LoiZoneC = "MSH";
    const auto depart = [&] { return Mouvement(d).aller.points[1].Accel; };
    const auto retour = [&] { return Mouvement(d).retour.points[1].Accel; };
    const double doux = depart();
    EXPECT_LT(doux, 2) << "a sine rise begins gently";
    EXPECT_GT(retour(), -2);
    d.AngleZoneD = 0;
    EXPECT_NEAR(depart(), 5.2, 0.05) << "out of the motion before";
    EXPECT_GT(retour(), -2);
    d.AngleZoneB = 0;
    EXPECT_NEAR(retour(), -5.2, 0.05);
}

TEST_F(CapaciteOscillateur, JointsAtWhichTheAccelerationJumpsAreNamed) {
    using Noms = std::vector<std::string>;
    DonneesOscillateur d = UnOscillateur();
    const auto sauts = [&](const char* aller, const char* retour, std::array<double, 4> zones) {
        d.LoiZoneA = aller, d.LoiZoneC = retour;
        d.AngleZoneA = zones[0], d.AngleZoneB = zones[1], d.AngleZoneC = zones[2], d.AngleZoneD = zones[3];
        return Calcule(d).Sauts;
    };
    EXPECT_EQ(sauts("MS", "MTC50", {120.5, 60, 119.5, 60}), Noms{});
    EXPECT_EQ(sauts("MSH", "MSHC33", {120, 60, 120, 60}), (Noms{"A-B", "C-D"})) << "two dwells";
    // One dwell: full deceleration runs into the way back, of the same size only in the same time.
    EXPECT_EQ(sauts("MSHC20", "MSHC20", {130.25, 0, 130.25, 99.5}), Noms{});
    EXPECT_EQ(sauts("MSHC20", "MSHC20", {120, 0, 140.5, 99.5}), Noms{"A-C"});
    EXPECT_EQ(sauts("MSHC20", "MS", {110, 140, 110, 0}), Noms{"C-A"});
    EXPECT_EQ(sauts("MS", "SHM", {110, 70, 110, 70}), (Noms{"B-C", "C-D"}));
    EXPECT_NE(NotesOscillateur(d, Calcule(d)).back().find(": B-C, C-D"), std::string::npos);
}

TEST_F(CapaciteOscillateur, ZonesOfALawFileAreFoundInIt) {
    DonneesOscillateur d = UnOscillateur();
    d.LoiZoneC = "Fichier";
    for (const auto& [a, b, c] : {std::array{100, 40, 120}, {90, 0, 200}, {181, 3, 176}}) {
        SCOPED_TRACE(b);
        d.FichierLoi = EcritLoi(a, b, c);
        const MouvementOscillateur m = Mouvement(d);
        EXPECT_EQ(m.zones, (std::array<double, 4>{double(a), double(b), double(c), 360.0 - a - b - c}));
        // By the zone's own share of the motion the law has its usual maxima again.
        EXPECT_NEAR(m.aller.Vmax, 2, 0.001);
        EXPECT_NEAR(m.retour.Amax, 2 * Pi, 0.005);
        EXPECT_NEAR(m.aller.points.back().Course, 1, 1e-12);
        EXPECT_LT(m.retour.points[10].Vitesse, 0);
    }
    // The file stands for the zones typed, and for a law that is missing.
    d.LoiZoneA = "";
    d.AngleZoneB = 0;
    EXPECT_FALSE(ChercheFauteOscillateur(d));
    EXPECT_LT(Relatif(Calcule(d).Resultats[LimiteArbre][0], 370 / 0.112985 * 0.9 * 176 / 30 / 2), 0.001);
}
