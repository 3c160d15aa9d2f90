#include "drawing/Graphe.h"

#include "core/Nombres.h"
#include "drawing/EchellePapier.h"
#include "drawing/Graduations.h"
#include "outils/ImprimanteNotee.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

/// A graph drawn on a sheet of 120 by 80 whose box runs from 20 to 110 and from 10 to 70.
class Graphes : public testing::Test {
protected:
    ImprimanteNotee imprimante;
    Graphe graphe;
    PlaceGraphe place{.gauche = 20,
                      .droite = 110,
                      .haut = 10,
                      .bas = 70,
                      .texte = 3,
                      .nombres = 2,
                      .titre = 4,
                      .sousAxe = 3,
                      .coteAxe = 2,
                      .entreAxes = 10,
                      .legende = {65, 78},
                      .ancrageLegende = Ancrage::Centre,
                      .hauteurLegende = 3,
                      .traitGrille = 0.1,
                      .traitAxe = 0.2,
                      .traitCourbe = 0.4};

    const ImprimanteNotee::Feuillet& Dessine() {
        DessineGraphe(*imprimante.Feuille({0, 0}, 120, 80), graphe, place);
        return imprimante.pages.back();
    }
    static const ImprimanteNotee::Etiquette* Etiquette(const ImprimanteNotee::Feuillet& page,
                                                       const std::string& texte) {
        for (const auto& e : page.etiquettes)
            if (e.texte == texte) return &e;
        return nullptr;
    }
};

/// A curve against the cam angle, a point a degree.
CourbeGraphe CourbeDe(double (*valeur)(double), int degres) {
    CourbeGraphe courbe;
    for (int i = 0; i <= degres; ++i) courbe.points.push_back({i * 1.0, valeur(i)});
    return courbe;
}

} // namespace

TEST_F(Graphes, ALimitStandsAtItsValueWithItsCaption) {
    // A pressure angle over the index that passes its limit of 40 degrees.
    graphe.titre = "Pression";
    graphe.horizontal = AxeAngles(90);
    graphe.verticaux = {{0, 60, {{0, "0"}, {30, "30"}, {60, "60"}}, {}, {}}};
    graphe.courbes = {CourbeDe([](double x) { return 45 * std::sin(2 * x * std::acos(-1.0) / 180); }, 90)};
    graphe.limites = {{40, "maxi 40°"}};
    const auto& page = Dessine();
    const auto limite = std::find_if(page.traces.begin(), page.traces.end(),
                                     [](const auto& trace) { return trace.couleur == Couleur::Repere; });
    ASSERT_NE(limite, page.traces.end());
    EXPECT_EQ(limite->points.front().x, 20);
    EXPECT_EQ(limite->points.back().x, 110);
    EXPECT_NEAR(limite->points.front().y, 70 - 60 * 40.0 / 60, 1e-12);
    const auto* legende = Etiquette(page, "maxi 40°");
    ASSERT_NE(legende, nullptr);
    EXPECT_LT(legende->place.y, limite->points.front().y) << "above its line";
    const auto& courbe = page.traces.back().points;
    ASSERT_EQ(courbe.size(), 91U);
    EXPECT_NEAR(courbe[45].x, 65, 1e-12);
    EXPECT_NEAR(courbe[45].y, 70 - 45, 1e-12);
    EXPECT_LT(courbe[45].y, limite->points.front().y) << "the curve passes the limit";
}

TEST_F(Graphes, EachCurveFollowsItsOwnAxisAndTheZeroIsWrittenOnce) {
    graphe.horizontal = {1, 3, {{1, "1"}, {3, "3"}}, "Tr/min", {}};
    graphe.verticaux = {AxeSymetrique(8, 4, "0.0"), AxeSymetrique(200, 100, "0")};
    graphe.courbes = {{"B10", Couleur::Courbe1, {{1, 8}, {3, -4}}, 0}, {"Limite", Couleur::Courbe2, {{1, -200}}, 1}};
    const auto& page = Dessine();
    const auto trace = [&](Couleur couleur) {
        return std::find_if(page.traces.begin(), page.traces.end(), [&](const auto& t) { return t.couleur == couleur; })
            ->points;
    };
    EXPECT_EQ(trace(Couleur::Courbe1)[0].x, 20) << "the horizontal axis need not begin at 0";
    EXPECT_EQ(trace(Couleur::Courbe1)[0].y, 10);
    EXPECT_EQ(trace(Couleur::Courbe1)[1].y, 55);
    EXPECT_EQ(trace(Couleur::Courbe2)[0].y, 70);
    EXPECT_LT(Etiquette(page, "8.0")->place.x, 20);
    EXPECT_EQ(Etiquette(page, "200")->place.x, 112);
    EXPECT_EQ(Etiquette(page, "-100")->place.y, 55);
    EXPECT_EQ(
        std::count_if(page.etiquettes.begin(), page.etiquettes.end(), [](const auto& e) { return e.texte == "0"; }), 1);
    EXPECT_NE(Etiquette(page, "B10"), nullptr);
    EXPECT_NE(Etiquette(page, "Limite"), nullptr);
}

TEST_F(Graphes, ExtremesAreMarkedUnlessTheySayNothing) {
    const struct {
        std::vector<PointDessin> points;
        Extremes extremes;
        std::vector<std::string> marques;
    } cas[] = {
        {{{0, 2}, {1, 5}, {2, 5}, {3, -1.25}}, Extremes::Tous, {"5.000  (1°)", "-1.250  (3°)"}},
        {{{0, 3}, {1, 5}, {2.5, 12345.6}}, Extremes::SansDepart, {"12346  (2.5°)"}},
        {{{0, 7}, {1, 5}, {2, 9}}, Extremes::Aucun, {}},
        {{{0, 1e-14}, {1, 1}, {2, 0.5}}, Extremes::Tous, {"1.000  (1°)"}}, // the rounding of a zero
        {{{0, 50}, {1, 50}}, Extremes::Tous, {}},
        {{{0, 0}, {1, 0}}, Extremes::Tous, {}},
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
         {std::pair{0.0, 30.0}, {-0.0031, 0.0007}, {1000.0, 1010.0}, {-7e5, -2e5}, {4.0, 4.0}}) {
        SCOPED_TRACE(mini);
        const PointDessin points[] = {{0, mini}, {1, maxi}};
        const AxeGraphe axe = AxeAutour(points);
        EXPECT_LE(axe.mini, mini);
        EXPECT_GT(axe.maxi, maxi);
        ASSERT_GE(axe.graduations.size(), 3U);
        EXPECT_LE(axe.graduations.size(), 9U);
        for (const Graduation& graduation : axe.graduations) // as written, no digit of a round value is lost
            EXPECT_NEAR(Val(graduation.texte), graduation.valeur, 1e-9 * (axe.maxi - axe.mini));
        EXPECT_NEAR(axe.graduations.back().valeur, axe.maxi, 1e-9 * (axe.maxi - axe.mini));
    }
}

TEST_F(Graphes, ALongValueStaysOnTheSurface) {
    graphe.horizontal = AxeAngles(90);
    graphe.verticaux = {{0, 1, {{1, "123456789012345678901234567890"}}, {}, {}}};
    EXPECT_GE(Dessine().etiquettes.back().place.x, -1e-9);
}

TEST_F(Graphes, NoNumberMakesMoreGraduationsThanAnAxisHasRoomFor) {
    const double plusGrand = std::numeric_limits<double>::max(), plusPetit = std::numeric_limits<double>::denorm_min();
    for (const double valeur : {1e16, 1e300, plusGrand, plusPetit, 1e-310, 1e9, 32767.0}) {
        SCOPED_TRACE(valeur);
        const double voisine = std::nextafter(valeur, 0.0);
        const PointDessin points[] = {{0, voisine}, {valeur, valeur}, {valeur / 2, -valeur}};
        const std::span<const PointDessin> courbe = points;
        graphe.horizontal = AxeAngles(valeur);
        for (const auto& axe : {AxeAutour(courbe.first(2)), AxeAutour(courbe), AxeSymetrique(valeur, valeur / 2, "0.0"),
                                AxeSymetrique(valeur, std::min(valeur, PasGraduationAngle(valeur, 3)), "0")}) {
            EXPECT_LE(axe.graduations.size(), 100U);
            EXPECT_LE(graphe.horizontal.graduations.size(), 15U);
            imprimante = ImprimanteNotee();
            graphe.verticaux = {axe};
            graphe.courbes = {{"", Couleur::Courbe1, {courbe.begin(), courbe.end()}, 0, Extremes::Tous}};
            EXPECT_LT(Dessine().etiquettes.size(), 120U);
        }
    }
    // Beside 1e16 the step of a stroke of 2 can hardly be seen.
    const PointDessin loi[] = {{0, 1e16}, {1, 1e16 + 2}};
    const AxeGraphe axe = AxeAutour(loi);
    EXPECT_LE(axe.mini, 1e16);
    EXPECT_GE(axe.maxi, 1e16 + 2);
    EXPECT_GE(axe.graduations.size(), 2U);
}

TEST(EchellePapier, AScaleIsFoundForEverySizeAndStatedAsItIs) {
    for (const double taille : {3.0, 100.0, 1e4, 1e5, 1e9, 1e200, std::numeric_limits<double>::max()}) {
        const double echelle = ChoisitEchelle({{0, 0}, {taille, taille / 3}}, 180, 240);
        EXPECT_LE(echelle * taille, 180) << taille;
        EXPECT_EQ(Val(TexteEchelle(echelle)), echelle) << taille;
        EXPECT_GT(echelle * taille, taille > 10 ? 180 / 2.6 : 0) << taille;
    }
    EXPECT_EQ(TexteEchelle(1), "1.");
    EXPECT_EQ(TexteEchelle(0.5), "0.5");
}
