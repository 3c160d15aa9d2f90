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
    EXPECT_NEAR(o["Accel"][150].get<double>(), 4.787351 / 0.6, 5e-6);
    // A law of rise and return has its own evaluation, and ends where it began.
    const auto retour = Loi("MSHC33", 720);
    EXPECT_NEAR(retour.Objet()["Course"][360].get<double>(), 1, 1e-12);
    EXPECT_EQ(retour.Objet()["Course"][720], 0);
    EXPECT_NEAR(PlusGrand(retour.Objet()["Accel"]), retour.Objet()["Ca"].get<double>(), 1e-12);
}

TEST(CommandeLoi, CustomPercentageIsThatOfTheCatalogueWhereBothExist) {
    const auto propre = Loi("MS_Spe_ 50", 90), catalogue = Loi("MSC50", 90);
    const auto a = Nombres(propre.Objet()["Accel"]), b = Nombres(catalogue.Objet()["Accel"]);
    for (std::size_t i = 0; i < a.size(); ++i) EXPECT_NEAR(a[i], b[i], 1e-13);
    EXPECT_NEAR(propre.Objet()["Ca"].get<double>(), catalogue.Objet()["Ca"].get<double>(), 1e-13);
    EXPECT_NEAR(Loi("MS_Spe_ 5", 2).Objet()["CoefD"].get<double>(), 0.05, 1e-15);
}

TEST(CommandeLoi, RefusedLawsAreToldWithStatusOne) {
    for (const auto& passe :
         {Loi("INCONNUE", 10), Loi("cyc", 10), Loi("MSHX", 10), Loi("MS_Spe", 10), Loi("", 10), Loi("MS", 10, "0")}) {
        EXPECT_EQ(passe.statut, 1);
        EXPECT_FALSE(passe.Objet()["echec"].get<std::string>().empty());
        EXPECT_TRUE(passe.Objet()["Course"].empty());
        EXPECT_TRUE(passe.Objet()["Ca"].is_null());
    }
}
