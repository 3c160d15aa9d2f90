#include "Passe.h"
#include "outils/DossierTemporaire.h"

namespace {

const std::string exemple = VELORIN_SOURCES "/Profils/Exemple.Ang";

/// Positions of lines in the worked example, from 0.
enum Ligne { LigneGalet = 7, LigneVitesse = 8, LigneZones = 16, LigneZone1 = 17, LignesParZone = 6 };

/// The worked example with other lines in place of its own.
struct EtudeModifiee {
    std::vector<std::string> lignes;

    EtudeModifiee() {
        std::istringstream flux(LitBrut(exemple));
        for (std::string ligne; std::getline(flux, ligne);) lignes.push_back(ligne.substr(0, ligne.size() - 1));
    }
    EtudeModifiee& Met(std::size_t numero, const std::string& texte) {
        lignes.at(numero) = texte;
        return *this;
    }
    /// @param zone from 1; @param champ 1 start, 2 end, 3 cam angle, 4 law, 5 symmetry coefficient
    EtudeModifiee& MetZone(std::size_t zone, std::size_t champ, const std::string& texte) {
        return Met(LigneZone1 + LignesParZone * (zone - 1) + champ, texte);
    }
    std::string Texte() const {
        std::string texte;
        for (const auto& ligne : lignes) texte += ligne + "\r\n";
        return texte;
    }
};

std::vector<std::string> Membres(const nlohmann::ordered_json& objet) {
    std::vector<std::string> noms;
    for (const auto& [nom, valeur] : objet.items()) noms.push_back(nom);
    return noms;
}

class CommandeEtude : public testing::Test {
protected:
    Passe Calcule(const EtudeModifiee& etude) {
        return LancePasse({"etude", dossier.Ecrit("Essai.Ang", etude.Texte()), "--resume"});
    }
    DossierTemporaire dossier;
};

} // namespace

TEST_F(CommandeEtude, ExamplesAreCalculatedWithoutABox) {
    const std::vector<std::string> tete{"fichier", "TypeCame", "Erreur", "messages", "donnees", "Zones", "resume"};
    for (const char* nom : {"Exemple.Ang", "Barillet.Cyl", "Deux-tours.Cyl", "Balancier.Osc"}) {
        SCOPED_TRACE(nom);
        const std::string fichier = VELORIN_SOURCES "/Profils/" + std::string(nom);
        const auto passe = LancePasse({"etude", fichier});
        ASSERT_EQ(passe.statut, 0) << passe.erreurs;
        const auto& o = passe.Objet();
        auto membres = tete;
        membres.insert(membres.end(), {"Mouvement", "Points", "Profil"});
        EXPECT_EQ(Membres(o), membres);
        EXPECT_TRUE(o["messages"].empty());
        EXPECT_EQ(o["Zones"].size(), o["donnees"]["NombreZones"].get<std::size_t>() + 1);
        const auto points = o["resume"]["NombrePoints"].get<std::size_t>() + 1;
        for (const char* table : {"Points", "Profil"})
            for (const auto& [colonne, valeurs] : o[table].items()) EXPECT_EQ(valeurs.size(), points) << colonne;
        EXPECT_EQ(Membres(LancePasse({"etude", fichier, "--resume"}).Objet()), tete);
    }
}

TEST_F(CommandeEtude, EveryFileIsCalculatedAsIfAlone) {
    const auto rapide = dossier.Ecrit("Rapide.Ang", EtudeModifiee().Met(LigneVitesse, "3000.").Texte());
    // A custom law of zone 5 overwrites row 5 of the catalogue, which is the law of the worked example.
    EtudeModifiee cinq;
    cinq.Met(LigneZones, "5.").MetZone(4, 3, "50.");
    const std::vector<std::string> zone5{"Zone", "5.", "5.", "20.", "MS_Spe_ 80", ".5"};
    cinq.lignes.insert(cinq.lignes.end() - 1, zone5.begin(), zone5.end());
    const auto propre = dossier.Ecrit("Propre.Ang", cinq.Texte());

    const auto seule = LancePasse({"etude", exemple});
    const auto suite = LancePasse({"etude", rapide, propre, (dossier / "Absent.Ang").string(), exemple});
    EXPECT_EQ(suite.statut, 2);
    EXPECT_EQ(suite.LignesErreur(), 1) << "the file that cannot be opened";
    ASSERT_EQ(suite.objets.size(), 3u);
    EXPECT_EQ(suite.objets[2], seule.Objet());
    EXPECT_GT(suite.objets[0]["resume"]["VitesseGaletMax"], seule.Objet()["resume"]["VitesseGaletMax"]);
}

TEST_F(CommandeEtude, WhatCannotBeCalculatedHasAReasonAndNoResults) {
    const std::pair<const char*, EtudeModifiee> refusees[] = {
        {"Loi.Ang", EtudeModifiee().MetZone(1, 4, "\xff\xfe")},
        {"Nom.Ang", EtudeModifiee().MetZone(2, 4, "XSpe")},
        {"Symetrie.Ang", EtudeModifiee().MetZone(1, 5, "0")},
        {"Etude.txt", EtudeModifiee()},
        {"Autre.Lin", EtudeModifiee()},
    };
    for (const auto& [nom, etude] : refusees) {
        const auto passe = LancePasse({"etude", dossier.Ecrit(nom, etude.Texte())});
        EXPECT_EQ(passe.statut, 1) << nom;
        EXPECT_FALSE(passe.Objet()["echec"].get<std::string>().empty()) << nom;
        EXPECT_TRUE(passe.Objet()["Mouvement"]["Course"].empty()) << nom;
    }
}

TEST_F(CommandeEtude, BoxesStandInTheResult) {
    const auto inconnue = Calcule(EtudeModifiee().MetZone(2, 4, "Cyc")).Objet();
    ASSERT_EQ(inconnue["messages"].size(), 1u);
    EXPECT_EQ(inconnue["messages"][0]["icone"], "critique");
    EXPECT_EQ(inconnue["messages"][0]["texte"], inconnue["echec"]);
    // A roller wider than the cam is told, and the study goes on.
    const auto gros = Calcule(EtudeModifiee().Met(LigneGalet, "30."));
    EXPECT_EQ(gros.statut, 0);
    EXPECT_EQ(gros.Objet()["messages"][0]["icone"], "information");
}

TEST_F(CommandeEtude, APairOfCamsHasItsResultsByCam) {
    const std::string paire = VELORIN_SOURCES "/Profils/Conjuguees.Cjg";
    const std::string points = (dossier / "p.Pnt").string(), base = (dossier / "paire").string();
    const auto passe = LancePasse({"etude", paire, "--points", points, "--scripts", base});
    ASSERT_EQ(passe.statut, 0) << passe.erreurs;
    const auto& o = passe.Objet();
    for (const char* came : {"Guide", "Suiveur"}) {
        EXPECT_EQ(Membres(o[came]), (std::vector<std::string>{"resume", "Mouvement", "Points", "Profil"}));
        EXPECT_EQ(o[came]["Points"]["Rayon"].size(), 721u);
        EXPECT_EQ(o[came]["resume"]["CoupleMax"], o["Guide"]["resume"]["CoupleMax"]);
    }
    for (const std::string& ecrit : {points, base + "_Came guide.Scr", base + "_Came suiveuse.Scr"})
        EXPECT_TRUE(std::filesystem::exists(ecrit)) << ecrit;
}
