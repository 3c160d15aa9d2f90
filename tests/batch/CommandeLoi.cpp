#include "Passe.h"

#include <numbers>

namespace {

Passe Loi(const std::string& nom, int points, const std::string& symetrie = "0.5") {
    return LancePasse({"loi", nom, "--points", std::to_string(points), "--symetrie", symetrie});
}

struct Crete {
    const char* loi;
    double vitesse, accel;
};

} // namespace

TEST(CommandeLoi, PeakFactorsAreThePublishedOnes) {
    for (const Crete& c : {Crete{"CYC", 2, 6.283}, Crete{"SHM", 1.571, 4.935}, Crete{"MT", 2, 4.888},
                           Crete{"MS", 1.760, 5.528}, Crete{"MTC50", 1.333, 6.517}, Crete{"MSC50", 1.275, 8.013}}) {
        const Passe passe = Loi(c.loi, 3600);
        ASSERT_EQ(passe.statut, 0) << c.loi;
        const auto& o = passe.Objet();
        EXPECT_EQ(o["Course"].size(), 3601u);
        EXPECT_NEAR(PlusGrand(o["Vitesse"]), c.vitesse, 6e-4) << c.loi;
        EXPECT_NEAR(PlusGrand(o["Accel"]), c.accel, 6e-4) << c.loi;
        EXPECT_NEAR(o["Ca"].get<double>(), c.accel, 6e-4) << c.loi;
        EXPECT_NEAR(o["Cv"].get<double>(), c.vitesse, 6e-4) << c.loi;
        EXPECT_NEAR(o["Course"].front().get<double>(), 0, 1e-15) << c.loi;
        EXPECT_NEAR(o["Course"].back().get<double>(), 1, 1e-15) << c.loi;
        EXPECT_NEAR(o["CoefA"].get<double>() + o["CoefB"].get<double>() + o["CoefC"].get<double>() +
                        o["CoefD"].get<double>(),
                    1, 1e-15)
            << c.loi;
    }
}

TEST(CommandeLoi, SymmetryCoefficientMovesTheMiddle) {
    const auto passe = Loi("MS", 1000, "0.3");
    const auto& o = passe.Objet();
    EXPECT_NEAR(o["Course"][300].get<double>(), 0.3, 1e-12);
    EXPECT_NEAR(o["Vitesse"][300].get<double>(), 1.759603, 5e-7);
    EXPECT_NEAR(o["Accel"][150].get<double>(), 4.787351 / 0.6, 5e-6);
    EXPECT_EQ(Loi("MS", 36).Objet(), LancePasse({"loi", "MS", "--points", "36"}).Objet());
}

TEST(CommandeLoi, CustomPercentageIsThatOfTheCatalogueWhereBothExist) {
    const auto propre = Loi("MS_Spe_ 50", 90), catalogue = Loi("MSC50", 90);
    const auto a = Nombres(propre.Objet()["Accel"]), b = Nombres(catalogue.Objet()["Accel"]);
    for (std::size_t i = 0; i < a.size(); ++i) EXPECT_NEAR(a[i], b[i], 1e-13);
    EXPECT_NEAR(propre.Objet()["Ca"].get<double>(), catalogue.Objet()["Ca"].get<double>(), 1e-13);
    EXPECT_NEAR(Loi("MS_Spe_ 5", 2).Objet()["CoefD"].get<double>(), 0.05, 1e-15);
}

TEST(CommandeLoi, RiseAndReturnMirrorsTheRise) {
    for (const char* nom : {"MSH", "MSHC20", "MSHC33", "MSHC50"}) {
        const auto passe = LancePasse({"loi", nom, "--points", "720"});
        const auto& o = passe.Objet();
        const auto s = Nombres(o["Course"]), v = Nombres(o["Vitesse"]), a = Nombres(o["Accel"]);
        ASSERT_EQ(s.size(), 721u) << nom;
        EXPECT_NEAR(s[360], 1, 1e-12) << nom;
        EXPECT_NEAR(PlusGrand(o["Accel"]), o["Ca"].get<double>(), 1e-12) << nom;
        EXPECT_NEAR(PlusGrand(o["Vitesse"]), o["Cv"].get<double>(), 2e-5) << nom;
        for (std::size_t i = 0; i < 360; ++i) {
            EXPECT_EQ(s[i], s[720 - i]);
            EXPECT_EQ(v[i], -v[720 - i]);
        }
        for (std::size_t i = 1; i < 360; ++i) EXPECT_NEAR((s[i + 1] - s[i - 1]) * 180, v[i], 3e-4) << nom << " " << i;
    }
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
