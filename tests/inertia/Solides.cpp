// The closed forms against the integral of the body itself: density times volume, and density times the square of the
// distance to the axis, over a grid of Gauss points.
#include "inertia/Solides.h"

#include "core/Etude.h"
#include "data/Textes.h"
#include "inertia/TextesInertie.h"

#include "outils/Catalogue.h"

#include <gtest/gtest.h>

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

/// Nodes and weights of Gauss and Legendre from 0 to 1, by Newton's method on the polynomial.
std::vector<std::pair<double, double>> PointsGauss(int n) {
    std::vector<std::pair<double, double>> points;
    for (int i = 0; i < n; ++i) {
        double x = std::cos(pi * (i + 0.75) / (n + 0.5)), pente = 1;
        for (int tour = 0; tour < 50; ++tour) {
            double p = 1, avant = 0;
            for (int k = 1; k <= n; ++k) {
                const double suivant = ((2 * k - 1) * x * p - (k - 1) * avant) / k;
                avant = std::exchange(p, suivant);
            }
            pente = n * (x * p - avant) / (x * x - 1);
            x -= p / pente;
        }
        points.emplace_back((1 + x) / 2, 1 / ((1 - x * x) * pente * pente));
    }
    return points;
}

Integrale Integre(const Corps& corps) {
    static const auto gauss = PointsGauss(24);
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

/// Upright tube of the radii a and b at a distance R.
Corps TubeDebout(double R, double b, double a, double H) {
    return [=](double u, double v, double) {
        const double rho = a + (b - a) * u, t = 2 * pi * v;
        return Element{R + rho * std::cos(t), rho * std::sin(t), (b - a) * rho * 2 * pi * H};
    };
}
/// The same, lying across the axis.
Corps TubeCouche(double R, double b, double a, double H) {
    return [=](double u, double v, double w) {
        const double rho = a + (b - a) * u;
        return Element{R + rho * std::cos(2 * pi * v), H * (w - 0.5), (b - a) * rho * 2 * pi * H};
    };
}
Corps Cone(double b, double a, double H) {
    return [=](double u, double v, double w) {
        const double rayon = b + (a - b) * w, rho = rayon * u;
        return Element{rho * std::cos(2 * pi * v), rho * std::sin(2 * pi * v), rayon * rho * 2 * pi * H};
    };
}
Corps Boule(double R, double r) {
    return [=](double u, double v, double w) {
        const double rho = r * u, t = pi * w;
        return Element{R + rho * std::sin(t) * std::cos(2 * pi * v), rho * std::sin(t) * std::sin(2 * pi * v),
                       r * rho * rho * std::sin(t) * 2 * pi * pi};
    };
}
Corps Brique(double R, double D, double d, double H) {
    return [=](double u, double v, double) { return Element{R + D * (u - 0.5), d * (v - 0.5), D * d * H}; };
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

void Egale(double valeur, double attendue, int genre) {
    EXPECT_NEAR(valeur, attendue, 1e-10 * std::abs(attendue)) << "kind " << genre;
}

std::string ChampEnFaute(const SaisieSolide& saisie) {
    const auto faute = ChercheFaute(saisie);
    return faute ? faute->controle : "";
}

} // namespace

TEST_F(Solides, MassAndInertiaAreTheIntegralsOfTheBody) {
    const double R = 0.2135, D = 0.1235, d = 0.0417, H = 0.0852;
    const std::pair<int, Corps> corps[] = {
        {1, TubeDebout(0, D / 2, 0, H)},
        {2, TubeDebout(0, D / 2, d / 2, H)},
        {3, TubeCouche(0, D / 2, 0, H)},
        {4, TubeCouche(0, D / 2, d / 2, H)},
        {5, Cone(D / 2, d / 2, H)},
        {7, Brique(0, D, d, H)},
        {8, PrismeRegulier(5, D / 2, H)},
        {9, Boule(0, D / 2)},
        {20, Anneau(D / 2, d / 2)},
        {10, TubeDebout(R, D / 2, 0, H)},
        {11, TubeDebout(R, D / 2, d / 2, H)},
        {12, TubeCouche(R, D / 2, 0, H)},
        {13, TubeCouche(R, D / 2, d / 2, H)},
        {14, Boule(R, D / 2)},
        {15, Brique(R, D, d, H)},
    };
    for (const auto& [genre, forme] : corps) {
        const Integrale attendue = Integre(forme);
        SaisieSolide saisie = Saisie(genre, genre == 8 ? "5" : "213,5", "123.5", "41.7", "85.2");
        saisie.MasseTotal = false;
        saisie.Text3 = "2712.5";
        saisie.Text1 = "3";
        saisie.Text2 = "2.5";
        ASSERT_FALSE(ChercheFaute(saisie)) << genre;
        const Grandeurs parDensite = CalculeSolide(saisie);
        Egale(parDensite[0], 3 * 2712.5 * attendue.volume, genre);
        Egale(parDensite[1], 3 * 2712.5 * attendue.carre / 6.25, genre);
        EXPECT_EQ(parDensite[2], 0) << genre;
        EXPECT_EQ(parDensite[3], 0) << genre;

        // The mass of one solid typed instead of its density.
        saisie.MasseTotal = true;
        saisie.Text3 = "1.75";
        const Grandeurs parMasse = CalculeSolide(saisie);
        Egale(parMasse[0], 5.25, genre);
        Egale(parMasse[1], 5.25 * attendue.carre / attendue.volume / 6.25, genre);
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

    // 19: the angle does not count
    for (const char* angle : {"0", "30", ""}) {
        const Grandeurs masse = calcule(Saisie(19, "250", "", "", angle), "3");
        EXPECT_NEAR(masse[1], 3 * 0.0625 * 2 / 16, 1e-15);
        EXPECT_NEAR(masse[3], 0.25 * 3 * 9.81 * 2 / 4, 1e-14);
        EXPECT_EQ(masse[2], 0);
    }
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
            const auto faute = ChercheFaute(saisie);
            EXPECT_EQ(faute.has_value(), !libre) << genre.TypeSolide << champ.controle;
            if (!faute) continue;
            EXPECT_EQ(faute->controle, champ.controle);
            EXPECT_EQ(faute->message, "");
            EXPECT_NE(faute->sens, "");
        }
        for (const auto& [quantite, rapport, champ] : {std::array{"0", "1", "Text1"},
                                                       {"1", "", "Text2"},
                                                       {"-2", "1", "Text1"},
                                                       {"2", "-1", "Text2"},
                                                       {"-2", "-1", ""}}) {
            SaisieSolide saisie = pleine;
            saisie.Text1 = quantite;
            saisie.Text2 = rapport;
            EXPECT_EQ(ChampEnFaute(saisie), champ) << quantite << " " << rapport;
        }
    }
    EXPECT_EQ(ChampEnFaute(Saisie(19, "100", "", "", "-30")), "Text8");
    EXPECT_EQ(ChampEnFaute(Saisie(19, "-100", "", "", "-30")), "");
    EXPECT_THROW(ChercheFaute(Saisie(9, "", "1e400", "", "")), ErreurExecution);
    SaisieSolide immense = Saisie(9, "", "1e120", "", "");
    immense.MasseTotal = false;
    immense.Text3 = "7850";
    EXPECT_THROW(CalculeSolide(immense), ErreurExecution);
}

TEST_F(Solides, DimensionsThatDoNotFitAreToldAndPutRight) {
    for (const int genre : {2, 4, 5, 11, 13}) {
        EXPECT_FALSE(ChercheFaute(Saisie(genre, "150", "80", "79,9", "30"))) << genre;
        const auto faute = ChercheFaute(Saisie(genre, "150", "80", "080", "30"));
        ASSERT_TRUE(faute) << genre;
        EXPECT_EQ(faute->message, "Ø " + Texte(348) + " > Ø " + Texte(349));
        EXPECT_EQ(faute->controle, "Text7");
        EXPECT_EQ(faute->correction, "80");
        EXPECT_TRUE(faute->videResultats);
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
        EXPECT_EQ(faute->message, Texte(350));
        EXPECT_EQ(faute->correction, "3");
    }
    EXPECT_EQ(ChercheFaute(Saisie(8, "0", "80", "", "30"))->message, "");
    EXPECT_EQ(ChercheFaute(Saisie(8, "2", "", "", "30"))->message, ""); // the missing diameter comes first
    const auto masse = [](const char* cotes) { return CalculeSolide(Saisie(8, cotes, "80", "", "30"))[0]; };
    EXPECT_LT(masse("6"), masse("6.5"));
    EXPECT_LT(masse("6.5"), masse("7"));
    // ever more sides make a disc
    SaisieSolide disque = Saisie(1, "", "80", "", "30");
    disque.MasseTotal = false;
    disque.Text3 = "7850";
    EXPECT_NEAR(masse("100000"), CalculeSolide(disque)[0], 1e-8);
}

TEST_F(Solides, LabelsCutSmallSolidsToNothing) {
    EXPECT_EQ(EtiquettesDe({0, 0, 0, 0}), (Etiquettes{"", ".", ".", "."}));
    EXPECT_EQ(EtiquettesDe({-0.4, -0.004, 12.345, 1e5}), (Etiquettes{"", ".", "12.35", "100000."}));
    EXPECT_EQ(EtiquettesDe({0.5, 0.005, -7, 0}), (Etiquettes{"1", ".01", "-7.", "."}));
}

TEST_F(Solides, AChosenKindStartsAsItsSetUpLeavesIt) {
    for (const GenreSolide& genre : LesSolides()) {
        const SaisieSolide saisie = SaisieInitiale(genre);
        EXPECT_EQ(saisie.MasseTotal, genre.TypeSolide != 8);
        EXPECT_EQ(saisie.Text3, genre.TypeSolide == 8 ? "7850" : "");
        EXPECT_EQ(saisie.Text1 + saisie.Text2 + saisie.Text6, "11");
    }
    EXPECT_EQ(TrouveSolide(0), nullptr);
    EXPECT_EQ(TrouveSolide(21), nullptr);
}
