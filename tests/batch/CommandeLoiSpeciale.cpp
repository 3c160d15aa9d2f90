#include "Passe.h"

#include "outils/DossierTemporaire.h"

namespace {

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
        double angle, course; ///< degrees; m
    } etudes[] = {
        {"hesser", R"({"AngleIndexage":90,"AngleSortie":30,"VitesseEntree":60,"Unites":"mm"})", 90, 0.030},
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
}

TEST_F(LoiSpeciale, WrongUsageIsOneLineWithStatusTwoThatSaysWhatStoodWhere) {
    const struct {
        std::string donnees, attendu;
    } fausses[] = {
        {"{\n  \"AngleIndexage\": 9o\n}", "ligne 2, colonne 21"},
        {R"({"AngleIndexage":"90","AngleSortie":3,"VitesseEntree":60})",
         "AngleIndexage : attendu : un nombre, trouvé : \"90\""},
        {R"({"AngleIndexage":")" + std::string(100000, 'x') + R"("})", "xxx..."},
    };
    for (const auto& f : fausses) {
        const Passe passe = Lance("hesser", f.donnees);
        EXPECT_EQ(passe.statut, 2) << f.attendu;
        EXPECT_EQ(passe.LignesErreur(), 1) << passe.erreurs;
        EXPECT_LT(passe.erreurs.size(), 400U);
        EXPECT_NE(passe.erreurs.find(f.attendu), std::string::npos) << passe.erreurs;
    }
}
