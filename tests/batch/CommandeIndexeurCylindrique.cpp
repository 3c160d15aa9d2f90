#include "Passe.h"

#include "data/Textes.h"
#include "outils/DossierTemporaire.h"

namespace {

using Json = nlohmann::ordered_json;

class DrumCommand : public testing::Test {
protected:
    DossierTemporaire dossier;
    Json donnees = Json::parse(LitBrut(VELORIN_DOSSIER "/Profils/Tambour.json"));

    Passe Lance() const { return LancePasse({"indexeur-cylindrique", dossier.Ecrit("d.json", donnees.dump())}); }
};

} // namespace

TEST_F(DrumCommand, TextsAsTypedAndNumbersAreTheSame) {
    const Passe nombres = Lance();
    ASSERT_EQ(nombres.statut, 0) << nombres.sortie;
    const auto& o = nombres.Objet();
    EXPECT_EQ(o["Erreur"], 0);
    EXPECT_TRUE(o["messages"].empty());
    EXPECT_EQ(o["Grille"].size(), 361U);
    EXPECT_EQ(o["Grille"][0].size(), o["GaletsUtilises"].get<std::size_t>() + 2);
    EXPECT_EQ(o["LoiUnitaire"].size(), 181U);
    donnees["Entraxe"] = "96,6 mm";
    donnees["NombreGalets"] = " 8 ";
    donnees["Sens"] = 7;
    EXPECT_EQ(Lance().sortie, nombres.sortie);
    donnees["Sens"] = "-1";
    EXPECT_NE(Lance().sortie, nombres.sortie);
}

TEST_F(DrumCommand, RefusedDataAreToldAndLeaveNoFigure) {
    donnees.erase("Entraxe");
    donnees["NombreStops"] = nullptr;
    const Passe passe = Lance();
    EXPECT_EQ(passe.statut, 1);
    const auto& o = passe.Objet();
    EXPECT_EQ(o["Erreur"], -1);
    ASSERT_EQ(o["messages"].size(), 1U);
    EXPECT_EQ(o["messages"][0]["texte"], Texte(547));
    EXPECT_EQ(o["echec"], Texte(547));
    EXPECT_TRUE(o["MaxY"].is_null());
    EXPECT_TRUE(o["Grille"].empty());
}

TEST_F(DrumCommand, AFailureHasAReasonAndNoBox) {
    const auto echoue = [&](const Json& changement) {
        const Json gardees = donnees;
        donnees.update(changement);
        const Passe passe = Lance();
        donnees = gardees;
        return passe.statut == 1 && passe.Objet()["messages"].empty() && passe.Objet().contains("echec");
    };
    EXPECT_TRUE(echoue({{"NomLoi", "Inconnue"}}));
    EXPECT_TRUE(echoue({{"NomLoi", "MS_Spe"}, {"CoefA", 0.5}, {"CoefB", 0.5}}));
    EXPECT_TRUE(echoue({{"NomLoi", "Fichier"}}));
    EXPECT_TRUE(echoue({{"NomLoi", "Fichier"}, {"FichierLoi", "absent.Lmi"}}));
    EXPECT_TRUE(echoue({{"NombreGalets", 50000}}));
    EXPECT_TRUE(echoue({{"Entraxe", "1e999"}}));
    EXPECT_FALSE(echoue({{"NomLoi", "MS_Spe"}, {"CoefA", 0.3}, {"CoefB", "0,3"}, {"CoefC", 0.4}}));
    // The law file stands beside the data.
    dossier.Ecrit("loi.Lmi", "0;0;0\r\n.5;1;1\r\n.9;1;1\r\n1;0;0\r\n");
    donnees["NomLoi"] = "Fichier";
    donnees["FichierLoi"] = "loi.Lmi";
    EXPECT_EQ(Lance().Objet()["LoiUnitaire"], Json::parse("[0,0.9,0]"));
}

TEST_F(DrumCommand, WrongUsageIsOneLineWithStatusTwo) {
    donnees["NombreStop"] = 3;
    EXPECT_EQ(Lance().statut, 2);
    donnees.erase("NombreStop");
    donnees["Entraxe"] = Json::array();
    EXPECT_EQ(Lance().LignesErreur(), 1);
    EXPECT_EQ(LancePasse({"indexeur-cylindrique", "/nulle/part.json"}).statut, 2);
    EXPECT_EQ(LancePasse({"indexeur-cylindrique"}).statut, 2);
}
