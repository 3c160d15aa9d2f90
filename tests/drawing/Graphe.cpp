#include "drawing/Graphe.h"

#include "core/Nombres.h"
#include "drawing/Barres.h"
#include "drawing/EchellePapier.h"
#include "drawing/Graduations.h"
#include "outils/ImprimanteNotee.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// A graph drawn on a sheet of 120 by 80 whose box runs from 20 to 110 and from 10 to 70.
class Graphes : public testing::Test {
protected:
    ImprimanteNotee imprimante;
    Graphe graphe;
    PlaceGraphe place{20, 110, 10, 70, 3, 2, 4, 3, 2, 10, {65, 78}, Ancrage::Centre, 3, 0.1, 0.2, 0.4};

    const ImprimanteNotee::Feuillet& Dessine() {
        DessineGraphe(*imprimante.Feuille({0, 0}, 120, 80), graphe, place);
        return imprimante.pages.back();
    }
    /// Where a text stands; far off when it stands nowhere.
    PointDessin Place(const std::string& texte) const {
        for (const auto& e : imprimante.pages.back().etiquettes)
            if (e.texte == texte) return e.place;
        return {-1e9, -1e9};
    }
    /// The first line of that colour.
    std::vector<PointDessin> Trace(Couleur couleur) const {
        for (const auto& trace : imprimante.pages.back().traces)
            if (trace.couleur == couleur) return trace.points;
        return {};
    }
};

} // namespace

TEST_F(Graphes, ALimitStandsAtItsValueWithItsCaption) {
    graphe.horizontal = AxeAngles(90);
    graphe.verticaux = {{0, 60, {{0, "0"}, {30, "30"}, {60, "60"}}, {}, {}}};
    graphe.courbes = {{"", Couleur::Courbe1, {{0, 0}, {45, 45}, {90, 15}}}};
    graphe.limites = {{40, "maxi 40°"}};
    Dessine();
    const auto limite = Trace(Couleur::Repere), courbe = Trace(Couleur::Courbe1);
    ASSERT_EQ(limite.size(), 2U);
    EXPECT_NEAR(limite[0].y, 70 - 60 * 40.0 / 60, 1e-12);
    EXPECT_LT(Place("maxi 40°").y, limite[0].y) << "above its line";
    ASSERT_EQ(courbe.size(), 3U);
    EXPECT_EQ(courbe[1].x, 65);
    EXPECT_EQ(courbe[1].y, 70 - 45);
}

TEST_F(Graphes, EachCurveFollowsItsOwnAxisAndTheZeroIsWrittenOnce) {
    graphe.horizontal = {1, 3, {{1, "1"}, {3, "3"}}, "Tr/min", {}};
    graphe.verticaux = {AxeSymetrique(8, 4, "0.0"), AxeSymetrique(200, 100, "0")};
    graphe.courbes = {{"B10", Couleur::Courbe1, {{1, 8}, {3, -4}}, 0}, {"Limite", Couleur::Courbe2, {{1, -200}}, 1}};
    const auto& page = Dessine();
    EXPECT_EQ(Trace(Couleur::Courbe1)[0].x, 20) << "the horizontal axis need not begin at 0";
    EXPECT_EQ(Trace(Couleur::Courbe1)[0].y, 10);
    EXPECT_EQ(Trace(Couleur::Courbe1)[1].y, 55);
    EXPECT_EQ(Trace(Couleur::Courbe2)[0].y, 70);
    EXPECT_EQ(
        std::count_if(page.etiquettes.begin(), page.etiquettes.end(), [](const auto& e) { return e.texte == "0"; }), 1);
}

TEST_F(Graphes, ExtremesAreMarkedUnlessTheySayNothing) {
    const struct {
        std::vector<PointDessin> points;
        Extremes extremes;
        std::vector<std::string> marques;
    } cas[] = {
        {{{0, 2}, {1, 5}, {2, 5}, {3, -1.25}}, Extremes::Tous, {"5.000  (1°)", "-1.250  (3°)"}},
        {{{0, 3}, {1, 5}, {2.5, 12345.6}}, Extremes::SansDepart, {"12346  (2.5°)"}},
        {{{0, 1e-14}, {1, 1}, {2, 0.5}}, Extremes::Tous, {"1.000  (1°)"}}, // the rounding of a zero
        {{{0, 50}, {1, 50}}, Extremes::Tous, {}},
    };
    for (const auto& c : cas) {
        SCOPED_TRACE(&c - cas);
        imprimante = ImprimanteNotee();
        graphe.horizontal = AxeAngles(3);
        graphe.verticaux = {AxeAutour(c.points)};
        graphe.courbes = {{"", Couleur::Courbe1, c.points, 0, c.extremes}};
        const auto& page = Dessine();
        std::vector<std::string> marques;
        for (const auto& e : page.etiquettes)
            if (e.texte.find('(') != std::string::npos) marques.push_back(e.texte);
        EXPECT_EQ(marques, c.marques);
    }
}

TEST_F(Graphes, AnAxisAroundValuesEndsOnRoundOnesAndHoldsThem) {
    for (const auto& [mini, maxi] :
         {std::pair{0.0, 30.0}, {-0.0031, 0.0007}, {1000.0, 1010.0}, {-7e5, -2e5}, {4.0, 4.0}, {1e16, 1e16 + 2}}) {
        SCOPED_TRACE(mini);
        const PointDessin points[] = {{0, mini}, {1, maxi}};
        const AxeGraphe axe = AxeAutour(points);
        EXPECT_LE(axe.mini, mini);
        EXPECT_GE(axe.maxi, maxi);
        ASSERT_GE(axe.graduations.size(), mini == 1e16 ? 2U : 3U);
        EXPECT_LE(axe.graduations.size(), 9U);
        for (const Graduation& graduation : axe.graduations) // as written, no digit of a round value is lost
            EXPECT_NEAR(Val(graduation.texte), graduation.valeur, 1e-9 * (axe.maxi - axe.mini));
        EXPECT_NEAR(axe.graduations.back().valeur, axe.maxi, 1e-9 * (axe.maxi - axe.mini));
    }
}

TEST(AxesGraphe, NoNumberMakesMoreGraduationsThanAnAxisHasRoomFor) {
    const double plusGrand = std::numeric_limits<double>::max(), plusPetit = std::numeric_limits<double>::denorm_min();
    for (const double valeur : {1e16, 1e300, plusGrand, plusPetit, 1e-310, 1e9, 32767.0}) {
        SCOPED_TRACE(valeur);
        const PointDessin points[] = {{0, std::nextafter(valeur, 0.0)}, {valeur, valeur}, {valeur / 2, -valeur}};
        const std::span<const PointDessin> courbe = points;
        EXPECT_LE(AxeAngles(valeur).graduations.size(), 15U);
        for (const auto& axe : {AxeAutour(courbe.first(2)), AxeAutour(courbe), AxeSymetrique(valeur, valeur / 2, "0.0"),
                                AxeSymetrique(valeur, std::min(valeur, PasGraduationAngle(valeur, 3)), "0")})
            EXPECT_LE(axe.graduations.size(), 100U);
    }
}

TEST(Barres, ABarOfAnyNumberIsDrawn) {
    for (const double valeur : {0.0, 7.5, 1e300, std::numeric_limits<double>::infinity()}) {
        ImprimanteNotee imprimante;
        DessineBarres(*imprimante.Feuille({0, 0}, 120, 80),
                      {{"Couple", "Nm", {"a"}, "cas", {{"", {}, {{valeur, "x", ""}}}}}});
        const auto& etiquettes = imprimante.pages.back().etiquettes;
        EXPECT_LE(etiquettes.size(), 12U) << valeur;
        EXPECT_TRUE(std::any_of(etiquettes.begin(), etiquettes.end(), [](const auto& e) { return e.texte == "x"; }));
    }
}

TEST(EchellePapier, AScaleIsFoundForEverySizeAndStatedAsItIs) {
    for (const double taille : {3.0, 100.0, 1e4, 1e5, 1e9, 1e200, std::numeric_limits<double>::max()}) {
        const double echelle = ChoisitEchelle({{0, 0}, {taille, taille / 3}}, 180, 240);
        EXPECT_LE(echelle * taille, 180) << taille;
        EXPECT_EQ(Val(TexteEchelle(echelle)), echelle) << taille;
        EXPECT_GT(echelle * taille, taille > 10 ? 180 / 2.6 : 0) << taille;
    }
}
