// The law studies as the main window opens, saves, prints and closes them.
#include "app/BureauEcrans.h"
#include "app/MdiCamA.h"
#include "core/Etude.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "data/TextesSaisie.h"
#include "laws/FichierLoi.h"
#include "laws/screens/QuelLoi.h"
#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "outils/Ecrans.h"
#include "widgets/ApercuImpression.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"

#include <QAbstractButton>
#include <QAction>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

class LoisFenetre : public testing::Test {
protected:
    DialoguesScript dialogues_;
    MdiCamA mdi_{Configuration{{true, true, true, true, true, true, true}, "Français"}};

    LoisFenetre() {
        mdi_.show();
        LaisseFaire();
    }

    void Declenche(const char* action) {
        Controle<QAction>(mdi_, action)->trigger();
        LaisseFaire();
    }
};

} // namespace

TEST_F(LoisFenetre, LawIsStudiedSavedAndPrintedFromTheMenus) {
    QTimer::singleShot(0, &mdi_, [this] {
        QTest::keyClick(Controle<QAbstractButton>(*Controle<QuelLoi>(mdi_, "QuelLoi"), "Image10"), Qt::Key_Return);
    });
    Declenche("FichierClasiquesLoisStad");
    QWidget* ecran = mdi_.EcranOuvert("LoiMouv");
    ASSERT_NE(ecran, nullptr);
    EXPECT_EQ(S(ecran->windowTitle()), "Sinus Modifié 33% à vitesse constante");
    EXPECT_TRUE(etude.donnees.LoiMouvActive);
    EXPECT_EQ(etude.donnees.TypeLoi, "LoiMouv");

    Declenche("FichierSauvegarde");
    Declenche("FicImprimerImprimer");
    ASSERT_EQ(dialogues_.boites.size(), 2U);
    EXPECT_EQ(dialogues_.boites[0].texte, Texte(23));
    EXPECT_EQ(dialogues_.boites[1].texte, Texte(135));

    for (const auto& [champ, texte] : {std::pair{"Text1", "90"}, {"Text3", "40"}, {"Text4", "120"}})
        TapeDans(*ecran, champ, texte);
    CliqueSur(*ecran, "Calculer");
    const DossierTemporaire dossier;
    dialogues_.saisies = {"2"};
    dialogues_.fichiers = {dossier.Chemin() / "loi.Lmi"};
    Declenche("FichierSauvegarde");
    EXPECT_TRUE(std::filesystem::exists(dossier.Chemin() / "loi.Lmi"));
    int pages = 0;
    QTimer::singleShot(0, &mdi_, [&] {
        auto* apercu = mdi_.findChild<ApercuImpression*>();
        if (apercu == nullptr) return;
        pages = apercu->NombrePages();
        apercu->reject();
    });
    Declenche("FicImprimerImprimer");
    EXPECT_EQ(pages, 3) << "data with graphs, and 91 points";

    // Another law takes the place of this one; its way back leaves nothing to save.
    Declenche("Hesser");
    EXPECT_EQ(mdi_.EcranOuvert("LoiMouv"), nullptr);
    EXPECT_FALSE(etude.donnees.LoiMouvActive);
    ASSERT_NE(mdi_.EcranOuvert("LoiHes"), nullptr);
    EXPECT_TRUE(etude.donnees.LoiHesActive);
    EXPECT_EQ(etude.lois.LoiChoisie, "MSC33");
    CliqueSur(*mdi_.EcranOuvert("LoiHes"), "Retour");
    EXPECT_EQ(mdi_.EcranOuvert("LoiHes"), nullptr);
    EXPECT_FALSE(etude.donnees.LoiHesActive);
    EXPECT_EQ(etude.donnees.TypeLoi, "");
}

TEST_F(LoisFenetre, StudyThatIsClosedLeavesNothingToSaveOrPrint) {
    const auto ferme = [this](int comment) {
        dialogues_.fichiers = {CheminAppli / "Absent.Ang"};
        comment == 0 ? Declenche("FichierOuvrir") : mdi_.ChangeLangue("Français");
    };
    for (const int comment : {0, 1}) {
        Declenche("Hesser");
        for (const auto& [champ, texte] : {std::pair{"Text1", "90"}, {"Text2", "40"}, {"Text3", "120"}})
            TapeDans(*mdi_.EcranOuvert("LoiHes"), champ, texte);
        CliqueSur(*mdi_.EcranOuvert("LoiHes"), "Calculer");
        ASSERT_TRUE(etude.resultats.EtudeModifiee);
        ferme(comment);
        dialogues_.boites.clear();
        Declenche("FichierSauvegarde");
        Declenche("FicImprimerImprimer");
        ASSERT_EQ(dialogues_.boites.size(), 2U);
        EXPECT_EQ(dialogues_.boites[0].texte, Texte(23));
        EXPECT_EQ(dialogues_.boites[1].texte, Texte(135));
    }
}

TEST_F(LoisFenetre, SavingAndPrintingGoToTheLawThatIsOpenWhateverIsInFront) {
    Declenche("Hesser");
    FenetreEnfant* loi = mdi_.EcranOuvert("LoiHes");
    const FenetreEnfant* saisie = mdi_.OuvreEcran("DatoCama");
    LaisseFaire();
    EXPECT_TRUE(saisie->EnAvant());
    EXPECT_FALSE(loi->EnAvant());
    const auto* bureau = Controle<BureauEcrans>(mdi_, "Bureau");
    EXPECT_EQ(bureau->Active(), loi);

    // Another study of the record leaves it nothing to save.
    etude.donnees.TypeLoi.clear();
    EXPECT_EQ(bureau->Active(), nullptr);
    etude.donnees.TypeLoi = "LoiHesser";
    loi->Revient();
    LaisseFaire();
    EXPECT_EQ(mdi_.EcranOuvert("LoiHes"), nullptr);
    EXPECT_EQ(bureau->Active(), nullptr);
    EXPECT_TRUE(saisie->EnAvant());
}

TEST_F(LoisFenetre, EveryKeyOpensItsStudy) {
    const std::pair<const char*, const char*> cles[] = {{"Cycloide", "LoiMouv"}, {"MSPerso", "LoiMouv"},
                                                        {"MSHC50", "LoiMouv"},   {"MSHDissyme", "LoiMSHDis"},
                                                        {"Liquides", "LoisLiq"}, {"AvanceRapide", "LoiSpe"}};
    for (const auto& [cle, ecran] : cles) {
        Declenche(cle);
        EXPECT_NE(mdi_.EcranOuvert(ecran), nullptr) << cle;
    }
}

TEST_F(LoisFenetre, LawThatALawFileCutFromTheCatalogueSaysSo) {
    std::string contenu;
    for (int i = 0; i < 722; ++i) contenu += "1;0;0\r\n";
    LitLoi(contenu);
    Declenche("Cycloide");
    QWidget* ecran = mdi_.EcranOuvert("LoiMouv");
    ASSERT_NE(ecran, nullptr);
    CliqueSur(*ecran, "Calculer");
    ASSERT_EQ(dialogues_.boites.size(), 1U);
    EXPECT_EQ(dialogues_.boites.front().texte, Texte(521) + " CYC " + Texte(103) + "\n" + Texte(TexteLoisAuDemarrage));
}
