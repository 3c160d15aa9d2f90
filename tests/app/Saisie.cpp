// Typing with the whole program around it: the way back, the open dialogue, saving and printing after an edit.
#include "app/MdiCamA.h"
#include "core/Etude.h"
#include "core/FichierEntier.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "data/TextesSaisie.h"
#include "outils/Clavier.h"
#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "studies/Exports.h"
#include "studies/FichierEtude.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

class Saisie : public testing::Test {
protected:
    DialoguesScript dialogues_;
    DossierTemporaire dossier_;
    MdiCamA mdi_{Configuration{{true, true, true, true, true, true, true}, "Français"}};

    Saisie() {
        mdi_.show();
        mdi_.activateWindow();
        LaisseFaire();
        mdi_.OuvreFichier(CheminAppli / "Profils" / "Exemple.Ang");
    }
    QWidget& Ecran(const char* nom) { return *mdi_.EcranOuvert(nom); }
    bool Visible(const char* nom) {
        const QWidget* ecran = mdi_.EcranOuvert(nom);
        return ecran != nullptr && ecran->isVisible();
    }
    std::string TexteDe(const char* ecran, const char* champ) {
        return S(Controle<QLineEdit>(Ecran(ecran), champ)->text());
    }
    std::string DerniereBoite() { return dialogues_.boites.empty() ? "" : dialogues_.boites.back().texte; }
    void Commande(const char* nom) {
        Controle<QAction>(mdi_, nom)->trigger();
        LaisseFaire();
    }
    /// To the data screen of the study that was opened, and calculated from there.
    void CalculeDepuisLaSaisie() {
        Touche(Ecran("Resultat"), Qt::Key_Escape);
        ASSERT_TRUE(Visible("DatoCama"));
        CliqueSur(Ecran("DatoCama"), "Calculer");
        ASSERT_TRUE(Visible("Resultat"));
        Touche(Ecran("Resultat"), Qt::Key_Escape);
        ASSERT_TRUE(Visible("DatoCama"));
    }
    /// The save command, with its screen filled in by `remplit`; true when it came up.
    template <class Fait> bool Sauvegarde(Fait remplit) {
        bool montree = false;
        QTimer::singleShot(0, &mdi_, [&] {
            auto* ecran = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (ecran == nullptr) return;
            montree = true;
            remplit(*ecran);
            CliqueSur(*ecran, "Sauvegarde");
            if (ecran->isVisible()) ecran->reject();
        });
        Commande("FichierSauvegarde");
        LaisseFaire();
        return montree;
    }
    /// The print command; true when its preview came up.
    bool Imprime() {
        bool montre = false;
        QTimer::singleShot(0, &mdi_, [&] {
            if (auto* apercu = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                montre = true;
                apercu->reject();
            }
        });
        Commande("FicImprimerImprimer");
        LaisseFaire();
        return montre;
    }
};

void CocheTout(QDialog& ecran) {
    for (const char* choix : {"Check2", "Check3"}) Controle<QCheckBox>(ecran, choix)->setChecked(true);
}

} // namespace

TEST_F(Saisie, BackFromTheResultsDigitsReplaceWhatStands) {
    CalculeDepuisLaSaisie();
    QWidget& ecran = Ecran("DatoCama");
    FrappeDans(ecran, "Text18", "200");
    CliqueSur(ecran, "Calculer");
    ASSERT_TRUE(Visible("Resultat"));
    FrappeDans(Ecran("Resultat"), "Text2", "7");
    CliqueSur(Ecran("Resultat"), "Recalcul");
    Touche(Ecran("Resultat"), Qt::Key_Escape);
    ASSERT_TRUE(Visible("DatoCama"));
    EXPECT_EQ(TexteDe("DatoCama", "Text10"), "7");
    auto* champ = Controle<QLineEdit>(ecran, "Text1");
    champ->setFocus();
    Frappe(ecran, "2");
    EXPECT_EQ(TexteDe("DatoCama", "Text1"), "2");
    Touche(ecran, Qt::Key_Escape);
    EXPECT_TRUE(Visible("DatoCama"));
}

TEST_F(Saisie, CancellingTheOpenDialogueLeavesAllAsItWas) {
    CalculeDepuisLaSaisie();
    QWidget& ecran = Ecran("DatoCama");
    CliqueCellule(ecran, "Grille", 2, 1);
    FrappeDans(ecran, "Text15", "7");
    const Etude avant = etude;
    for (const char* commande : {"FichierOuvrir", "ProfilCylindrique"}) {
        dialogues_.fichiers = {std::nullopt};
        Commande(commande);
        EXPECT_EQ(mdi_.EcranOuvert("DatoCama"), &ecran);
        EXPECT_TRUE(ecran.isVisible());
        EXPECT_EQ(TexteDe("DatoCama", "Text15"), "7");
        EXPECT_EQ(etude.resultats.EtudeModifiee, Vrai);
        EXPECT_EQ(etude.resultats.ResultatsPrets, Vrai);
        EXPECT_EQ(etude.donnees.ZoneCourante, avant.donnees.ZoneCourante);
        EXPECT_EQ(etude.resultats.RayonMax, avant.resultats.RayonMax);
    }
}

TEST_F(Saisie, AStudyThatWasEditedIsSavedAsItStands) {
    CalculeDepuisLaSaisie();
    QWidget& ecran = Ecran("DatoCama");
    const double force = etude.resultats.ForceGaletMax;
    FrappeDans(ecran, "Text10", "9.5");
    CliqueCellule(ecran, "Grille", 1, 1);
    FrappeDans(ecran, "Text16", "61");
    EXPECT_EQ(etude.resultats.EtudeModifiee, Vrai) << "typing does not clear it";
    dialogues_.fichiers = {dossier_ / "un.Ang"};
    EXPECT_TRUE(Sauvegarde([](QDialog&) {}));
    EXPECT_EQ(etude.resultats.ForceGaletMax, force) << "nothing to calculate for";

    // The exports are made of a calculation of the same data.
    FrappeDans(ecran, "Text16", "62");
    dialogues_.fichiers = {dossier_ / "deux.Ang", dossier_ / "deux.Pnt", dossier_ / "deux_Ext.Scr",
                           dossier_ / "deux_Int.Scr"};
    EXPECT_TRUE(Sauvegarde(CocheTout));
    EXPECT_TRUE(dialogues_.boites.empty()) << DerniereBoite();
    EXPECT_EQ(etude.resultats.NombrePoints, 724);
    EXPECT_NE(etude.resultats.ForceGaletMax, force);
    EXPECT_EQ(LitFichierEntier(dossier_ / "deux.Pnt"), ComposeFichierPoints());
    EXPECT_TRUE(Visible("DatoCama"));
    ASSERT_TRUE(LitFichierEtude(dossier_ / "un.Ang"));
    EXPECT_EQ(etude.donnees.MasseA, 9.5);
    EXPECT_EQ(etude.donnees.Zones[2].AngleCame, 61);
}

TEST_F(Saisie, ExportsAndPagesOfDataThatCannotBeCalculatedAreRefused) {
    CalculeDepuisLaSaisie();
    QWidget& ecran = Ecran("DatoCama");
    FrappeDans(ecran, "Text18", "0");
    dialogues_.fichiers = {dossier_ / "etude.Ang"};
    EXPECT_TRUE(Sauvegarde([](QDialog&) {})) << "the study itself can be saved";
    EXPECT_TRUE(dialogues_.boites.empty());
    EXPECT_TRUE(Sauvegarde(CocheTout));
    EXPECT_EQ(DerniereBoite(), Texte(200));
    EXPECT_TRUE(dialogues_.fichiers.empty());
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dossier_.Chemin()), {}), 1) << "nothing else written";
    EXPECT_FALSE(Imprime());
    EXPECT_EQ(dialogues_.boites.size(), 2U);
    EXPECT_EQ(DerniereBoite(), Texte(200));

    FrappeDans(ecran, "Text18", "150");
    EXPECT_TRUE(Imprime());
    EXPECT_EQ(dialogues_.boites.size(), 2U);
    EXPECT_EQ(etude.donnees.Zones[1].Temps, 110.0 / 150 / 6);
    EXPECT_FALSE(etude.resultats.Perimes);
    FrappeDans(ecran, "Text13", "5");
    EXPECT_FALSE(Imprime());
    EXPECT_FALSE(Sauvegarde([](QDialog&) {})) << "zones are missing";
    EXPECT_EQ(DerniereBoite(), Texte(TexteZonesManquantes));
}

TEST_F(Saisie, AStudyOnlyOpenedIsNotSavedButExported) {
    EXPECT_FALSE(Sauvegarde([](QDialog&) {}));
    EXPECT_EQ(DerniereBoite(), Texte(23));
    QWidget& resultats = Ecran("Resultat");
    dialogues_.fichiers = {dossier_ / "ouverte.Pnt", dossier_ / "ouverte_Ext.Scr", dossier_ / "ouverte_Int.Scr"};
    CliqueSur(resultats, "Points");
    EXPECT_EQ(LitFichierEntier(dossier_ / "ouverte.Pnt"), ComposeFichierPoints());
    CliqueSur(resultats, "Scripts");
    EXPECT_EQ(LitFichierEntier(dossier_ / "ouverte_Int.Scr"), ComposeScriptInterieur());

    // A number typed and not calculated with is, before anything of it goes out.
    FrappeDans(resultats, "Text5", "14");
    dialogues_.fichiers = {dossier_ / "galet.Pnt"};
    CliqueSur(resultats, "Points");
    EXPECT_EQ(LitFichierEntier(dossier_ / "galet.Pnt").rfind("Rayon du galet ,14\r\n", 0), 0U);
    EXPECT_EQ(etude.donnees.RayonGalet, 14);
    FrappeDans(resultats, "Text6", "0");
    CliqueSur(resultats, "Scripts");
    EXPECT_EQ(DerniereBoite(), Texte(200));
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
    EXPECT_EQ(S(remarques->text()).rfind(Texte(TextePasUnTour) + " 350 ", 0), 0U);
    EXPECT_TRUE(dialogues_.boites.empty());
}
