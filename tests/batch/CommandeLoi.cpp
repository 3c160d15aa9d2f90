#include "Passe.h"

namespace {

Passe Loi(const std::string& nom, int points, const std::string& symetrie = "0.5") {
    return LancePasse({"loi", nom, "--points", std::to_string(points), "--symetrie", symetrie});
}

} // namespace

TEST(CommandeLoi, TableIsThatOfTheLawAskedFor) {
    const auto passe = Loi("MS", 1000, "0.3");
    ASSERT_EQ(passe.statut, 0);
    const auto& o = passe.Objet();
    EXPECT_EQ(o["Course"].size(), 1001u);
    EXPECT_NEAR(o["Course"][300].get<double>(), 0.3, 1e-12);
    EXPECT_NEAR(o["Vitesse"][300].get<double>(), o["Cv"].get<double>(), 1e-12);
    EXPECT_NEAR(Loi("MS_Spe_ 5", 2).Objet()["CoefD"].get<double>(), 0.05, 1e-15) << "a custom percentage";
    EXPECT_EQ(Loi("MSHC33", 720).Objet()["Course"][720], 0) << "rise and return";
}

TEST(CommandeLoi, RefusedLawsAreToldWithStatusOne) {
    for (const auto& passe : {Loi("INCONNUE", 10), Loi("cyc", 10), Loi("MS_Spe", 10), Loi("MS", 10, "0")}) {
        EXPECT_EQ(passe.statut, 1);
        EXPECT_FALSE(passe.Objet()["echec"].get<std::string>().empty());
        EXPECT_TRUE(passe.Objet()["Course"].empty());
        EXPECT_TRUE(passe.Objet()["Ca"].is_null());
    }
}
