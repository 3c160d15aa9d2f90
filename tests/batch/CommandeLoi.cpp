#include "Passe.h"

TEST(CommandeLoi, TableIsThatOfTheLawAskedFor) {
    const auto loi = [](const char* nom, const char* symetrie) {
        return LancePasse({"loi", nom, "--points", "1000", "--symetrie", symetrie});
    };
    const auto o = loi("MS", "0.3").Objet();
    EXPECT_EQ(o["Course"].size(), 1001u);
    EXPECT_NEAR(o["Course"][300].get<double>(), 0.3, 1e-12);
    EXPECT_NEAR(o["Vitesse"][300].get<double>(), o["Cv"].get<double>(), 1e-12);
    EXPECT_EQ(loi("MSHC33", "0.5").Objet()["Course"][1000], 0) << "rise and return";

    const auto refusee = loi("INCONNUE", "0.5");
    EXPECT_EQ(refusee.statut, 1);
    EXPECT_FALSE(refusee.Objet()["echec"].get<std::string>().empty());
    EXPECT_TRUE(refusee.Objet()["Course"].empty());
}
