#include "Passe.h"

#include "outils/DossierTemporaire.h"

#include <numbers>

namespace {

using std::numbers::pi;

class LoiSpeciale : public testing::Test {
protected:
    DossierTemporaire dossier_;

    Passe Lance(const std::string& genre, const std::string& donnees) {
        return LancePasse({"loi-speciale", genre, dossier_.Ecrit("donnees.json", donnees)});
    }
};

} // namespace

TEST_F(LoiSpeciale, PointsAreTheUnitLawInPhysicalUnits) {
    const struct {
        const char *genre, *donnees;
        double angle, course; ///< degrees; m or rad
    } etudes[] = {
        {"hesser", R"({"AngleIndexage":90,"AngleSortie":30,"VitesseEntree":60,"Unites":"mm"})", 90, 0.030},
        {"liquides",
         R"({"AngleIndexage":120,"AngleSortie":30,"VitesseEntree":45,"ExcentriciteLiq":0.125,"PointsParDegre":2})", 120,
         30 * pi / 180},
        {"msh-dissymetrique", R"({"AngleMontee":100,"AngleDescente":150,"Course":25,"VitesseEntree":30,"Unites":"mm"})",
         250, 0.025},
    };
    for (const auto& e : etudes) {
        SCOPED_TRACE(e.genre);
        const Passe passe = Lance(e.genre, e.donnees);
        ASSERT_EQ(passe.statut, 0) << passe.erreurs;
        const auto& o = passe.Objet();
        const double T = e.angle / 6 / nlohmann::json::parse(e.donnees)["VitesseEntree"].get<double>();
        const auto angle = Nombres(o["Points"]["Angle"]), v = Nombres(o["Points"]["Vitesse"]);
        const auto unite = Nombres(o["LoiUnite"]["Vitesse"]);
        EXPECT_NEAR(angle.back(), e.angle, 1e-12);
        for (std::size_t i = 0; i < v.size(); ++i) ASSERT_NEAR(v[i], unite[i] * e.course / T, 1e-12);
        EXPECT_NEAR(o["AccelerationMaxi"].get<double>(), PlusGrand(o["LoiUnite"]["Accel"]) * e.course / T / T, 1e-9);
    }
    EXPECT_NEAR(Lance("hesser", etudes[0].donnees).Objet()["CoefAccel"].get<double>(), 5.039467, 5e-7);
}

TEST_F(LoiSpeciale, RefusedDataAreToldWithStatusOne) {
    const Passe passe = Lance("avance-rapide", R"({"AngleTotal":100,"AngleAvanceRapide":50,"SortieTotale":100,
                                               "SortieAvanceRapide":5,"VitesseEntree":60})");
    EXPECT_EQ(passe.statut, 1);
    EXPECT_EQ(passe.Objet()["Erreur"], -1);
    EXPECT_EQ(passe.Objet()["messages"].size(), 1U);
    EXPECT_FALSE(passe.Objet()["echec"].get<std::string>().empty());
    EXPECT_TRUE(passe.Objet()["CoefAccel"].is_null());
}

TEST_F(LoiSpeciale, WrongUsageIsOneLineWithStatusTwoThatSaysWhatStoodWhere) {
    const struct {
        const char* genre;
        std::string donnees, attendu;
    } fausses[] = {
        {"hesser", "{}", "membre absent : AngleIndexage"},
        {"hesser", "{\n  \"AngleIndexage\": 9o\n}", "ligne 2, colonne 21"},
        {"hesser", R"({"AngleIndexage":"90","AngleSortie":3,"VitesseEntree":60})",
         "AngleIndexage : attendu : un nombre, trouvé : \"90\""},
        {"hesser", R"({"AngleIndexage":90,"AngleSortie":3,"VitesseEntree":60,"PointsParDegre":1.5})",
         "un nombre entier de 1 à 32767, trouvé : 1.5"},
        {"hesser", R"({"AngleIndexage":")" + std::string(100000, 'x') + R"("})", "xxx..."},
    };
    for (const auto& f : fausses) {
        const Passe passe = Lance(f.genre, f.donnees);
        EXPECT_EQ(passe.statut, 2) << f.attendu;
        EXPECT_EQ(passe.LignesErreur(), 1) << passe.erreurs;
        EXPECT_LT(passe.erreurs.size(), 400U);
        EXPECT_NE(passe.erreurs.find(f.attendu), std::string::npos) << passe.erreurs;
        EXPECT_TRUE(passe.sortie.empty());
    }
}
