#include "studies/FichierEtude.h"

#include "outils/Catalogue.h"
#include "outils/DialoguesScript.h"

#include <algorithm>
#include <fstream>

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

    static std::string SansEntete(const std::string& contenu) {
        return contenu.substr(contenu.find("\r\n", contenu.find("\r\n") + 2));
    }
    static std::string Remplace(std::string texte, const std::string& de, const std::string& par) {
        return texte.replace(texte.find(de), de.size(), par);
    }
};

} // namespace

TEST_F(FichierEtude, ReadsEveryLine) {
    ASSERT_TRUE(LitEtude(exemple, angulaire));
    EXPECT_EQ(etude.donnees.TypeCame, "Angulaire");
    EXPECT_EQ(etude.donnees.CoteB, 30.5);
    EXPECT_EQ(etude.donnees.AnglePesanteur, 0) << "a lone point is zero";
    EXPECT_EQ(etude.donnees.MasseBrasO1A, 0.8);
    EXPECT_EQ(etude.donnees.ForceY, 40.25);
    EXPECT_EQ(etude.donnees.NombreZones, 2);
    EXPECT_EQ(etude.donnees.Zones[2].NomLoi, "MS_Spe_ 40");
    EXPECT_EQ(etude.donnees.Zones[2].CoefSymetrie, 0.35);
    EXPECT_EQ(etude.donnees.PointsParDegre, 2);
    EXPECT_NEAR(etude.donnees.Zones[1].Temps, 0.1, 1e-15);
    EXPECT_EQ(etude.donnees.Zones[2].RayonDepart, etude.donnees.Zones[1].RayonFinal);
    EXPECT_GT(etude.donnees.Zones[1].RayonDepart, 0);
}

TEST_F(FichierEtude, SavedAgainItIsTheSameFile) {
    ASSERT_TRUE(LitEtude(exemple, angulaire));
    EXPECT_EQ(SansEntete(ComposeFichierEtude(angulaire, '.')), SansEntete(exemple));
    const std::string virgules = ComposeFichierEtude(angulaire, ',');
    EXPECT_NE(virgules.find("\r\n30,5\r\n"), std::string::npos);
    const Etude lue = etude;
    etude = Etude{};
    ChargeLois();
    ASSERT_TRUE(LitEtude(virgules, angulaire));
    EXPECT_EQ(etude.donnees.CoteB, lue.donnees.CoteB) << "the comma keeps its decimals";
    EXPECT_EQ(etude.donnees.Zones[2].CoefSymetrie, 0.35);
}

TEST_F(FichierEtude, EveryKindGoesThroughItsOwnLayout) {
    for (const auto& type : LesTypesEtude()) {
        etude = Etude{};
        ChargeLois();
        double valeur = 10.25;
        for (const auto& champ : type.champs) champ.Nombre(etude.donnees) = valeur += 1.5;
        PoseZones({{5.25, 7.5, 200, "MS"}, {7.5, 5.25, 160, "CYC", 0.4}});
        etude.donnees.PointsParDegre = 4;
        etude.donnees.ZonesConjuguees = etude.donnees.Zones;
        const Etude ecrite = etude;
        const std::string contenu = ComposeFichierEtude(type, '.');
        etude = Etude{};
        ChargeLois();
        ASSERT_TRUE(LitEtude(contenu, type)) << type.nom;
        for (const auto& champ : type.champs)
            EXPECT_EQ(champ.Nombre(etude.donnees), champ.Nombre(ecrite.donnees)) << type.nom << champ.nom;
        EXPECT_EQ(etude.donnees.Zones[2].*type.zones->valeurFinale, 5.25) << type.nom;
        EXPECT_EQ(etude.donnees.Zones[2].AngleCame, 160) << type.nom;
        EXPECT_EQ(etude.donnees.PointsParDegre, 4) << type.nom;
        EXPECT_EQ(ComposeFichierEtude(type, '.'), contenu) << type.nom;
    }
}

TEST_F(FichierEtude, UnknownLawIsToldAndNothingIsCalculated) {
    EXPECT_FALSE(LitEtude(Remplace(exemple, "\r\nMS\r\n", "\r\nXYZ\r\n"), angulaire));
    ASSERT_EQ(dialogues.boites.size(), 1u);
    EXPECT_EQ(dialogues.boites[0].icone, Icone::Critique);
    EXPECT_EQ(dialogues.boites[0].texte, Texte(521) + " ' XYZ ' " + Texte(103) + "\n" + Texte(509));
    EXPECT_TRUE(LitEtude(Remplace(exemple, "\r\nMS\r\n", "\r\nMS_Speciale\r\n"), angulaire)) << "Spe goes unchecked";
}

TEST_F(FichierEtude, DamagedContentIsARunTimeFailure) {
    const auto numero = [&](const std::string& contenu) {
        try {
            LitEtude(contenu, angulaire);
        } catch (const ErreurExecution& e) {
            return e.numero;
        }
        return NumeroErreur{};
    };
    EXPECT_EQ(numero(""), NumeroErreur::FinDeFichier);
    EXPECT_EQ(numero(exemple.substr(0, exemple.size() / 2)), NumeroErreur::FinDeFichier);
    EXPECT_EQ(numero(Remplace(exemple, "\r\n2.\r\nZone", "\r\n99999.\r\nZone")), NumeroErreur::Depassement);
    EXPECT_EQ(numero(Remplace(exemple, "\r\n2.\r\nZone", "\r\n-3.\r\nZone")), NumeroErreur::IndiceHorsLimites);
    EXPECT_EQ(numero(Remplace(exemple, "\r\n300.\r\n", "\r\n0\r\n")), NumeroErreur::DivisionParZero);
    EXPECT_EQ(numero(Remplace(exemple, "\r\n70.\r\n", "\r\nabc\r\n")), NumeroErreur::DivisionParZero);
}

TEST_F(FichierEtude, SavingAsksForANameAndKeepsTheOldFileOnFailure) {
    ASSERT_TRUE(LitEtude(exemple, angulaire));
    const auto dossier = std::filesystem::path(testing::TempDir());
    const auto chemin = dossier / "essai.Ang";
    dialogues.fichiers = {chemin, std::nullopt, dossier / "absent" / "essai.Ang"};
    EXPECT_TRUE(DonneesDepart());
    EXPECT_EQ(etude.donnees.NomFichier, "essai.Ang");
    EXPECT_FALSE(DonneesDepart()) << "cancelled";
    EXPECT_THROW(DonneesDepart(), ErreurExecution);
    EXPECT_EQ(etude.donnees.NomFichier, "essai.Ang");
    etude = Etude{};
    ChargeLois();
    EXPECT_TRUE(LitFichierEtude(chemin));
    EXPECT_EQ(etude.donnees.CoteB, 30.5);
    std::filesystem::remove(chemin);
    EXPECT_THROW(LitFichierEtude(chemin), ErreurExecution);
}
