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
    Passe Lance(const Calculateur& c, const Json& autres = Json::object()) {
        Json donnees = Json::parse(LitBrut(VELORIN_SOURCES "/Profils/" + std::string(c.exemple)));
        donnees.update(autres);
        return LancePasse({c.commande, dossier.Ecrit("donnees.json", donnees.dump())});
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
        EXPECT_EQ(Lance(c.calculateur, c.tapees).sortie, passe.sortie);
        EXPECT_NE(Lance(c.calculateur, c.autre).sortie, passe.sortie);
    }
}

TEST_F(CommandesIndexeurs, ResultsStandInTheirMembers) {
    for (const auto& calculateur : {Globique, Oscillateur}) {
        const Json o = Calcule(calculateur);
        ASSERT_EQ(o["Resultats"].size(), 18U);
        // The labels are the table in Nm, to two decimals.
        for (int k = 0; k < 5; ++k)
            EXPECT_NEAR(std::stod(o["etiquettes"]["Label" + std::to_string(46 + k)].get<std::string>()),
                        o["Resultats"][15][k].get<double>() * 0.112985, 0.005001);
    }
    EXPECT_EQ(Calcule(Globique, {{"CameMaxDiam", 100}})["rouges"], Json{"Label16"});

    const Json conjugue = Calcule(Conjugue), tambour = Calcule(Tambour);
    EXPECT_NEAR(conjugue["SR"].get<double>(), 2 * conjugue["RSD"].get<double>() / 26, 1e-12);
    EXPECT_EQ(tambour["Grille"].size(), 361U);
    EXPECT_EQ(tambour["Grille"][0].size(), tambour["GaletsUtilises"].get<std::size_t>() + 2);
}

TEST_F(CommandesIndexeurs, RefusalsHaveAReasonAndABoxWhereTheScreenHasOne) {
    const struct {
        Calculateur calculateur;
        Json fautives;
        int boite = 0;
    } cas[] = {
        {Globique, {{"NombreGalets", 6.5}}, 537},
        {Globique, {{"NomLoi", "Fichier"}, {"FichierLoi", "absent.Lmi"}}},
        {Oscillateur, {{"AngleEntreGalets", 110}, {"NombreGalets", 2}}, 564},
        {Conjugue, {{"Q", nullptr}}},
        {Tambour, {{"Entraxe", nullptr}, {"NombreStops", nullptr}}, 547},
        {Tambour, {{"NomLoi", "MS_Spe"}, {"CoefA", 0.5}, {"CoefB", 0.5}}},
        {Tambour, {{"Entraxe", "1e999"}}},
    };
    for (const auto& c : cas) {
        const Passe passe = Lance(c.calculateur, c.fautives);
        const Json& o = passe.Objet();
        EXPECT_EQ(passe.statut, 1) << c.fautives;
        EXPECT_FALSE(o.value("echec", "").empty()) << c.fautives;
        EXPECT_EQ(o["messages"].size(), c.boite == 0 ? 0U : 1U) << c.fautives;
        if (c.boite != 0) {
            EXPECT_EQ(o["echec"], Texte(c.boite));
        }
    }
}

TEST_F(CommandesIndexeurs, DataThatMakeNoSenseAreToldInTheWorkingLanguage) {
    const struct {
        std::string donnees, attendu;
    } fausses[] = {
        {"nope", "no es JSON, línea 1, columna 2"},
        {"[1]", "se espera un objeto JSON"},
        {R"({"ReferenceGalet":1,"ReferenceGalet":2})", "miembro repetido: ReferenceGalet"},
        {R"({"Inconnu":1})", "miembro desconocido: Inconnu"},
        {R"({"ReferenceGalet":[1]})", R"(ReferenceGalet : se espera: "..." o un número, encontrado: [1])"},
        {R"({"ReferenceGalet":)" + std::string(200000, '[') + std::string(200000, ']') + "}",
         R"(ReferenceGalet : se espera: "..." o un número, encontrado: [...])"},
        {R"({"ReferenceGalet":1e999})", "ReferenceGalet : número demasiado grande"},
    };
    for (const auto& calculateur : {Globique, Oscillateur, Conjugue, Tambour})
        for (const auto& f : fausses) {
            const std::string fichier = dossier.Ecrit("donnees.json", f.donnees);
            const Passe passe = LancePasse({calculateur.commande, fichier}, "Español");
            EXPECT_EQ(passe.statut, 2) << calculateur.commande;
            EXPECT_EQ(passe.erreurs, "velorin-batch: " + fichier + ": " + f.attendu + "\n") << calculateur.commande;
        }
}

TEST_F(CommandesIndexeurs, LawFilesAreSoughtBesideTheData) {
    std::filesystem::copy_file(VELORIN_SOURCES "/Profils/Aller-retour.Lmi", dossier / "ici.Lmi");
    EXPECT_EQ(Lance(Oscillateur, {{"LoiZoneA", "Fichier"}, {"FichierLoi", "ici.Lmi"}}).statut, 0);
}
