#include "core/Finis.h"

#include "core/Etude.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Finis, OneMemberBeyondAllNumbersIsFound) {
    using Limites = std::numeric_limits<double>;
    Point point;
    point.Angle = -Limites::max();
    point.Rayon = Limites::denorm_min();
    EXPECT_TRUE(TousFinis(point));
    Tableau<Point> table;
    table.Redimensionne(9);
    EXPECT_EQ(PremierNonFini(table), -1);
    for (const auto membre : {&Point::Angle, &Point::AA, &Point::Couple})
        for (const double valeur : {Limites::infinity(), -Limites::infinity(), Limites::quiet_NaN()}) {
            table[7].*membre = valeur;
            EXPECT_FALSE(TousFinis(table[7]));
            EXPECT_EQ(PremierNonFini(table), 7);
            table[7].*membre = 1;
        }
}
