// The road of a language: made in the editor, translated by a file, offered at the next start, worked in, deleted.
#include "app/MdiCamA.h"
#include "core/FichierEntier.h"
#include "outils/Clavier.h"
#include "outils/DialoguesScript.h"
#include "outils/LangueLongue.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

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
        const auto fichier = base_.Dossier() / "longue.tsv";
        JeuEnregistrements textes = LaBase.OuvreTable(TableTextes);
        EcritFichierEntier(fichier, FichierLangueLongue(textes));
        dialogues_.fichiers = {fichier};
        CliqueSur(editeur, "Importer");
        EXPECT_TRUE(dialogues_.boites.empty());
        EXPECT_FALSE(Offertes(mdi).contains(NomLangueLongue)) << "at the next start";
    }
    MdiCamA mdi{configuration};
    EXPECT_EQ(Offertes(mdi).back(), NomLangueLongue);
    OuvreEditeur(mdi);
    dialogues_.saisies = {"U"};
    mdi.findChildren<QAction*>("FichierLanguesDisponibles").back()->trigger();
    LaisseFaire();
    EXPECT_EQ(LangueTravail, NomLangueLongue);
    EXPECT_EQ(mdi.EcranOuvert("Persona"), nullptr) << "closed as every screen";
    EXPECT_EQ(S(mdi.windowTitle()), Allonge("Velorin - Calcul de cames et de mécanismes intermittents"));

    // Deleted while it is worked in, it is gone at the next start only.
    QWidget& autre = OuvreEditeur(mdi);
    Controle<QListWidget>(autre, "List2")->setCurrentRow(3);
    dialogues_.reponses = {true};
    CliqueSur(autre, "SupprimeLangue");
    EXPECT_NE(S(autre.windowTitle()).find("TTr"), std::string::npos);
    ChargeTextes(LaBase);
    EXPECT_EQ(LangueTravail, "Español");
}

TEST_F(RouteLangue, AWordingGivenUpWithItsWindowIsTakenBack) {
    JeuEnregistrements textes = LaBase.OuvreTable(TableTextes);
    AjouteLangue(LaBase, textes, "Italiano");
    MdiCamA mdi{Configuration{{}, LangueTravail}};
    QWidget& editeur = OuvreEditeur(mdi);
    Controle<QListWidget>(editeur, "List2")->setCurrentRow(3);
    FrappeDans(editeur, "Text4", "Si, certo");
    mdi.OuvreFichier(CheminAppli / NomDossierEtudes / "Exemple.Ang");
    EXPECT_EQ(mdi.EcranOuvert("Persona"), nullptr);
    mdi.Reprendre();
    LaisseFaire();
    QWidget* repris = mdi.EcranOuvert("Persona");
    ASSERT_NE(repris, nullptr);
    EXPECT_EQ(Controle<QPlainTextEdit>(*repris, "Text4")->toPlainText(), "Si, certo");
    CliqueSur(*repris, "Sauver");
    textes = LaBase.OuvreTable(TableTextes);
    EXPECT_EQ(TexteDeLangue(textes, "Italiano", 1), "Si, certo");
}
