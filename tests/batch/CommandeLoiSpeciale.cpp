#include "Passe.h"

#include "core/FichierEntier.h"
#include "outils/DossierTemporaire.h"

#include <chrono>

#include <numbers>

namespace {

using std::numbers::pi;

class LoiSpeciale : public testing::Test {
protected:
    DossierTemporaire dossier_;

    Passe Lance(const std::string& genre, const std::string& donnees) {
        const auto fichier = dossier_.Chemin() / "donnees.json";
        EcritFichierEntier(fichier, donnees);
        return LancePasse({"loi-speciale", genre, fichier.string()});
    }
};

} // namespace

TEST_F(LoiSpeciale, PointsAreTheUnitLawInPhysicalUnits) {
    const struct {
        const char* genre;
        const char* donnees;
        double angle, course;
        double coefAccel, coefVitesse;
    } etudes[] = {
        {"hesser", R"({"AngleIndexage":90,"AngleSortie":30,"VitesseEntree":60,"Unites":"mm"})", 90, 0.030, 5.039467,
         1.577761},
        {"avance-rapide",
         R"({"AngleTotal":180,"AngleAvanceRapide":90,"SortieTotale":100,"SortieAvanceRapide":80,"VitesseEntree":60,
             "Unites":"degres","PointsParDegre":2})",
         180, 100 * pi / 180, 0, 0},
        {"liquides",
         R"({"AngleIndexage":120,"AngleSortie":30,"VitesseEntree":45,"ExcentriciteLiq":0.125,"Unites":"mm"})", 120,
         0.030, 0, 0},
        {"msh-dissymetrique", R"({"AngleMontee":100,"AngleDescente":150,"Course":25,"VitesseEntree":30,"Unites":"mm"})",
         250, 0.025, 5.214566, 1.659848},
    };
    for (const auto& e : etudes) {
        const Passe passe = Lance(e.genre, e.donnees);
        ASSERT_EQ(passe.statut, 0) << e.genre << passe.erreurs;
        const auto& o = passe.Objet();
        const double T = e.angle / 6 / nlohmann::json::parse(e.donnees)["VitesseEntree"].get<double>();
        const auto angle = Nombres(o["Points"]["Angle"]), v = Nombres(o["Points"]["Vitesse"]);
        const auto unite = Nombres(o["LoiUnite"]["Vitesse"]), accel = Nombres(o["LoiUnite"]["Accel"]);
        EXPECT_NEAR(angle.back(), e.angle, 1e-12) << e.genre;
        for (std::size_t i = 0; i < v.size(); ++i) ASSERT_NEAR(v[i], unite[i] * e.course / T, 1e-12) << e.genre;
        EXPECT_NEAR(o["VitesseMaxi"].get<double>(), PlusGrand(o["LoiUnite"]["Vitesse"]) * e.course / T, 1e-12);
        EXPECT_NEAR(o["AccelerationMaxi"].get<double>(), PlusGrand(o["LoiUnite"]["Accel"]) * e.course / T / T, 1e-9);
        if (e.coefAccel == 0) continue;
        EXPECT_NEAR(o["CoefAccel"].get<double>(), e.coefAccel, 5e-7) << e.genre;
        EXPECT_NEAR(o["CoefVitesse"].get<double>(), e.coefVitesse, 5e-7) << e.genre;
    }
}

TEST_F(LoiSpeciale, RefusedDataAreToldWithStatusOne) {
    const Passe passe = Lance("avance-rapide", R"({"AngleTotal":100,"AngleAvanceRapide":50,"SortieTotale":100,
                                               "SortieAvanceRapide":5,"VitesseEntree":60})");
    EXPECT_EQ(passe.statut, 1);
    EXPECT_EQ(passe.Objet()["Erreur"], -1);
    EXPECT_EQ(passe.Objet()["messages"].size(), 1U);
    EXPECT_FALSE(passe.Objet()["echec"].get<std::string>().empty());
    EXPECT_TRUE(passe.Objet()["CoefAccel"].is_null());
    // The first amplitude of the law has no value at eight ninths.
    EXPECT_EQ(Lance("avance-rapide", R"({"AngleTotal":90,"AngleAvanceRapide":80,"SortieTotale":100,
                                         "SortieAvanceRapide":90,"VitesseEntree":60})")
                  .Objet()["Erreur"],
              -1);
    EXPECT_EQ(
        Lance("msh-dissymetrique", R"({"AngleMontee":100,"AngleDescente":90,"Course":25,"VitesseEntree":30})").statut,
        1);
    EXPECT_EQ(Lance("hesser", R"({"AngleIndexage":90,"AngleSortie":-3,"VitesseEntree":60})").statut, 1);
}

TEST_F(LoiSpeciale, WrongUsageIsOneLineWithStatusTwoThatSaysWhatStoodWhere) {
    const struct {
        const char* genre;
        std::string donnees, attendu;
    } fausses[] = {
        {"inconnue", "{}", "inconnue"},
        {"hesser", "{}", "membre absent : AngleIndexage"},
        {"hesser", "[1]", "un objet JSON est attendu"},
        {"hesser", "{", "ligne 1, colonne"},
        {"hesser", "{\n  \"AngleIndexage\": 9o\n}", "ligne 2, colonne 21"},
        {"hesser", R"({"AngleIndexage":"90","AngleSortie":3,"VitesseEntree":60})",
         "AngleIndexage : attendu : un nombre, trouvé : \"90\""},
        {"hesser", R"({"AngleIndexage":90,"AngleSortie":3,"VitesseEntree":60,"Vitesse":1})",
         "membre inconnu : Vitesse"},
        {"hesser", R"({"AngleIndexage":90,"AngleSortie":3,"AngleSortie":4,"VitesseEntree":60})",
         "membre en double : AngleSortie"},
        {"hesser", R"({"AngleIndexage":90,"AngleSortie":3,"VitesseEntree":60,"Unites":"m"})",
         "Unites : attendu : \"mm\" ou \"degres\", trouvé : \"m\""},
        {"hesser", R"({"AngleIndexage":90,"AngleSortie":3,"VitesseEntree":60,"PointsParDegre":1.5})",
         "un nombre entier de 1 à 32767, trouvé : 1.5"},
        {"hesser", R"({"AngleIndexage":")" + std::string(100000, 'x') + R"("})", "xxx..."},
        {"hesser", R"({"AngleIndexage":1e999})", "JSON"},
    };
    for (const auto& f : fausses) {
        const Passe passe = Lance(f.genre, f.donnees.c_str());
        EXPECT_EQ(passe.statut, 2) << f.attendu;
        EXPECT_EQ(passe.LignesErreur(), 1) << passe.erreurs;
        EXPECT_LT(passe.erreurs.size(), 400U);
        EXPECT_NE(passe.erreurs.find(f.attendu), std::string::npos) << passe.erreurs;
        EXPECT_TRUE(passe.sortie.empty());
    }
    EXPECT_EQ(LancePasse({"loi-speciale", "hesser", "/nulle/part.json"}).statut, 2);
    EXPECT_EQ(LancePasse({"loi-speciale", "hesser"}).statut, 2);
}

TEST_F(LoiSpeciale, ManyMembersAreReadInTheTimeTheyAreLong) {
    const auto duree = [this](int membres) {
        std::string donnees = R"({"AngleIndexage":90)";
        for (int i = 0; i < membres; ++i) donnees += ",\"m" + std::to_string(i) + "\":1";
        const auto debut = std::chrono::steady_clock::now();
        EXPECT_EQ(Lance("hesser", (donnees + "}").c_str()).statut, 2);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
    };
    const double peu = duree(10000);
    EXPECT_LT(duree(100000), 40 * peu + 0.5) << "a hundred times would be the square";
}
