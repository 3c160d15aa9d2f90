#include "Passe.h"
#include "data/Textes.h"
#include "outils/DossierTemporaire.h"

#include <cmath>

namespace {

const std::string exemple = VELORIN_SOURCES "/Profils/Exemple.Ang";

/// Positions of lines in the worked example, from 0.
enum Ligne { LigneO1P = 5, LigneVitesse = 8, LigneZones = 16, LigneZone1 = 17, LignesParZone = 6 };

/// The worked example with other lines in place of its own.
class EtudeModifiee {
public:
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
    EtudeModifiee& PointsParDegre(const std::string& texte) { return Met(lignes.size() - 1, texte); }
    EtudeModifiee& Coupe(std::size_t nombre) {
        lignes.resize(nombre);
        return *this;
    }
    std::string Texte() const {
        std::string texte;
        for (const auto& ligne : lignes) texte += ligne + "\r\n";
        return texte;
    }

    std::vector<std::string> lignes;
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

TEST_F(CommandeEtude, WorkedExampleIsCalculatedWithoutABox) {
    const auto passe = LancePasse({"etude", exemple});
    ASSERT_EQ(passe.statut, 0) << passe.erreurs;
    const auto& o = passe.Objet();
    EXPECT_EQ(Membres(o), (std::vector<std::string>{"fichier", "TypeCame", "Erreur", "messages", "donnees", "Zones",
                                                    "resume", "Mouvement", "Points", "Profil"}));
    EXPECT_EQ(o["fichier"], exemple);
    EXPECT_EQ(o["TypeCame"], "Angulaire");
    EXPECT_EQ(o["Erreur"], 0);
    EXPECT_TRUE(o["messages"].empty());
    EXPECT_EQ(o["donnees"]["NombreZones"], 4);
    EXPECT_EQ(o["donnees"]["PointsParDegre"], 2);
    EXPECT_EQ(o["Zones"].size(), 5u);
    EXPECT_EQ(o["resume"]["NombrePoints"], 720);
    EXPECT_EQ(o["resume"].size(), 27u);
    EXPECT_EQ(o["Points"].size(), 16u);
    EXPECT_EQ(o["Profil"].size(), 18u);
    for (const char* table : {"Mouvement", "Points", "Profil"})
        for (const auto& [nom, colonne] : o[table].items()) EXPECT_EQ(colonne.size(), 721u) << nom;
    EXPECT_EQ(Membres(LancePasse({"etude", exemple, "--resume"}).Objet()),
              (std::vector<std::string>{"fichier", "TypeCame", "Erreur", "messages", "donnees", "Zones", "resume"}));
}

TEST_F(CommandeEtude, CylindricalExamplesAreCalculatedWithoutABox) {
    const auto profils = std::filesystem::path(exemple).parent_path();
    const auto passe = LancePasse({"etude", (profils / "Barillet.Cyl").string(), (profils / "Deux-tours.Cyl").string(),
                                   (profils / "Balancier.Osc").string()});
    ASSERT_EQ(passe.statut, 0) << passe.erreurs;
    ASSERT_EQ(passe.objets.size(), 3u);
    for (const auto& o : passe.objets) {
        EXPECT_TRUE(o["messages"].empty()) << o["fichier"];
        EXPECT_EQ(o["Profil"]["XInterieur"].size(), o["resume"]["NombrePoints"].get<std::size_t>() + 1);
        EXPECT_GT(o["resume"]["CoupleDemarrage"], 0);
        // The track closes on itself, or ends at rest.
        EXPECT_EQ(Nombres(o["Points"]["VitesseRayon"]).back(), 0);
    }
    EXPECT_TRUE(passe.objets[0]["Mouvement"]["Course"].empty()) << "no arm";
    EXPECT_EQ(passe.objets[2]["Mouvement"]["Course"].size(), 721u);
    EXPECT_EQ(passe.objets[2]["donnees"]["CoupleConstantO1"], 4);
    const auto sansVitesse = dossier.Ecrit("Arret.Cyl", "\n\n8\n0\n270\n120\n3\n0\n1\nZ\n0\n9\n360\nMS\n.5\n1\n");
    const auto echec = LancePasse({"etude", sansVitesse});
    EXPECT_EQ(echec.statut, 1);
    EXPECT_EQ(echec.Objet()["echec"], Texte(713));
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
    const auto suite = LancePasse({"etude", rapide, propre, exemple});
    EXPECT_EQ(suite.statut, 0);
    ASSERT_EQ(suite.objets.size(), 3u);
    EXPECT_EQ(suite.objets[2], seule.Objet());
    EXPECT_GT(suite.objets[0]["resume"]["VitesseGaletMax"], seule.Objet()["resume"]["VitesseGaletMax"]);
}

TEST_F(CommandeEtude, FileThatCannotBeOpenedSpoilsOnlyItself) {
    const auto passe =
        LancePasse({"etude", (dossier / "Absent.Ang").string(), exemple, dossier.Chemin().string(), "--resume"});
    EXPECT_EQ(passe.statut, 2);
    EXPECT_EQ(passe.objets.size(), 1u);
    EXPECT_EQ(passe.LignesErreur(), 2);
}

TEST_F(CommandeEtude, ShortFilesFailWhereverTheyEnd) {
    const std::size_t toutes = EtudeModifiee().lignes.size();
    for (std::size_t n = 0; n < toutes; ++n) {
        const auto passe = Calcule(EtudeModifiee().Coupe(n));
        EXPECT_EQ(passe.statut, 1) << n;
        EXPECT_NE(passe.Objet()["echec"].get<std::string>().find("trop tôt"), std::string::npos) << n;
        EXPECT_TRUE(passe.Objet()["resume"]["RayonMax"].is_null()) << n;
    }
    EXPECT_EQ(Calcule(EtudeModifiee()).statut, 0);
}

TEST_F(CommandeEtude, WhatCannotBeCalculatedIsToldAndTheZonesAreBackInDegrees) {
    const EtudeModifiee refusees[] = {
        EtudeModifiee().Met(LigneVitesse, "0."),
        EtudeModifiee().Met(LigneO1P, "."),
        EtudeModifiee().MetZone(3, 3, "."),
        EtudeModifiee().MetZone(1, 5, "0"),
        EtudeModifiee().MetZone(2, 4, "Spe"),  // not checked on reading, and not in the catalogue
        EtudeModifiee().MetZone(2, 4, "XSpe"), // a custom name that cannot be cut
        EtudeModifiee().PointsParDegre("100"), // 36000 points
        EtudeModifiee().PointsParDegre("0"),
        EtudeModifiee().MetZone(1, 2, "-80."), // the arm crosses the line of centres
    };
    for (const auto& refusee : refusees) {
        const auto passe = Calcule(refusee);
        EXPECT_EQ(passe.statut, 1) << refusee.Texte();
        const auto& o = passe.Objet();
        EXPECT_FALSE(o["echec"].get<std::string>().empty());
        for (std::size_t z = 1; z < o["Zones"].size(); ++z) {
            const double angle = std::strtod(refusee.lignes[LigneZone1 + LignesParZone * (z - 1) + 3].c_str(), nullptr);
            const bool lue = o["Zones"][z]["NomLoi"] != "";
            EXPECT_EQ(o["Zones"][z]["AngleCame"], lue ? angle : 0.0);
        }
    }
}

TEST_F(CommandeEtude, BoxesStandInTheResult) {
    const auto inconnue = Calcule(EtudeModifiee().MetZone(2, 4, "Cyc"));
    EXPECT_EQ(inconnue.statut, 1);
    ASSERT_EQ(inconnue.Objet()["messages"].size(), 1u);
    EXPECT_EQ(inconnue.Objet()["messages"][0]["icone"], "critique");
    EXPECT_EQ(inconnue.Objet()["messages"][0]["texte"], inconnue.Objet()["echec"]);
    EXPECT_NE(inconnue.Objet()["echec"].get<std::string>().find(" ' Cyc ' "), std::string::npos);

    const auto traverse = Calcule(EtudeModifiee().MetZone(1, 2, "-80."));
    EXPECT_EQ(traverse.Objet()["Erreur"], -1);
    EXPECT_EQ(traverse.Objet()["messages"].back()["icone"], "critique");

    // A roller wider than the cam is told, and the study goes on.
    const auto gros = Calcule(EtudeModifiee().Met(7, "30."));
    EXPECT_EQ(gros.statut, 0);
    EXPECT_EQ(gros.Objet()["messages"][0]["icone"], "information");
}

TEST_F(CommandeEtude, ForeignFilesAreRefused) {
    std::string octets(5000, '\0');
    for (std::size_t i = 0; i < octets.size(); ++i) octets[i] = static_cast<char>(i * 7919 % 251);
    const std::string texte = EtudeModifiee().Texte();
    for (const auto& fichier : {dossier.Ecrit("Vide.Ang", ""), dossier.Ecrit("Octets.Ang", octets),
                                dossier.Ecrit("Loi.Ang", EtudeModifiee().MetZone(1, 4, "\xff\xfe").Texte()),
                                dossier.Ecrit("Enorme.Ang", std::string((16u << 20) + 1, '1')),
                                dossier.Ecrit("Etude.txt", texte), dossier.Ecrit("Autre.Lin", texte)}) {
        const auto passe = LancePasse({"etude", fichier});
        EXPECT_EQ(passe.statut, 1) << fichier;
        EXPECT_FALSE(passe.Objet()["echec"].get<std::string>().empty()) << fichier;
        EXPECT_TRUE(passe.Objet()["Mouvement"]["Course"].empty()) << fichier;
    }
}

TEST_F(CommandeEtude, APairOfCamsHasItsResultsByCam) {
    const std::string paire = VELORIN_SOURCES "/Profils/Conjuguees.Cjg";
    const std::string points = (dossier.Chemin() / "p.Pnt").string(), base = (dossier.Chemin() / "paire").string();
    const auto passe = LancePasse({"etude", paire, "--points", points, "--scripts", base, "--langue", "Français"});
    ASSERT_EQ(passe.statut, 0) << passe.erreurs;
    const auto& o = passe.Objet();
    EXPECT_EQ(Membres(o), (std::vector<std::string>{"fichier", "TypeCame", "Erreur", "messages", "donnees", "Zones",
                                                    "Guide", "Suiveur"}));
    EXPECT_EQ(o["donnees"].size(), 11u);
    EXPECT_EQ(o["Zones"][1]["AngleFinal"], 74) << "as entered";
    for (const char* came : {"Guide", "Suiveur"}) {
        EXPECT_EQ(Membres(o[came]), (std::vector<std::string>{"resume", "Mouvement", "Points", "Profil"}));
        EXPECT_EQ(o[came]["resume"]["NombrePoints"], 720);
        EXPECT_EQ(o[came]["Points"]["Rayon"].size(), 721u);
        EXPECT_EQ(o[came]["resume"]["CoupleMax"], o["Guide"]["resume"]["CoupleMax"]);
    }
    EXPECT_EQ(o["Suiveur"]["Mouvement"]["Course"][0], 62 - 74);
    EXPECT_TRUE(std::filesystem::exists(points));
    EXPECT_TRUE(std::filesystem::exists(base + "_Came guide.Scr"));
    EXPECT_TRUE(std::filesystem::exists(base + "_Came suiveuse.Scr"));
    const auto court = LancePasse({"etude", paire, "--resume"});
    EXPECT_EQ(Membres(court.Objet()["Guide"]), (std::vector<std::string>{"resume"}));

    std::string texte = LitBrut(paire);
    texte.replace(texte.rfind("2\r\n"), 1, "3");
    const auto refus = LancePasse({"etude", dossier.Ecrit("Trois.Cjg", texte)});
    EXPECT_EQ(refus.statut, 1);
    EXPECT_EQ(refus.Objet()["Erreur"], -1);
    EXPECT_EQ(refus.Objet()["messages"][0]["icone"], "avertissement");
    EXPECT_TRUE(refus.Objet()["Guide"]["resume"]["RayonMax"].is_null());
    EXPECT_TRUE(refus.Objet()["Suiveur"]["Points"]["Rayon"].empty());
}
