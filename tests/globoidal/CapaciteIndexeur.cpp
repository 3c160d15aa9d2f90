#include "globoidal/CapaciteIndexeur.h"

#include "globoidal/ExemplesGlobiques.h"
#include "globoidal/LignesGlobiques.h"
#include "globoidal/LoisGlobiques.h"
#include "globoidal/TextesGlobiques.h"
#include "globoidal/UnitesGlobiques.h"
#include "outils/Catalogue.h"
#include "outils/DossierTemporaire.h"

#include <algorithm>
#include <cmath>

namespace {

class CapaciteIndexeur : public AvecCatalogue {
protected:
    ResultatGlobique Calcule(const DonneesIndexeur& d) { return CalculeCapaciteIndexador(d, etude.lois.ListeLois); }
};

/// Vmax of the modified sine, as published.
constexpr double VmaxMs = 1.7596033859537705;

} // namespace

TEST_F(CapaciteIndexeur, SteepestContactIsThatOfTheMiddleOfTheIndex) {
    // The pressure angle is largest where the roller on the line of centres is fastest, and with it the force.
    const DonneesIndexeur d = UnIndexeur(8, 8, 142.5);
    const ResultatGlobique r = Calcule(d);
    const double Rp = (90 + 12 / 2.0), dphi = VmaxMs * (360.0 / 8) / 142.5;
    const double alpha = std::atan(dphi * Rp / (160 - Rp));
    EXPECT_NEAR(r.AnglePressionMaxi, alpha * RadDeg, 1e-9);
    EXPECT_NEAR(r.RayonPrimitif, Rp, 1e-12);
    const double force = 100 / (Rp / 25.4 * std::cos(alpha)); // lbf, of a torque of 100 without inertia
    EXPECT_LT(Relatif(r.Resultats[ForceGalet][0], force), 1e-12);
    EXPECT_LT(Relatif(r.Resultats[LimiteGalet][0], d.CapaciteLimite / 4.44822 * 100 / force), 1e-12);
    // The curvature there has no other part than the motion's, and there is none.
    EXPECT_LT(Relatif(r.Resultats[LimiteArbre][0], 0.9 * 142.5 / 360 * 8 / VmaxMs * 370 * 8.85), 1e-12);
}

TEST_F(CapaciteIndexeur, RowsStandInTheirRatios) {
    for (const auto& [galets, stops] : {std::pair{8, 8}, {8, 4}, {8, 16}, {12, 5}}) {
        SCOPED_TRACE(stops);
        const double facteur = std::pow(std::max(1.0, double(stops) / galets), 0.3);
        const TableCapacites t = Calcule(UnIndexeur(galets, stops, 217.3)).Resultats;
        for (std::size_t k = 0; k < NombreParts; ++k) {
            EXPECT_LT(Relatif(t[B10Trempee][k], 0.385 * facteur * t[LimiteTrempee][k]), 1e-12);
            EXPECT_LT(Relatif(t[B10Nitruree][k], t[B10Trempee][k] * 3 / 17), 1e-12);
            EXPECT_LE(t[LimiteCameTrempee][k], std::min({t[LimiteGalet][k], t[LimiteTrempee][k], t[LimiteArbre][k]}));
            EXPECT_LE(t[LimiteCameNitruree][k], t[LimiteCameTrempee][k]);
            EXPECT_EQ(t[B10CameTrempee][k], std::min(t[B10Galet][k], t[B10Trempee][k]));
        }
    }
}

TEST_F(CapaciteIndexeur, TheEquivalentLoadCostsAsMuchLife) {
    // One pass: the life sum comes back from the equivalent load and the revolutions.
    const DonneesIndexeur d = UnIndexeur();
    const TableCapacites t = Calcule(d).Resultats;
    for (std::size_t k = 0; k < NombreParts; ++k) {
        const double vie = std::pow(t[ChargeEquivalente][k], 10.0 / 3) * t[ToursGalet][k];
        EXPECT_LT(Relatif(t[B10Galet][k], d.CapaciteB10 / 4.44822 * 100 / std::pow(24 * vie / 8, 0.3)), 1e-12);
        EXPECT_LT(t[ChargeEquivalente][k], t[ForceGalet][k]);
    }
}

TEST_F(CapaciteIndexeur, KindTypeAndPassesFollowFromStopsAndRollers) {
    const struct {
        double stops, angle, type, passages, genre, angleReel;
        int galets; ///< that are run
    } cas[] = {{8, 150, 1, 1, 1, 150, 1},
               {4, 150, 1, 2, 1, 150, 2},
               {3, 150, 1, 8.0 / 3, 1, 150, 2},
               {16, 240, 2, 1, 2, 120, 1}}; // half the turret's angle, in one of the cam's two turns
    for (const auto& c : cas) {
        const ResultatGlobique r = Calcule(UnIndexeur(8, c.stops, c.angle));
        EXPECT_EQ(r.Type, c.type) << c.stops;
        EXPECT_EQ(r.Passages, c.passages) << c.stops;
        EXPECT_EQ(r.Genre, c.genre) << c.stops;
        EXPECT_EQ(r.AngleReel, c.angleReel) << c.stops;
        EXPECT_EQ(r.Parcours.back().galet, c.galets) << c.stops;
    }
}

TEST_F(CapaciteIndexeur, CasingsHavePitchRadiiOfTheirOwn) {
    const auto primitif = [&](double boitier, double codemi, double stops = 8, double angle = 150) {
        DonneesIndexeur d = UnIndexeur(8, stops, angle);
        d.Boitier = boitier;
        d.codemi = codemi;
        d.Entraxe = 315;
        return Calcule(d).RayonPrimitif;
    };
    const double fenetre = 7.5 * 25.4 + 6;
    EXPECT_NEAR(primitif(0, 4), 90, 1e-12);
    EXPECT_NEAR(primitif(8, 4), 90, 1e-12);
    EXPECT_NEAR(primitif(5, 13), 4.055 * 25.4, 1e-12);
    EXPECT_NEAR(primitif(5, 12), 96, 1e-12);
    EXPECT_NEAR(primitif(13, 4), fenetre, 1e-12);
    EXPECT_NEAR(primitif(13, 4, 8, 120), 96, 1e-12) << "the window is open";
    EXPECT_NEAR(primitif(13, 4, 16, 290), fenetre, 1e-12) << "by the angle of one turn, 145";
    EXPECT_NEAR(primitif(13, 4, 16, 360), 96, 1e-12) << "180";
    EXPECT_THROW(primitif(17, 4), ErreurExecution);
    EXPECT_THROW(primitif(5, 21), ErreurExecution);
}

TEST_F(CapaciteIndexeur, ALoneRollerCarriesThePreloadAndLiftsOff) {
    const Flancs haut{true, false}, bas{false, true}, deux{true, true}, aucun{false, false};
    for (const auto& [couple, flancs, porte] : {std::tuple{-80.0, deux, 80.0},
                                                {20, haut, 10},
                                                {20, bas, 50},
                                                {30, haut, 0}, // lifts off
                                                {31, haut, 0},
                                                {-31, bas, 0},
                                                {-31, haut, 61},
                                                {5, aucun, 0}})
        EXPECT_EQ(PartageCharge(couple, 30, flancs).couple, porte) << couple;
    EXPECT_TRUE(PartageCharge(-80, 30, deux).inverse);
}

TEST_F(CapaciteIndexeur, ALawFileOfTheSameLawGivesTheSameSteepness) {
    const LoiCinqSegments loi{PrepareCinqSegments({0.25, 0, 0.75, 0})};
    const std::string contenu = ContenuLoi([&](int i) {
        return i < 300 ? Evalue(loi, i / 300.0, 0.5, JointsIndexeur) : PointLoi{1, 0, 0};
    });
    const DossierTemporaire dossier;
    DonneesIndexeur d = UnIndexeur(8, 8, 99);
    d.NomLoi = "Fichier";
    d.FichierLoi = dossier.Ecrit("loi.Lmi", contenu);
    const ResultatGlobique r = Calcule(d);
    EXPECT_EQ(r.AngleReel, 150) << "by its end line";
    // Turn 0 reads the first 180 lines, turn 1 goes on from there.
    EXPECT_LT(Relatif(r.Resultats[LimiteArbre][0], 0.9 * 150 / 360 * 8 / VmaxMs * 370 * 8.85), 1e-4);
    d.FichierLoi = dossier.Ecrit("sans-fin.Lmi", contenu.substr(0, contenu.find("1;0;0")));
    EXPECT_THROW(Calcule(d), ErreurExecution);
}

TEST_F(CapaciteIndexeur, ALawOfRiseAndReturnIsTakenByItsShares) {
    DonneesIndexeur d = UnIndexeur(8, 8, 142.5);
    const auto dit = [&] {
        const auto notes = NotesIndexeur(d, Calcule(d));
        return std::find(notes.begin(), notes.end(), Texte(TexteMshSansRetour)) != notes.end();
    };
    EXPECT_FALSE(dit());
    const TableCapacites sansRetour = Calcule(d).Resultats;
    d.NomLoi = "MSH";
    EXPECT_EQ(Calcule(d).Resultats, sansRetour);
    EXPECT_TRUE(dit()) << "and said";
}

TEST_F(CapaciteIndexeur, ValuesBeyondTheirLimitAreRedAndSayWhy) {
    const auto rouges = [&](const DonneesIndexeur& d) {
        std::string noms;
        for (const auto& groupe : GeometrieIndexeur(d, Calcule(d)))
            for (const LigneResultat& ligne : groupe.lignes) {
                if (ligne.rouge) noms += ligne.controle + " ";
                EXPECT_TRUE(!ligne.rouge || !ligne.note.empty()) << ligne.controle;
            }
        return noms;
    };
    DonneesIndexeur d = UnIndexeur();
    EXPECT_EQ(rouges(d), "");
    const ResultatGlobique r = Calcule(d);
    d.CameMaxDiam = r.CameDiametre; // the size itself fits
    d.CameMaxLong = r.CameLargeur - 1e-9;
    EXPECT_EQ(rouges(d), "Label17 ");
    EXPECT_EQ(rouges(UnIndexeur(8, 8, 85)), "Label63 ");
}
