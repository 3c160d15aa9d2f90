#include "core/Nombres.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

TEST(Nombres, ValTakesTheLeadingNumber) {
    EXPECT_EQ(Val("  12.5 mm"), 12.5);
    EXPECT_EQ(Val("-.25"), -0.25);
    EXPECT_EQ(Val("1e3x"), 1000.0);
    EXPECT_EQ(Val("12,5"), 12.0);
    EXPECT_EQ(ValVirgule("12,5"), 12.5);
    for (const char* texte : {"", "abc", ".", "-", "nan", "inf", "e5"}) EXPECT_EQ(Val(texte), 0.0) << texte;
    EXPECT_THROW(Val("1e400"), ErreurExecution);
    EXPECT_TRUE(EstNombre(" -1.5e-3 "));
    EXPECT_FALSE(EstNombre("1.5 mm"));
}

TEST(Nombres, StrWritesTheShortestDigits) {
    EXPECT_EQ(Str(-0.25), "-.25");
    EXPECT_EQ(StrTrim(0.1 + 0.2), ".30000000000000004");
    EXPECT_EQ(StrTrim(1e-15), ".000000000000001");
}

TEST(Nombres, ReportsRoundHalfToEvenOnTheShortestDigits) {
    const struct {
        double valeur;
        int decimales;
        const char* texte;
    } cas[] = {{52.25, 1, "52.2"}, {52.35, 1, "52.4"},  {2.675, 2, "2.68"}, {0.125, 2, "0.12"}, {0.5, 0, "0"},
               {-0.004, 2, "0"},   {99.9951, 2, "100"}, {0.05, 1, "0"},     {0.0501, 1, "0.1"}, {2e15, 2, "2E+15"}};
    for (const auto& c : cas) EXPECT_EQ(TexteArrondi(c.valeur, c.decimales), c.texte) << c.valeur;
    EXPECT_EQ(TexteCourt(0.1 + 0.2), "0.30000000000000004");
}

TEST(Nombres, StrReadsBackToTheSameDouble) {
    std::mt19937_64 hasard(7);
    std::uniform_real_distribution<double> mantisse(-10, 10), exposant(-40, 40);
    for (int i = 0; i < 20000; ++i) {
        const double valeur = mantisse(hasard) * std::pow(10.0, std::floor(exposant(hasard)));
        ASSERT_EQ(Val(Str(valeur)), valeur) << Str(valeur);
    }
}

TEST(Nombres, FormatFollowsItsMaskAndRoundsHalfAwayFromZeroOnTheDecimalText) {
    const struct {
        double valeur;
        const char *masque, *texte;
    } cas[] = {{0, "###.##", "."},
               {99.996, "##.##", "100."},
               {-0.001, "0.00", "0.00"},
               // 1.005 and 2.675 lie below the half in binary; their decimal text lies on it.
               {1.005, "0.00", "1.01"},
               {2.675, "0.00", "2.68"},
               {-0.125, "0.00", "-0.13"},
               {0.5, "0", "1"}};
    for (const auto& c : cas) EXPECT_EQ(Format(c.valeur, c.masque), c.texte) << c.valeur << " " << c.masque;
}

TEST(Nombres, RoundingsAndLimits) {
    EXPECT_EQ(Int(-1.5), -2.0);
    EXPECT_EQ(Entier16(32767.4), 32767);
    EXPECT_THROW(Entier16(32767.6), ErreurExecution);
    EXPECT_THROW(Entier16(std::numeric_limits<double>::quiet_NaN()), ErreurExecution);
    EXPECT_THROW(Divise(1, 0), ErreurExecution);
    EXPECT_THROW(Puissance(0, -3), ErreurExecution);
    EXPECT_THROW(Puissance(-2, 0.3), ErreurExecution);
    EXPECT_EQ(Puissance(-2, -3), -0.125);
}
