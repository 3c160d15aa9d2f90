#include "studies/FichierEtude.h"

#include "outils/Catalogue.h"
#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"

namespace {

class FichierEtude : public AvecCatalogue {
protected:
    DialoguesScript dialogues;
    const TypeEtude& angulaire = *TrouveType("Angulaire");
    std::string exemple =
        "Came plate : Ang\r\nDate 01 02 2026\r\n80.\r\n30.5\r\n100.\r\n70.\r\n40.\r\n10.\r\n300.\r\n.\r\n"
        ".8\r\n.6\r\n12.\r\n1.5\r\n-3.\r\n40.25\r\n2.\r\n"
        "Zone n° 1\r\n25.\r\n40.\r\n180.\r\nMS\r\n.5\r\n"
        "Zone n° 2\r\n40.\r\n25.\r\n180.\r\nMS_Spe_ 40\r\n.35\r\n2\r\n";

    /// The record that the files below are of, its numbers finer than any mask.
    static void PoseEtude() {
        etude.donnees.CoteA = 80.1264;
        etude.donnees.CoteB = -30.5;
        etude.donnees.RayonO1A = 100.0004;
        etude.donnees.RayonO1P = 70.25;
        etude.donnees.AnglePO1A = 40.7556;
        etude.donnees.RayonGalet = 10.5;
        etude.donnees.VitesseCame = 300;
        etude.donnees.AnglePesanteur = 270.3;
        etude.donnees.MasseBrasO1A = 0.8;
        etude.donnees.MasseBrasO1P = 0.6049;
        etude.donnees.EpaisseurCame = 12;
        etude.donnees.MasseA = 0;
        etude.donnees.ForceX = -1234.5678;
        etude.donnees.ForceY = 40.25;
        etude.donnees.DiametreCame = 110.37;
        etude.donnees.InertieMasseA = 0.0678;
        etude.donnees.CoupleConstantO1 = 4.5;
        etude.donnees.RayonBrasR1 = 61.2346;
        etude.donnees.RayonGaletG1 = 8.1;
        etude.donnees.RayonBrasR2 = 62.5;
        etude.donnees.RayonGaletG2 = 9.0627;
        etude.donnees.AngleBras = 95.0007;
        etude.donnees.InertieO1 = 0.0312;
        etude.donnees.Zones.Redimensionne(2);
        etude.donnees.NombreZones = 2;
        etude.donnees.Zones[1] = {5.256, 7.5, 200, 0, 45.127, 80, "MS", 0.5};
        etude.donnees.Zones[2] = {7.5, 5.25, 160.254, 0, 80, 45.126, "CYC", 0.123456789};
        etude.donnees.ZonesConjuguees = etude.donnees.Zones;
        etude.donnees.ZonesConjuguees[1].NomLoi = "MSC50";
        etude.donnees.ZonesConjuguees[2].CoefSymetrie = 0.25;
        etude.donnees.PointsParDegre = 4;
    }

    static std::string SansEntete(const std::string& contenu) {
        return contenu.substr(contenu.find("\r\n", contenu.find("\r\n") + 2));
    }
    static std::string Remplace(std::string texte, const std::string& de, const std::string& par) {
        return texte.replace(texte.find(de), de.size(), par);
    }
};

} // namespace

TEST_F(FichierEtude, WhatFollowsFromTheLinesIsSetOnReading) {
    ASSERT_TRUE(LitEtude(exemple, angulaire));
    EXPECT_EQ(etude.donnees.AnglePesanteur, 0) << "a lone point is zero";
    EXPECT_NEAR(etude.donnees.Zones[1].Temps, 0.1, 1e-15);
    EXPECT_EQ(etude.donnees.Zones[2].RayonDepart, etude.donnees.Zones[1].RayonFinal);
    const std::string virgules = ComposeFichierEtude(angulaire, ',');
    ASSERT_TRUE(LitEtude(virgules, angulaire));
    EXPECT_EQ(etude.donnees.CoteB, 30.5) << "the comma keeps its decimals";
}

// One file a kind, line by line as other copies of the program read it.
TEST_F(FichierEtude, EveryKindIsWrittenLineByLine) {
    const std::string zonesBras = "2.\r\nZone n° 1\r\n5.26\r\n7.5\r\n200.\r\nMS\r\n.5\r\n"
                                  "Zone n° 2\r\n7.5\r\n5.25\r\n160.25\r\nCYC\r\n.123456789\r\n4\r\n";
    const std::string zonesRayons = "2.\r\nZone n° 1\r\n45.13\r\n80.\r\n200.\r\nMS\r\n.5\r\n"
                                    "Zone n° 2\r\n80.\r\n45.13\r\n160.25\r\nCYC\r\n.123456789\r\n4\r\n";
    const std::string zonesPaire = "2.\r\nZone n° 1\r\n5.26\r\n7.5\r\n200.\r\nMSC50\r\n.5\r\n"
                                   "Zone n° 2\r\n7.5\r\n5.25\r\n160.25\r\nCYC\r\n.25\r\n4\r\n";
    const struct {
        const char *extension, *titre;
        std::string lignes;
    } fichiers[] = {
        {"x.Ang", "Came plate à bras oscillant : Ang",
         "80.13\r\n-30.5\r\n100.\r\n70.25\r\n40.76\r\n" // a, b, O1-A, O1-P, angle between them
         "10.5\r\n300.\r\n270.3\r\n"                    // roller, speed, gravity
         ".8\r\n.6\r\n12.\r\n.\r\n"                     // arm masses, thickness, mass at A
         "-1234.57\r\n40.25\r\n" +                      // forces x, y
             zonesBras},
        {"x.Lin", "Came plate à suiveur en translation : Lin ",
         "10.5\r\n300.\r\n270.3\r\n" // roller, speed, gravity
         "12.\r\n.\r\n40.25\r\n" +   // thickness, mass, force y
             zonesRayons},
        {"x.Cyl", "Came cylindrique à suiveur en translation : Cyl",
         "10.5\r\n300.\r\n270.3\r\n"  // roller, speed, gravity
         "110.37\r\n.\r\n40.25\r\n" + // diameter, mass, force y
             zonesRayons},
        {"x.Osc", "Came cylindrique à bras oscillant : Osc",
         "10.5\r\n300.\r\n110.37\r\n" // roller, speed, diameter
         "80.13\r\n70.25\r\n"         // a, O1-P
         ".07\r\n4.5\r\n" +           // inertia, constant torque
             zonesBras},
        {"x.Cjg", "Cames conjuguées à bras oscillant : Cjg",
         "80.126\r\n-30.5\r\n"                // a, b
         "61.235\r\n8.1\r\n62.5\r\n9.063\r\n" // arm and roller of either cam
         "300.\r\n95.001\r\n.031\r\n" +       // speed, angle between the arms, inertia
             zonesPaire},
    };
    for (const auto& fichier : fichiers) {
        SCOPED_TRACE(fichier.extension);
        etude = Etude{};
        ChargeLois();
        PoseEtude();
        const TypeEtude& type = *TrouveTypeFichier(fichier.extension);
        const std::string contenu = ComposeFichierEtude(type, '.');
        EXPECT_EQ(SansEntete(contenu), "\r\n" + fichier.lignes);
        EXPECT_EQ(contenu.substr(0, contenu.find("\r\n")), fichier.titre);
        etude = Etude{};
        ChargeLois();
        ASSERT_TRUE(LitEtude(contenu, type));
        EXPECT_EQ(SansEntete(ComposeFichierEtude(type, '.')), "\r\n" + fichier.lignes) << "read and written again";
    }
}

TEST_F(FichierEtude, UnknownLawIsToldAndNothingIsCalculated) {
    EXPECT_FALSE(LitEtude(Remplace(exemple, "\r\nMS\r\n", "\r\nXYZ\r\n"), angulaire));
    ASSERT_EQ(dialogues.boites.size(), 1u);
    EXPECT_EQ(dialogues.boites[0].texte, Texte(521) + " ' XYZ ' " + Texte(103) + "\n" + Texte(509));
    EXPECT_TRUE(LitEtude(Remplace(exemple, "\r\nMS\r\n", "\r\nMS_Speciale\r\n"), angulaire)) << "Spe goes unchecked";
}

TEST_F(FichierEtude, SavingAsksForANameAndKeepsTheOldFileOnFailure) {
    ASSERT_TRUE(LitEtude(exemple, angulaire));
    const DossierTemporaire dossier;
    const auto chemin = dossier / "essai.Ang";
    dialogues.fichiers = {chemin, std::nullopt, dossier / "absent/essai.Ang"};
    EXPECT_TRUE(DonneesDepart());
    EXPECT_EQ(etude.donnees.NomFichier, "essai.Ang");
    EXPECT_FALSE(DonneesDepart()) << "cancelled";
    EXPECT_THROW(DonneesDepart(), ErreurExecution);
    EXPECT_EQ(etude.donnees.NomFichier, "essai.Ang");
    etude = Etude{};
    ChargeLois();
    EXPECT_TRUE(LitFichierEtude(chemin));
    EXPECT_EQ(etude.donnees.CoteB, 30.5);
}
