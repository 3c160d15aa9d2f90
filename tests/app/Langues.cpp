// The road of a language: made in the editor, translated by a file, offered at the next start, worked in, deleted.
#include "app/MdiCamA.h"
#include "core/FichierEntier.h"
#include "outils/Clavier.h"
#include "outils/DialoguesScript.h"
#include "outils/LangueLongue.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"

#include <QAction>
#include <QListWidget>

namespace {

class RouteLangue : public testing::Test {
protected:
    DialoguesScript dialogues_;
    BaseAEcrire base_;

    static QStringList Offertes(MdiCamA& mdi) {
        QStringList langues;
        for (const QAction* action : mdi.findChildren<QAction*>("FichierLanguesDisponibles")) langues << action->text();
        return langues;
    }
    static QWidget& OuvreEditeur(MdiCamA& mdi) {
        mdi.show();
        Controle<QAction>(mdi, "FichierLanguesModification")->trigger();
        LaisseFaire();
        return *mdi.EcranOuvert("Persona");
    }
};

} // namespace

TEST_F(RouteLangue, ALanguageIsMadeTranslatedWorkedInAndDeleted) {
    const Configuration configuration{{}, LangueTravail};
    {
        MdiCamA mdi{configuration};
        QWidget& editeur = OuvreEditeur(mdi);
        dialogues_.reponses = {true};
        FrappeDans(editeur, "Text3", NomLangueLongue);
        Retour(editeur);
        Touche(editeur, Qt::Key_Space);
        JeuEnregistrements textes = LaBase.OuvreTable(TableTextes);
        dialogues_.fichiers = {base_.Dossier() / "longue.tsv"};
        EcritFichierEntier(*dialogues_.fichiers[0], FichierLangueLongue(textes));
        CliqueSur(editeur, "Importer");
        EXPECT_TRUE(dialogues_.boites.empty());
        EXPECT_FALSE(Offertes(mdi).contains(NomLangueLongue)) << "at the next start";
    }
    ChargeTextes(LaBase); // the next start
    MdiCamA mdi{configuration};
    EXPECT_EQ(Offertes(mdi).back(), NomLangueLongue);
    OuvreEditeur(mdi);
    dialogues_.saisies = {"U"}; // the help
    mdi.findChildren<QAction*>("FichierLanguesDisponibles").back()->trigger();
    LaisseFaire();
    EXPECT_EQ(S(mdi.windowTitle()), Allonge("Velorin - Calcul de cames et de mécanismes intermittents"));

    // Deleted while it is worked in, it is gone at the next start only.
    QWidget& editeur = OuvreEditeur(mdi);
    Controle<QListWidget>(editeur, "List2")->setCurrentRow(3);
    dialogues_.reponses = {false, true};
    CliqueSur(editeur, "SupprimeLangue");
    EXPECT_EQ(Controle<QListWidget>(editeur, "List2")->count(), 4);
    CliqueSur(editeur, "SupprimeLangue");
    EXPECT_EQ(Controle<QListWidget>(editeur, "List2")->count(), 3);
    EXPECT_EQ(Texte(3), "OOK");
    ChargeTextes(LaBase);
    EXPECT_EQ(LangueTravail, "Español");
}
