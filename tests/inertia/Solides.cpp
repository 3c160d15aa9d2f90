// The closed forms against the integral of the body itself: density times volume, and density times the square of the
// distance to the axis, over a grid of Gauss points.
#include "inertia/Solides.h"

#include "core/Etude.h"
#include "data/Textes.h"
#include "inertia/TextesInertie.h"

#include "outils/Catalogue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>

namespace {

class Solides : public AvecCatalogue {};

using std::numbers::pi;

/// A point of a body for three parameters from 0 to 1: its place from the reference axis (z), and the volume that it
/// stands for.
struct Element {
    double x, y, volume;
};
using Corps = std::function<Element(double u, double v, double w)>;

struct Integrale {
    double volume = 0, carre = 0;
};

/// Nodes and weights from 0 to 1: three spans of eight points of Gauss and Legendre.
std::vector<std::pair<double, double>> PointsGauss() {
    const double noeuds[] = {0.1834346424956498, 0.5255324099163290, 0.7966664774136267, 0.9602898564975363};
    const double poids[] = {0.3626837833783620, 0.3137066458778873, 0.2223810344533745, 0.1012285362903763};
    std::vector<std::pair<double, double>> points;
    for (int troncon = 0; troncon < 3; ++troncon)
        for (int k = 0; k < 4; ++k)
            for (const int signe : {-1, 1})
                points.emplace_back((troncon + (1 + signe * noeuds[k]) / 2) / 3, poids[k] / 6);
    return points;
}

Integrale Integre(const Corps& corps) {
    static const auto gauss = PointsGauss();
    Integrale somme;
    for (const auto& [u, pu] : gauss)
        for (const auto& [v, pv] : gauss)
            for (const auto& [w, pw] : gauss) {
                const Element e = corps(u, v, w);
                somme.volume += pu * pv * pw * e.volume;
                somme.carre += pu * pv * pw * e.volume * (e.x * e.x + e.y * e.y);
            }
    return somme;
}

/// Upright tube of the radii a and b.
Corps TubeDebout(double b, double a, double H) {
    return [=](double u, double v, double) {
        const double rho = a + (b - a) * u, t = 2 * pi * v;
        return Element{rho * std::cos(t), rho * std::sin(t), (b - a) * rho * 2 * pi * H};
    };
}
/// The same, lying across the axis.
Corps TubeCouche(double b, double a, double H) {
    return [=](double u, double v, double w) {
        const double rho = a + (b - a) * u;
        return Element{rho * std::cos(2 * pi * v), H * (w - 0.5), (b - a) * rho * 2 * pi * H};
    };
}
Corps Cone(double b, double a, double H) {
    return [=](double u, double v, double w) {
        const double rayon = b + (a - b) * w, rho = rayon * u;
        return Element{rho * std::cos(2 * pi * v), rho * std::sin(2 * pi * v), rayon * rho * 2 * pi * H};
    };
}
Corps Boule(double r) {
    return [=](double u, double v, double w) {
        const double rho = r * u, bras = rho * std::sin(pi * w);
        return Element{bras * std::cos(2 * pi * v), bras * std::sin(2 * pi * v), r * rho * bras * 2 * pi * pi};
    };
}
Corps Brique(double D, double d, double H) {
    return [=](double u, double v, double) { return Element{D * (u - 0.5), d * (v - 0.5), D * d * H}; };
}
Corps Anneau(double r, double s) {
    return [=](double u, double v, double w) {
        const double rho = s * u, bras = r + rho * std::cos(2 * pi * w);
        return Element{bras * std::cos(2 * pi * v), bras * std::sin(2 * pi * v), s * rho * 2 * pi * bras * 2 * pi};
    };
}
/// N triangles around the axis, each from it to one side.
Corps PrismeRegulier(int N, double r, double H) {
    return [=](double u, double v, double) {
        const double a = r * std::cos(pi / N), c = r * std::sin(pi / N) * (2 * v - 1);
        return Element{a * u, c * u, N * a * u * 2 * r * std::sin(pi / N) * H};
    };
}

SaisieSolide Saisie(int genre, const char* t5, const char* t6, const char* t7, const char* t8) {
    SaisieSolide saisie = SaisieInitiale(*TrouveSolide(genre));
    saisie.Text5 = t5;
    saisie.Text6 = t6;
    saisie.Text7 = t7;
    saisie.Text8 = t8;
    return saisie;
}

std::string ChampEnFaute(const SaisieSolide& saisie) {
    const auto faute = ChercheFaute(saisie);
    return faute ? faute->controle : "";
}

} // namespace

TEST_F(Solides, MassAndInertiaAreTheIntegralsOfTheBody) {
    const double R = 0.2135, D = 0.1235, d = 0.0417, H = 0.0852;
    const struct {
        int genre, excentre; ///< the kind on the axis, and the one at a distance R; 0 without one
        Corps forme;
    } corps[] = {
        {1, 10, TubeDebout(D / 2, 0, H)},    {2, 11, TubeDebout(D / 2, d / 2, H)},
        {3, 12, TubeCouche(D / 2, 0, H)},    {4, 13, TubeCouche(D / 2, d / 2, H)},
        {5, 0, Cone(D / 2, d / 2, H)},       {7, 15, Brique(D, d, H)},
        {8, 0, PrismeRegulier(5, D / 2, H)}, {9, 14, Boule(D / 2)},
        {20, 0, Anneau(D / 2, d / 2)},
    };
    const auto verifie = [](int genre, const Integrale& attendue) {
        SaisieSolide saisie = Saisie(genre, genre == 8 ? "5" : "213,5", "123.5", "41.7", "85.2");
        saisie.MasseTotal = false;
        saisie.Text3 = "2712.5";
        saisie.Text1 = "3";
        saisie.Text2 = "2.5";
        ASSERT_FALSE(ChercheFaute(saisie)) << genre;
        const Grandeurs parDensite = CalculeSolide(saisie);
        const double volume = attendue.volume, carre = attendue.carre / 6.25;
        EXPECT_NEAR(parDensite[0] / (3 * 2712.5 * volume), 1, 1e-10) << genre;
        EXPECT_NEAR(parDensite[1] / (3 * 2712.5 * carre), 1, 1e-10) << genre;
        EXPECT_EQ(parDensite[2], 0) << genre;
        EXPECT_EQ(parDensite[3], 0) << genre;

        // The mass of one solid typed instead of its density.
        saisie.MasseTotal = true;
        saisie.Text3 = "1.75";
        const Grandeurs parMasse = CalculeSolide(saisie);
        EXPECT_NEAR(parMasse[0], 5.25, 1e-12) << genre;
        EXPECT_NEAR(parMasse[1] / (5.25 * carre / volume), 1, 1e-10) << genre;
    };
    for (const auto& c : corps) {
        Integrale integrale = Integre(c.forme);
        verifie(c.genre, integrale);
        integrale.carre += integrale.volume * R * R; // the parallel axis
        if (c.excentre != 0) verifie(c.excentre, integrale);
    }
}

TEST_F(Solides, KindsWithoutABodyAreWorkedByHand) {
    const auto calcule = [](SaisieSolide saisie, const char* masse) {
        saisie.Text3 = masse;
        saisie.Text1 = "2";
        saisie.Text2 = "4";
        saisie.MasseTotal = saisie.TypeSolide % 2 == 0; // they know no density
        return CalculeSolide(saisie);
    };
    // a rod about its end: the mean of the squared distance over its length is a third of the length squared
    EXPECT_NEAR(calcule(Saisie(6, "", "600", "", ""), "2.5")[1], 2.5 * 0.36 / 3 * 2 / 16, 1e-15);
    EXPECT_NEAR(calcule(Saisie(16, "350", "", "", ""), "1.2")[1], 1.2 * 0.1225 * 2 / 16, 1e-15);

    const Grandeurs donnees = calcule(Saisie(17, "0.75", "12.5", "3.5", ""), "8.25");
    EXPECT_EQ(donnees, (Grandeurs{16.5, 0.75 * 2 / 16, 12.5 * 2 / 4, 3.5 * 2 / 4}));

    // 18: 40 kg on a belt over drums of 160 mm and together 6 kg; the drums are full cylinders
    const Grandeurs bande = calcule(Saisie(18, "", "160", "6", "0.25"), "40");
    const Grandeurs attendue{2 * 46.0, (40 * 0.0064 + 6 * 0.0064 / 2) * 2 / 16, 40 * 9.81 * 0.25 * 0.08 * 2 / 4, 0};
    for (std::size_t i = 0; i < 4; ++i) EXPECT_NEAR(bande[i], attendue[i], 1e-13) << i;

    const Grandeurs balourd = calcule(Saisie(19, "250", "", "", "30"), "3");
    EXPECT_NEAR(balourd[1], 3 * 0.0625 * 2 / 16, 1e-15);
    EXPECT_NEAR(balourd[3], 0.25 * 3 * 9.81 * 2 / 4, 1e-14) << "the angle does not count";
}

TEST_F(Solides, AFieldThatIsNeededStopsWithoutAWord) {
    for (const GenreSolide& genre : LesSolides()) {
        SaisieSolide pleine = Saisie(genre.TypeSolide, "150", "120", "40", "30");
        ASSERT_FALSE(ChercheFaute(pleine)) << genre.TypeSolide;
        for (const ChampSolide& champ : genre.champs) {
            SaisieSolide saisie = pleine;
            saisie.*std::get<std::string SaisieSolide::*>(champ.membre) = "x";
            // given values, the turning mass and the friction of a conveyor and the angle of an unbalance may be 0
            const bool libre = genre.TypeSolide == 17 || champ.texte == TexteMasseRotation ||
                               champ.texte == TexteCoefFriction || champ.texte == TexteAngleBeta;
            EXPECT_EQ(ChampEnFaute(saisie), libre ? "" : champ.controle) << genre.TypeSolide;
        }
        pleine.Text1 = "-2";
        EXPECT_EQ(ChampEnFaute(pleine), "Text1");
        pleine.Text2 = "-1";
        EXPECT_EQ(ChampEnFaute(pleine), "") << "both signs turn";
    }
    EXPECT_THROW(ChercheFaute(Saisie(9, "", "1e400", "", "")), ErreurExecution);
}

TEST_F(Solides, DimensionsThatDoNotFitAreToldAndPutRight) {
    for (const int genre : {2, 4, 5, 11, 13}) {
        EXPECT_FALSE(ChercheFaute(Saisie(genre, "150", "80", "79,9", "30"))) << genre;
        const auto faute = ChercheFaute(Saisie(genre, "150", "80", "080", "30"));
        ASSERT_TRUE(faute) << genre;
        EXPECT_EQ(faute->message, "Ø " + Texte(348) + " > Ø " + Texte(349));
        EXPECT_EQ(faute->controle, "Text7");
        EXPECT_EQ(faute->correction, "80");
    }
    EXPECT_FALSE(ChercheFaute(Saisie(7, "", "80", "90", "30"))); // a block may be wider than long

    EXPECT_FALSE(ChercheFaute(Saisie(20, "", "80", "80", "")));
    const auto tore = ChercheFaute(Saisie(20, "", "79.5", "80", ""));
    ASSERT_TRUE(tore);
    EXPECT_EQ(tore->message, Texte(351) + " 79.5 " + Texte(352) + "\n" + Texte(353) + " 80");
    EXPECT_EQ(tore->controle, "Text6");
    EXPECT_EQ(tore->correction, "79.");
}

TEST_F(Solides, APolygonHasThreeSidesOrMoreAndTheyAreNotRounded) {
    for (const char* cotes : {"2.9", "-4", "1"}) {
        const auto faute = ChercheFaute(Saisie(8, cotes, "80", "", "30"));
        ASSERT_TRUE(faute) << cotes;
        EXPECT_EQ(faute->correction, "3");
    }
    const auto masse = [](const char* cotes) { return CalculeSolide(Saisie(8, cotes, "80", "", "30"))[0]; };
    EXPECT_LT(masse("6"), masse("6.5"));
    EXPECT_LT(masse("6.5"), masse("7"));
    EXPECT_NEAR(masse("100000"), 7850 * pi * 0.0016 * 0.03, 1e-8) << "ever more sides make a disc";
}

TEST_F(Solides, ANearlyStraightConeIsACylinder) {
    SaisieSolide saisie = Saisie(5, "", "100", "99.9999999", "30");
    saisie.Text3 = "7";
    EXPECT_NEAR(CalculeSolide(saisie)[1], 7 * Carre(0.09999999995) / 8, 1e-16);
}

TEST_F(Solides, LabelsCutSmallSolidsToNothing) {
    EXPECT_EQ(EtiquettesDe({0, 0, 0, 0}), (Etiquettes{"", ".", ".", "."}));
    EXPECT_EQ(EtiquettesDe({-0.4, -0.004, 12.345, 1e5}), (Etiquettes{"", ".", "12.35", "100000."}));
    EXPECT_EQ(EtiquettesDe({0.5, 0.005, -7, 0}), (Etiquettes{"1", ".01", "-7.", "."}));
}
