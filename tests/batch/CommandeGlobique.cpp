#include "Passe.h"
#include "data/Textes.h"
#include "outils/DossierTemporaire.h"

#include <filesystem>

namespace {

const std::filesystem::path profils = VELORIN_SOURCES "/Profils";

class CommandeGlobique : public testing::Test {
protected:
    using Json = nlohmann::ordered_json;

    static Json Exemple(const char* nom) {
        std::ifstream flux(profils / nom);
        return Json::parse(flux);
    }
    Passe Indexe(const Json& donnees) {
        return LancePasse({"indexeur-globique", dossier.Ecrit("essai.json", donnees.dump())});
    }
    Passe Oscille(const Json& donnees) {
        return LancePasse({"oscillateur-globique", dossier.Ecrit("essai.json", donnees.dump())});
    }
    Json indexeur = Exemple("Indexeur-globique.json"), oscillateur = Exemple("Oscillateur-globique.json");
    DossierTemporaire dossier;
};

} // namespace

TEST_F(CommandeGlobique, ExamplesAreCalculatedWithoutAWarning) {
    for (const auto& [commande, fichier] : {std::pair{"indexeur-globique", "Indexeur-globique.json"},
                                            {"oscillateur-globique", "Oscillateur-globique.json"}}) {
        const auto passe = LancePasse({commande, (profils / fichier).string()});
        ASSERT_EQ(passe.statut, 0) << passe.erreurs;
        const auto& o = passe.Objet();
        EXPECT_EQ(o["Erreur"], 0);
        EXPECT_TRUE(o["messages"].empty());
        EXPECT_FALSE(o.contains("echec"));
        EXPECT_TRUE(o["rouges"].empty()) << o["rouges"];
        ASSERT_EQ(o["Resultats"].size(), 18u);
        for (const auto& ligne : o["Resultats"]) EXPECT_EQ(ligne.size(), 5u);
        EXPECT_EQ(o["Resultats"][12], (Json{0, 25, 50, 75, 100}));
        // The labels are the table in Nm, to two decimals.
        for (int k = 0; k < 5; ++k)
            EXPECT_NEAR(std::stod(o["etiquettes"]["Label" + std::to_string(46 + k)].get<std::string>()),
                        o["Resultats"][15][k].get<double>() * 0.112985, 0.005001);
    }
}

TEST_F(CommandeGlobique, LabelsAreBareNumbersAndTheOscillatorHasItsOwn) {
    const auto i = Indexe(indexeur).Objet(), o = Oscille(oscillateur).Objet();
    EXPECT_EQ(i["etiquettes"].size(), 63u);
    EXPECT_EQ(o["etiquettes"].size(), 60u);
    for (const auto& objet : {i, o})
        for (const auto& [nom, texte] : objet["etiquettes"].items())
            EXPECT_EQ(texte.get<std::string>().find_first_not_of("0123456789.-"), std::string::npos) << nom;
    EXPECT_EQ(i["etiquettes"]["Label73"], "1");
    EXPECT_EQ(o["etiquettes"]["Label53"], "65.6");
    for (const char* membre : {"Type", "Passages", "Genre", "AngleReel", "EpaisseurRepos"})
        EXPECT_TRUE(o[membre].is_null()) << membre;
    EXPECT_EQ(o["AngleFlancTravail"], 25);
    EXPECT_FALSE(i.contains("AngleFlancTravail"));
}

TEST_F(CommandeGlobique, MembersMayBeTextsAsTypedOrLeftOut) {
    const auto nombres = Indexe(indexeur).Objet();
    indexeur["Entraxe"] = " 160 mm";
    indexeur["AngleIndexage"] = "150,0";
    indexeur.erase("CoefSymetrie");
    indexeur["CameMaxDiam"] = nullptr;
    EXPECT_EQ(Indexe(indexeur).Objet(), nombres);
    indexeur["CameMaxDiam"] = 100;
    EXPECT_EQ(Indexe(indexeur).Objet()["rouges"], Json{"Label16"});
    indexeur["Inconnu"] = 1;
    EXPECT_EQ(Indexe(indexeur).statut, 2);
    oscillateur["CameMaxDiam"] = 100;
    EXPECT_TRUE(Oscille(oscillateur).Objet()["rouges"].empty());
}

TEST_F(CommandeGlobique, RefusalsAreTheScreensBoxes) {
    const auto refuse = [&](const Json& o, int texte) {
        EXPECT_EQ(o["Erreur"], -1);
        EXPECT_EQ(o["echec"], Texte(texte));
        EXPECT_EQ(o["messages"], Json::array({{{"icone", "avertissement"}, {"texte", Texte(texte)}}}));
        EXPECT_TRUE(o["CameDiametre"].is_null());
    };
    indexeur["NombreGalets"] = 6.5;
    const auto passe = Indexe(indexeur);
    EXPECT_EQ(passe.statut, 1);
    refuse(passe.Objet(), 537);
    indexeur["NombreGalets"] = 8;
    indexeur["NomLoi"] = "";
    refuse(Indexe(indexeur).Objet(), 538);
    oscillateur["AngleEntreGalets"] = 110;
    refuse(Oscille(oscillateur).Objet(), 564);
    oscillateur["AngleZoneD"] = 59;
    refuse(Oscille(oscillateur).Objet(), 573);
}

TEST_F(CommandeGlobique, FailuresHaveNoBoxAndLawFilesAreSoughtBesideTheData) {
    indexeur["NomLoi"] = "Sinus";
    const auto inconnue = Indexe(indexeur);
    EXPECT_EQ(inconnue.statut, 1);
    EXPECT_EQ(inconnue.Objet()["Erreur"], 0);
    EXPECT_TRUE(inconnue.Objet()["messages"].empty());
    EXPECT_NE(inconnue.Objet()["echec"].get<std::string>().find("Sinus"), std::string::npos);
    indexeur["NomLoi"] = "Fichier";
    for (const char* chemin : {"", "absent.Lmi"}) {
        indexeur["FichierLoi"] = chemin;
        EXPECT_EQ(Indexe(indexeur).statut, 1) << chemin;
    }
    std::filesystem::copy_file(profils / "Aller-retour.Lmi", dossier / "ici.Lmi");
    oscillateur["LoiZoneA"] = "Fichier";
    oscillateur["FichierLoi"] = "ici.Lmi";
    const auto fichier = Oscille(oscillateur);
    EXPECT_EQ(fichier.statut, 0) << fichier.sortie;
}
