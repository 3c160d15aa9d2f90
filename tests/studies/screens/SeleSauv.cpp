#include "studies/screens/SeleSauv.h"

#include "core/Etude.h"
#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "outils/Ecrans.h"
#include "studies/FichierEtude.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QSignalSpy>

namespace {

class Sauvegarde : public testing::Test {
protected:
    DialoguesScript dialogues;
    DossierTemporaire dossier;
    SeleSauv ecran{[] { return true; }};

    Sauvegarde() {
        CalculeExemple("Exemple.Ang");
        ecran.show();
    }
    void Nomme(const char* nom) { Controle<QLineEdit>(ecran, "Text1")->setText(nom); }
    void Coche(const char* choix, bool coche) { Controle<QCheckBox>(ecran, choix)->setChecked(coche); }
};

} // namespace

TEST_F(Sauvegarde, ChecksComeBeforeAnyFile) {
    Nomme("");
    CliqueSur(ecran, "Sauvegarde");
    EXPECT_EQ(dialogues.Derniere(), Texte(518));
    Nomme("came");
    Coche("Check1", false);
    CliqueSur(ecran, "Sauvegarde");
    EXPECT_EQ(dialogues.Derniere(), Texte(517));
    EXPECT_TRUE(dialogues.demandes.empty());
    EXPECT_TRUE(ecran.isVisible());
    Coche("Check1", true);
    dialogues.fichiers = {dossier / "absent/came.Ang"};
    CliqueSur(ecran, "Sauvegarde");
    EXPECT_EQ(dialogues.boites.back().icone, Icone::Critique) << "told at the event loop";
    EXPECT_EQ(etude.donnees.NombreZones, 4);
    EXPECT_TRUE(ecran.isVisible()) << "another place can be chosen";
}

TEST_F(Sauvegarde, AllFilesBearOneName) {
    QSignalSpy enregistre(&ecran, &SeleSauv::FichierEnregistre);
    Nomme("came");
    Coche("Check2", true);
    Coche("Check3", true);
    for (const char* nom : {"came.Ang", "came.Pnt", "came_Ext.Scr", "came_Int.Scr"})
        dialogues.fichiers.push_back(dossier / nom);
    CliqueSur(ecran, "Sauvegarde");
    EXPECT_EQ(enregistre.count(), 1);
    EXPECT_FALSE(ecran.isVisible());
    EXPECT_EQ(dossier.NombreFichiers(), 4);

    // Opened and saved again, the file is the same.
    ASSERT_TRUE(LitFichierEtude(dossier / "came.Ang"));
    EXPECT_EQ(ComposeFichierEtude(*TrouveType("Angulaire"), '.'), LitBrut(dossier / "came.Ang"));
}
