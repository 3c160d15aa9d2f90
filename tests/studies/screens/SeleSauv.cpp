#include "studies/screens/SeleSauv.h"

#include "core/Etude.h"
#include "core/FichierEntier.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "outils/DialoguesScript.h"
#include "outils/Ecrans.h"
#include "studies/FichierEtude.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

class Sauvegarde : public testing::Test {
protected:
    DialoguesScript dialogues;
    std::filesystem::path dossier = std::filesystem::path(testing::TempDir()) / "velorin-sauvegarde";

    Sauvegarde() {
        std::filesystem::create_directory(dossier);
        EXPECT_TRUE(LitFichierEtude(CheminAppli / "Profils" / "Exemple.Ang"));
        CalculeEtude();
    }
    ~Sauvegarde() override { std::filesystem::remove_all(dossier); }
};

} // namespace

TEST_F(Sauvegarde, ChecksComeBeforeAnyFile) {
    SeleSauv ecran{[] { return true; }};
    ecran.show();
    EXPECT_EQ(Controle<QLineEdit>(ecran, "Text1")->text(), "Exemple");
    Controle<QLineEdit>(ecran, "Text1")->clear();
    CliqueSur(ecran, "Sauvegarde");
    EXPECT_EQ(dialogues.boites.back().texte, Texte(518));
    Controle<QLineEdit>(ecran, "Text1")->setText("came");
    Controle<QCheckBox>(ecran, "Check1")->setChecked(false);
    CliqueSur(ecran, "Sauvegarde");
    EXPECT_EQ(dialogues.boites.back().texte, Texte(517));
    EXPECT_TRUE(dialogues.demandes.empty());
    EXPECT_TRUE(ecran.isVisible());
}

TEST_F(Sauvegarde, AllFilesBearOneName) {
    SeleSauv ecran{[] { return true; }};
    ecran.show();
    QSignalSpy enregistre(&ecran, &SeleSauv::FichierEnregistre);
    Controle<QLineEdit>(ecran, "Text1")->setText("came");
    Controle<QCheckBox>(ecran, "Check2")->setChecked(true);
    Controle<QCheckBox>(ecran, "Check3")->setChecked(true);
    dialogues.fichiers = {dossier / "came.Ang", dossier / "came.Pnt", dossier / "came_Ext.Scr",
                          dossier / "came_Int.Scr"};
    CliqueSur(ecran, "Sauvegarde");
    EXPECT_EQ(enregistre.count(), 1);
    EXPECT_FALSE(ecran.isVisible());
    for (const char* nom : {"came.Ang", "came.Pnt", "came_Ext.Scr", "came_Int.Scr"})
        EXPECT_TRUE(std::filesystem::exists(dossier / nom)) << nom;

    // Opened and saved again, the file is the same but for the date.
    const std::string premier = LitFichierEntier(dossier / "came.Ang");
    ASSERT_TRUE(LitFichierEtude(dossier / "came.Ang"));
    EXPECT_EQ(ComposeFichierEtude(*TrouveType("Angulaire"), '.'), premier);
}

TEST_F(Sauvegarde, AFileThatCannotBeWrittenKeepsTheStudy) {
    dialogues.fichiers = {dossier / "absent" / "came.Ang"};
    SeleSauv ecran{[] { return true; }};
    ecran.show();
    CliqueSur(ecran, "Sauvegarde");
    ASSERT_FALSE(dialogues.boites.empty()) << "told at the event loop";
    EXPECT_EQ(dialogues.boites.back().icone, Icone::Critique);
    EXPECT_EQ(etude.donnees.NombreZones, 4);
    EXPECT_TRUE(ecran.isVisible()) << "another place can be chosen";
}
