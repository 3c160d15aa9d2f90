// The calculators of indexers on the command line, each started from its shipped example.
#include "Passe.h"
#include "data/Textes.h"
#include "outils/DossierTemporaire.h"

namespace {

using Json = nlohmann::ordered_json;

struct Calculateur {
    const char *commande, *exemple;
};
constexpr Calculateur Globique{"indexeur-globique", "Indexeur-globique.json"},
    Oscillateur{"oscillateur-globique", "Oscillateur-globique.json"}, Conjugue{"indexeur-conjugue", "Conjugue.json"},
    Tambour{"indexeur-cylindrique", "Tambour.json"};

class CommandesIndexeurs : public testing::Test {
protected:
    DossierTemporaire dossier;

    /// Calculates the example with other members in place of its own.
    Passe Lance(const Calculateur& c, const Json& autres = Json::object(), const char* langue = "Français") {
        Json donnees = Json::parse(LitBrut(VELORIN_SOURCES "/Profils/" + std::string(c.exemple)));
        donnees.update(autres);
        return LancePasse({c.commande, dossier.Ecrit("donnees.json", donnees.dump())}, langue);
    }
    Json Calcule(const Calculateur& c, const Json& autres = Json::object()) { return Lance(c, autres).Objet(); }
};

} // namespace

TEST_F(CommandesIndexeurs, DataAreNumbersOrTextsAsTypedOrLeftOut) {
    const struct {
        Calculateur calculateur;
        Json tapees, autre;
    } cas[] = {
        {Globique,
         {{"Entraxe", " 160 mm"}, {"AngleIndexage", "150,0"}, {"CoefSymetrie", nullptr}},
         {{"NombreStops", "4"}}},
        {Oscillateur, {{"AngleSortie", "40,0°"}, {"SymetrieC", nullptr}}, {{"AngleSortie", "41"}}},
        {Conjugue, {{"Q", " 100 mm"}, {"W", "0,25"}, {"Loi", "MS"}, {"ReferenceGalet", nullptr}}, {{"W", "0,26"}}},
        {Tambour, {{"Entraxe", "96,6 mm"}, {"NombreGalets", " 8 "}, {"Sens", 7}}, {{"Sens", "-1"}}},
    };
    for (const auto& c : cas) {
        SCOPED_TRACE(c.calculateur.commande);
        const Passe passe = Lance(c.calculateur);
        ASSERT_EQ(passe.statut, 0) << passe.erreurs;
        EXPECT_EQ(passe.Objet()["Erreur"], 0);
        EXPECT_TRUE(passe.Objet()["messages"].empty());
        EXPECT_FALSE(passe.Objet().contains("echec"));
        EXPECT_EQ(Lance(c.calculateur, c.tapees).sortie, passe.sortie);
        EXPECT_NE(Lance(c.calculateur, c.autre).sortie, passe.sortie);
    }
}

TEST_F(CommandesIndexeurs, ResultsStandInTheirMembers) {
    for (const auto& [calculateur, nombre] : {std::pair{Globique, 63U}, {Oscillateur, 60U}}) {
        const Json o = Calcule(calculateur);
        EXPECT_TRUE(o["rouges"].empty()) << o["rouges"];
        ASSERT_EQ(o["Resultats"].size(), 18U);
        EXPECT_EQ(o["Resultats"][12], (Json{0, 25, 50, 75, 100}));
        ASSERT_EQ(o["etiquettes"].size(), nombre);
        for (const auto& [nom, texte] : o["etiquettes"].items())
            EXPECT_EQ(texte.get<std::string>().find_first_not_of("0123456789.-"), std::string::npos) << nom;
        // The labels are the table in Nm, to two decimals.
        for (int k = 0; k < 5; ++k)
            EXPECT_NEAR(std::stod(o["etiquettes"]["Label" + std::to_string(46 + k)].get<std::string>()),
                        o["Resultats"][15][k].get<double>() * 0.112985, 0.005001);
    }
    EXPECT_TRUE(Calcule(Oscillateur)["Passages"].is_null()) << "an oscillator has none";
    EXPECT_EQ(Calcule(Globique, {{"CameMaxDiam", 100}})["rouges"], Json{"Label16"});
    EXPECT_TRUE(Calcule(Oscillateur, {{"CameMaxDiam", 100}})["rouges"].empty());

    const Json conjugue = Calcule(Conjugue), tambour = Calcule(Tambour);
    EXPECT_EQ(conjugue["lignes"].size(), 57U);
    EXPECT_EQ(conjugue["tableau"].size(), 6U);
    EXPECT_NEAR(conjugue["SR"].get<double>(), 2 * conjugue["RSD"].get<double>() / 26, 1e-12);
    const Json anglais = Lance(Conjugue, Json::object(), "English").Objet();
    EXPECT_EQ(anglais["lignes"], conjugue["lignes"]) << "the report has its own language";
    EXPECT_NE(anglais["notes"], conjugue["notes"]);
    EXPECT_EQ(tambour["Grille"].size(), 361U);
    EXPECT_EQ(tambour["Grille"][0].size(), tambour["GaletsUtilises"].get<std::size_t>() + 2);
}

TEST_F(CommandesIndexeurs, RefusalsAreTheScreensBoxesAndLeaveNoFigure) {
    const struct {
        Calculateur calculateur;
        Json fautives;
        int texte;
        const char* resultat;
    } cas[] = {
        {Globique, {{"NombreGalets", 6.5}}, 537, "CameDiametre"},
        {Globique, {{"NomLoi", ""}}, 538, "CameDiametre"},
        {Oscillateur, {{"AngleEntreGalets", 110}, {"NombreGalets", 2}}, 564, "CameDiametre"},
        {Oscillateur, {{"AngleZoneD", 59}}, 573, "CameDiametre"},
        {Tambour, {{"Entraxe", nullptr}, {"NombreStops", nullptr}}, 547, "MaxY"},
    };
    for (const auto& c : cas) {
        const Passe passe = Lance(c.calculateur, c.fautives);
        const Json& o = passe.Objet();
        EXPECT_EQ(passe.statut, 1);
        EXPECT_EQ(o["Erreur"], -1);
        EXPECT_EQ(o["echec"], Texte(c.texte));
        EXPECT_EQ(o["messages"], Json::array({{{"icone", "avertissement"}, {"texte", Texte(c.texte)}}}));
        EXPECT_TRUE(o[c.resultat].is_null());
    }
}

TEST_F(CommandesIndexeurs, FailuresHaveAReasonAndNoBox) {
    const std::pair<Calculateur, Json> cas[] = {
        {Globique, {{"NomLoi", "Sinus"}}},
        {Globique, {{"NomLoi", "Fichier"}}},
        {Globique, {{"NomLoi", "Fichier"}, {"FichierLoi", "absent.Lmi"}}},
        {Conjugue, {{"Q", nullptr}}},
        {Conjugue, {{"D", 97}}},
        {Tambour, {{"NomLoi", "Inconnue"}}},
        {Tambour, {{"NomLoi", "MS_Spe"}, {"CoefA", 0.5}, {"CoefB", 0.5}}},
        {Tambour, {{"NomLoi", "Fichier"}}},
        {Tambour, {{"NombreGalets", 50000}}},
        {Tambour, {{"Entraxe", "1e999"}}},
    };
    for (const auto& [calculateur, fautives] : cas) {
        const Passe passe = Lance(calculateur, fautives);
        EXPECT_EQ(passe.statut, 1) << fautives;
        EXPECT_TRUE(passe.Objet()["messages"].empty()) << fautives;
        EXPECT_FALSE(passe.Objet().value("echec", "").empty()) << fautives;
    }
    EXPECT_EQ(Lance(Tambour, {{"NomLoi", "MS_Spe"}, {"CoefA", 0.3}, {"CoefB", "0,3"}, {"CoefC", 0.4}}).statut, 0);

    // A stop of the conjugate report keeps the lines written so far.
    const Json vite = Calcule(Conjugue, {{"VitesseGraisse", 100}});
    EXPECT_EQ(vite["messages"][0]["texte"], "VITESSE LIMITE DES GALETS ATTEINTE");
    EXPECT_EQ(vite["messages"][0]["icone"], "critique");
    EXPECT_EQ(vite["lignes"].size(), 25U);
    EXPECT_TRUE(vite["PA"].is_null());
}

TEST_F(CommandesIndexeurs, LawFilesAreSoughtBesideTheData) {
    std::filesystem::copy_file(VELORIN_SOURCES "/Profils/Aller-retour.Lmi", dossier / "ici.Lmi");
    EXPECT_EQ(Lance(Oscillateur, {{"LoiZoneA", "Fichier"}, {"FichierLoi", "ici.Lmi"}}).statut, 0);
    dossier.Ecrit("loi.Lmi", "0;0;0\r\n.5;1;1\r\n.9;1;1\r\n1;0;0\r\n");
    EXPECT_EQ(Calcule(Tambour, {{"NomLoi", "Fichier"}, {"FichierLoi", "loi.Lmi"}})["LoiUnitaire"],
              Json::parse("[0,0.9,0]"));
}

TEST_F(CommandesIndexeurs, WrongUsageIsOneLineWithStatusTwo) {
    for (const auto& c : {Globique, Oscillateur, Conjugue, Tambour}) {
        for (const Json& fautives : {Json{{"Inconnu", 1}}, Json{{"DiametreGalet", true}}}) {
            const Passe passe = Lance(c, fautives);
            EXPECT_EQ(passe.statut, 2) << c.commande << fautives;
            EXPECT_EQ(passe.LignesErreur(), 1) << passe.erreurs;
            EXPECT_TRUE(passe.sortie.empty());
        }
        EXPECT_EQ(LancePasse({c.commande}).statut, 2);
        const Passe deux =
            LancePasse({c.commande, "/nulle/part.json", VELORIN_SOURCES "/Profils/" + std::string(c.exemple)});
        EXPECT_EQ(deux.statut, 2);
        EXPECT_EQ(deux.objets.size(), 1U) << "the other file is calculated";
    }
}
