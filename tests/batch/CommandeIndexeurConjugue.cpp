#include "Passe.h"

#include "core/FichierEntier.h"
#include "outils/DossierTemporaire.h"

namespace {

class IndexeurConjugueBatch : public testing::Test {
protected:
    DossierTemporaire dossier_;

    Passe Lance(const std::string& donnees, const std::string& langue = "Français") {
        const auto fichier = dossier_.Chemin() / "donnees.json";
        EcritFichierEntier(fichier, donnees);
        return LancePasse({"indexeur-conjugue", fichier.string()}, langue);
    }
};

const std::string exemple = VELORIN_SOURCES "/Profils/Conjugue.json";

} // namespace

TEST_F(IndexeurConjugueBatch, DataAreNumbersOrTextsAsTyped) {
    const Passe nombres = LancePasse({"indexeur-conjugue", exemple});
    ASSERT_EQ(nombres.statut, 0) << nombres.erreurs;
    const auto& o = nombres.Objet();
    EXPECT_EQ(o["Erreur"], 0);
    EXPECT_TRUE(o["messages"].empty());
    EXPECT_EQ(o["lignes"].size(), 57U);
    EXPECT_NEAR(o["SR"].get<double>(), 2 * o["RSD"].get<double>() / 26, 1e-12);
    EXPECT_EQ(o["tableau"].size(), 6U);
    const Passe textes = Lance(R"({"Q":" 100 mm","R":"42,0","M":"8.4","N":8,"A":"150","W":"0,25","Loi":"MS",
        "Ipm":"100 ","D":26,"F":15,"B10":"7750","CLim":10350,"VitesseGraisse":7400,"ReferenceGalet":null})");
    EXPECT_EQ(textes.sortie, nombres.sortie);
    EXPECT_EQ(LancePasse({"indexeur-conjugue", exemple}, "English").Objet()["lignes"], o["lignes"])
        << "the report has its own language";
    EXPECT_NE(LancePasse({"indexeur-conjugue", exemple}, "English").Objet()["notes"], o["notes"]);
}

TEST_F(IndexeurConjugueBatch, StopsAndFailuresHaveStatusOne) {
    const Passe vide = Lance("{}");
    EXPECT_EQ(vide.statut, 1);
    EXPECT_TRUE(vide.Objet()["messages"].empty()) << "a run-time failure is no message";
    EXPECT_FALSE(vide.Objet()["echec"].get<std::string>().empty());
    EXPECT_TRUE(vide.Objet()["RayonMini"].is_null());

    const Passe vite = Lance(R"({"Q":100,"R":42,"M":8,"N":8,"A":150,"Loi":"MX","Ipm":100,"D":26,"F":15})");
    EXPECT_EQ(vite.statut, 1);
    EXPECT_EQ(vite.Objet()["messages"][0]["texte"], "VITESSE LIMITE DES GALETS ATTEINTE");
    EXPECT_EQ(vite.Objet()["messages"][0]["icone"], "critique");
    EXPECT_EQ(vite.Objet()["lignes"].size(), 25U);
    EXPECT_EQ(vite.Objet()["lignes"][8], "Coefficient de vitesse       (Cvu) =2");
    EXPECT_TRUE(vite.Objet()["PA"].is_null());

    const Passe large = Lance(R"({"Q":100,"R":42,"M":8,"N":8,"A":150,"Loi":"MS","Ipm":100,"D":97,"F":15})");
    EXPECT_EQ(large.Objet()["Erreur"], -1);
    EXPECT_TRUE(large.Objet()["messages"].empty());
    EXPECT_TRUE(large.Objet()["lignes"].empty());
    EXPECT_NE(large.Objet()["echec"].get<std::string>().find("Sur Usinage dans la piste B part 1"), std::string::npos);
}

TEST_F(IndexeurConjugueBatch, WrongUsageIsOneLineWithStatusTwo) {
    for (const char* donnees : {"[1]", "{", R"({"Entraxe":100})", R"({"Q":true})"}) {
        const Passe passe = Lance(donnees);
        EXPECT_EQ(passe.statut, 2) << donnees;
        EXPECT_EQ(passe.LignesErreur(), 1);
        EXPECT_TRUE(passe.sortie.empty());
    }
    const Passe deux = LancePasse({"indexeur-conjugue", "/nulle/part.json", exemple});
    EXPECT_EQ(deux.statut, 2);
    EXPECT_EQ(deux.objets.size(), 1U) << "the other file is calculated";
    EXPECT_EQ(LancePasse({"indexeur-conjugue"}).statut, 2);
}
