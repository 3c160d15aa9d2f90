// The law studies as the main window opens, saves, prints and closes them.
#include "data/TextesSaisie.h"
#include "laws/FichierLoi.h"
#include "outils/FenetrePrincipale.h"
#include "widgets/ApercuImpression.h"

using LoisFenetre = FenetrePrincipale;

TEST_F(LoisFenetre, ALawIsChosenStudiedSavedAndPrinted) {
    Lance("FichierClasiquesLoisStad",
          [](QDialog& choix) { QTest::keyClick(Controle<QAbstractButton>(choix, "Image10"), Qt::Key_Return); });
    QWidget& ecran = Ecran("LoiMouv");
    EXPECT_EQ(S(ecran.windowTitle()), "Sinus Modifié 33% à vitesse constante");
    EXPECT_EQ(etude.donnees.TypeLoi, "LoiMouv");
    TapeTout(ecran, {{"Text1", "90"}, {"Text3", "40"}, {"Text4", "120"}});
    CliqueSur(ecran, "Calculer");
    dialogues_.saisies = {"2"};
    dialogues_.fichiers = {dossier_ / "loi.Lmi"};
    Lance("FichierSauvegarde");
    EXPECT_TRUE(std::filesystem::exists(dossier_ / "loi.Lmi"));
    int pages = 0;
    Lance("FicImprimerImprimer",
          [&pages](QDialog& dialogue) { pages = dynamic_cast<ApercuImpression&>(dialogue).NombrePages(); });
    EXPECT_EQ(pages, 3) << "data with graphs, and 91 points";

    // Another law takes the place of this one, and leaves nothing of it to save or print.
    Lance("Hesser");
    EXPECT_FALSE(Ouvert("LoiMouv"));
    EXPECT_TRUE(etude.donnees.LoiHesActive);
    Lance("FichierSauvegarde");
    EXPECT_EQ(dialogues_.Derniere(), Texte(23));
    EXPECT_FALSE(Imprime());
    EXPECT_EQ(dialogues_.Derniere(), Texte(135));
}

TEST_F(LoisFenetre, ALawThatALawFileCutFromTheCatalogueSaysSo) {
    std::string contenu;
    for (int i = 0; i < 722; ++i) contenu += "1;0;0\r\n";
    LitLoi(contenu);
    Lance("Cycloide");
    CliqueSur(Ecran("LoiMouv"), "Calculer");
    EXPECT_EQ(dialogues_.Derniere(), Texte(521) + " CYC " + Texte(103) + "\n" + Texte(TexteLoisAuDemarrage));
}
