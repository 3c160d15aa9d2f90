#include "Passe.h"

#include "outils/DossierTemporaire.h"

#include <numbers>

namespace {

class Inertie : public testing::Test {
protected:
    DossierTemporaire dossier_;

    Passe Lance(const std::string& solides) {
        return LancePasse({"inertie", dossier_.Ecrit("donnees.json", R"({"solides":[)" + solides + "]}")});
    }
};

using Textes = std::vector<std::string>;

} // namespace

TEST_F(Inertie, EverySolidHasItsEntryAndAddsToTheTotals) {
    const Passe passe = Lance(R"({"TypeSolide":1,"MasseTotal":false,"Text6":"100","Text8":50},
                 {"TypeSolide":16,"Text1":"3","Text2":"2","Text3":"1,4","Text5":"1500"},
                 {"TypeSolide":18,"Text3":"40","Text6":"160","Text7":"6","Text8":"0.25"})");
    ASSERT_EQ(passe.statut, 0) << passe.erreurs;
    const auto& o = passe.Objet();
    EXPECT_EQ(o["Erreur"], 0);
    EXPECT_TRUE(o["messages"].empty());
    ASSERT_EQ(o["solides"].size(), 3U);
    const double plateau = 7850 * std::numbers::pi * 0.0025 * 0.05;
    EXPECT_NEAR(o["solides"][0]["Masse"].get<double>(), plateau, 1e-12);
    EXPECT_NEAR(o["solides"][1]["Inertie"].get<double>(), 4.2 * 2.25 / 4, 1e-12);
    EXPECT_EQ(o["solides"][2]["etiquettes"].get<Textes>(), (Textes{"46", ".28", "7.85", "."}));
    EXPECT_EQ(Nombres(o["totaux"]), (std::vector<double>{3 + 4 + 46, 2.64, 7.85, 0}));
    EXPECT_NEAR(o["exacts"]["totaux"][0].get<double>(), plateau + 4.2 + 46, 1e-12);
}

TEST_F(Inertie, ASolidThatStopsIsNoFailure) {
    const Passe passe = Lance(R"({"TypeSolide":1,"Text3":"5","Text6":"100"},
                                 {"TypeSolide":17,"Text3":"10","Text5":"1","Text6":"5","Text7":"5"},
                                 {"TypeSolide":17,"Text3":"-20","Text5":"1","Text6":"1","Text7":"1"})");
    EXPECT_EQ(passe.statut, 0);
    const auto& o = passe.Objet();
    EXPECT_EQ(o["Erreur"], 0);
    EXPECT_EQ(o["solides"][2]["Masse"], -20) << "a row that is refused keeps its numbers";
    EXPECT_EQ(Nombres(o["totaux"]), (std::vector<double>{10, 1, 5, 5}));
    EXPECT_EQ(o["messages"].size(), 1U) << "for the totals below nothing";
}
