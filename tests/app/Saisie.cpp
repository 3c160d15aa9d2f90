// Typing with the whole program around it: the way back, the open dialogue, saving and printing after an edit.
#include "data/TextesSaisie.h"
#include "outils/FenetrePrincipale.h"
#include "studies/Exports.h"
#include "studies/FichierEtude.h"

#include <QCheckBox>

namespace {

class Saisie : public FenetrePrincipale {
protected:
    Saisie() { Ouvre("Exemple.Ang"); }
    /// To the data screen of the study that was opened, calculated from there and back.
    QWidget& CalculeDepuisLaSaisie() {
        Touche(Ecran("Resultat"), Qt::Key_Escape);
        CliqueSur(Ecran("DatoCama"), "Calculer");
        EXPECT_TRUE(Visible("Resultat"));
        Touche(Ecran("Resultat"), Qt::Key_Escape);
        EXPECT_TRUE(Visible("DatoCama"));
        return Ecran("DatoCama");
    }
    /// The save command with all its files or the study alone. @return whether its screen came up
    bool Sauvegarde(bool tout = false) {
        return Lance("FichierSauvegarde", [tout](QDialog& ecran) {
            for (const char* choix : {"Check2", "Check3"}) Controle<QCheckBox>(ecran, choix)->setChecked(tout);
            CliqueSur(ecran, "Sauvegarde");
        });
    }
};

} // namespace

TEST_F(Saisie, BackFromTheResultsDigitsReplaceWhatStands) {
    QWidget& ecran = CalculeDepuisLaSaisie();
    FrappeDans(ecran, "Text18", "200");
    CliqueSur(ecran, "Calculer");
    ASSERT_TRUE(Visible("Resultat"));
    FrappeDans(Ecran("Resultat"), "Text2", "7");
    CliqueSur(Ecran("Resultat"), "Recalcul");
    Touche(Ecran("Resultat"), Qt::Key_Escape);
    EXPECT_EQ(TexteDe("DatoCama", "Text10"), "7");
    Controle<QLineEdit>(ecran, "Text1")->setFocus();
    Frappe(ecran, "2");
    EXPECT_EQ(TexteDe("DatoCama", "Text1"), "2");
    Touche(ecran, Qt::Key_Escape);
    EXPECT_TRUE(Visible("DatoCama"));
}

TEST_F(Saisie, CancellingTheOpenDialogueLeavesAllAsItWas) {
    QWidget& ecran = CalculeDepuisLaSaisie();
    CliqueCellule(ecran, "Grille", 2, 1);
    FrappeDans(ecran, "Text15", "7");
    const double rayon = etude.resultats.RayonMax;
    dialogues_.fichiers = {std::nullopt, std::nullopt};
    for (const char* commande : {"FichierOuvrir", "ProfilCylindrique", "FichierNouveau"}) {
        Lance(commande, [](QDialog& choix) { choix.reject(); });
        EXPECT_EQ(&Ecran("DatoCama"), &ecran);
        EXPECT_TRUE(ecran.isVisible());
        EXPECT_EQ(TexteDe("DatoCama", "Text15"), "7");
        EXPECT_EQ(etude.resultats.EtudeModifiee, Vrai);
        EXPECT_EQ(etude.resultats.ResultatsPrets, Vrai);
        EXPECT_EQ(etude.resultats.RayonMax, rayon);
    }
}

TEST_F(Saisie, AStudyThatWasEditedIsSavedAsItStands) {
    QWidget& ecran = CalculeDepuisLaSaisie();
    const double force = etude.resultats.ForceGaletMax;
    FrappeDans(ecran, "Text10", "9.5");
    CliqueCellule(ecran, "Grille", 1, 1);
    FrappeDans(ecran, "Text16", "61");
    EXPECT_EQ(etude.resultats.EtudeModifiee, Vrai) << "typing does not clear it";
    dialogues_.fichiers = {dossier_ / "un.Ang"};
    EXPECT_TRUE(Sauvegarde());
    EXPECT_EQ(etude.resultats.ForceGaletMax, force) << "nothing to calculate for";

    // The exports are made of a calculation of the same data.
    FrappeDans(ecran, "Text16", "62");
    dialogues_.fichiers = {dossier_ / "deux.Ang", dossier_ / "deux.Pnt", dossier_ / "deux_Ext.Scr",
                           dossier_ / "deux_Int.Scr"};
    EXPECT_TRUE(Sauvegarde(true));
    EXPECT_TRUE(dialogues_.boites.empty()) << dialogues_.Derniere();
    EXPECT_EQ(etude.resultats.NombrePoints, 724);
    EXPECT_NE(etude.resultats.ForceGaletMax, force);
    EXPECT_EQ(LitBrut(dossier_ / "deux.Pnt"), ComposeFichierPoints());
    EXPECT_TRUE(Visible("DatoCama"));
    ASSERT_TRUE(LitFichierEtude(dossier_ / "un.Ang"));
    EXPECT_EQ(etude.donnees.MasseA, 9.5);
    EXPECT_EQ(etude.donnees.Zones[2].AngleCame, 61);
}

TEST_F(Saisie, ExportsAndPagesOfDataThatCannotBeCalculatedAreRefused) {
    QWidget& ecran = CalculeDepuisLaSaisie();
    FrappeDans(ecran, "Text18", "0");
    dialogues_.fichiers = {dossier_ / "etude.Ang"};
    EXPECT_TRUE(Sauvegarde()) << "the study itself can be saved";
    EXPECT_TRUE(dialogues_.boites.empty());
    EXPECT_TRUE(Sauvegarde(true));
    EXPECT_EQ(dialogues_.Derniere(), Texte(200));
    EXPECT_EQ(dossier_.NombreFichiers(), 1) << "nothing else written";
    EXPECT_FALSE(Imprime());
    EXPECT_EQ(dialogues_.boites.size(), 2U);
    EXPECT_EQ(dialogues_.Derniere(), Texte(200));

    FrappeDans(ecran, "Text18", "150");
    EXPECT_TRUE(Imprime());
    EXPECT_EQ(dialogues_.boites.size(), 2U);
    EXPECT_EQ(etude.donnees.Zones[1].Temps, 110.0 / 150 / 6);
    EXPECT_FALSE(etude.resultats.Perimes);
    FrappeDans(ecran, "Text13", "5");
    EXPECT_FALSE(Imprime());
    EXPECT_FALSE(Sauvegarde()) << "zones are missing";
    EXPECT_EQ(dialogues_.Derniere(), Texte(TexteZonesManquantes));
}

TEST_F(Saisie, AStudyOnlyOpenedIsNotSavedButExported) {
    EXPECT_FALSE(Sauvegarde());
    EXPECT_EQ(dialogues_.Derniere(), Texte(23));
    QWidget& resultats = Ecran("Resultat");
    dialogues_.fichiers = {dossier_ / "ouverte.Pnt", dossier_ / "ouverte_Ext.Scr", dossier_ / "ouverte_Int.Scr"};
    CliqueSur(resultats, "Points");
    EXPECT_EQ(LitBrut(dossier_ / "ouverte.Pnt"), ComposeFichierPoints());
    CliqueSur(resultats, "Scripts");
    EXPECT_EQ(LitBrut(dossier_ / "ouverte_Int.Scr"), ComposeScriptInterieur());

    // A number typed and not calculated with is, before anything of it goes out.
    FrappeDans(resultats, "Text5", "14");
    dialogues_.fichiers = {dossier_ / "galet.Pnt"};
    CliqueSur(resultats, "Points");
    EXPECT_TRUE(LitBrut(dossier_ / "galet.Pnt").starts_with("Rayon du galet ,14\r\n"));
    FrappeDans(resultats, "Text6", "0");
    CliqueSur(resultats, "Scripts");
    EXPECT_EQ(dialogues_.Derniere(), Texte(200));
    EXPECT_FALSE(Imprime());
    EXPECT_EQ(etude.donnees.VitesseCame, 300);
}

TEST_F(Saisie, TheResultsTellAChainThatDoesNotClose) {
    EXPECT_FALSE(Controle<QLabel>(Ecran("Resultat"), "RemarquesZones")->isVisible());
    Touche(Ecran("Resultat"), Qt::Key_Escape);
    QWidget& ecran = Ecran("DatoCama");
    CliqueCellule(ecran, "Grille", 3, 1);
    FrappeDans(ecran, "Text16", "60");
    CliqueSur(ecran, "Calculer");
    auto* remarques = Controle<QLabel>(Ecran("Resultat"), "RemarquesZones");
    EXPECT_TRUE(remarques->isVisible());
    EXPECT_TRUE(S(remarques->text()).starts_with(Texte(TextePasUnTour) + " 350 "));
    EXPECT_TRUE(dialogues_.boites.empty());
}
