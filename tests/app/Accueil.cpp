// The first page: one click to every study.
#include "app/CameType.h"
#include "app/PageAccueil.h"
#include "outils/FenetrePrincipale.h"
#include "widgets/BoutonImage.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QStatusBar>

namespace {

class Accueil : public FenetrePrincipale {
protected:
    QWidget& Page() { return *Controle<QWidget>(*mdi_, "Accueil"); }
    QList<QPushButton*> Liens(const char* nom) { return Page().findChildren<QPushButton*>(nom); }
    static void Clique(QWidget* controle) {
        QTest::mouseClick(controle, Qt::LeftButton);
        LaisseFaire();
    }
};

} // namespace

TEST_F(Accueil, AKindOfStudyIsOneClickAway) {
    ASSERT_TRUE(Page().isVisible());
    for (const ChoixEtude& choix : LesChoixEtude()) {
        auto* image = Controle<BoutonImage>(Page(), (std::string("Accueil") + choix.image).c_str());
        EXPECT_EQ(image->isEnabled(), choix.Disponible()) << choix.image;
        if (!choix.Disponible()) continue;
        Clique(image);
        EXPECT_TRUE(Ouvert(choix.Ecran())) << choix.image;
        mdi_->FermeEcrans();
        LaisseFaire();
        EXPECT_TRUE(Page().isVisible()) << "the page is back when the desk is empty";
    }
}

TEST_F(Accueil, ExamplesAndRecentFilesAreOneClickAway) {
    EXPECT_EQ(Liens("Exemple").size(), static_cast<qsizetype>(LesExemples().size()));
    EXPECT_TRUE(Liens("Recent").isEmpty());
    Clique(Liens("Exemple")[1]);
    EXPECT_EQ(etude.donnees.NomFichier, "Barillet.Cyl");
    // Results that hide a data screen are no empty desk.
    CliqueSur(Ecran("Resultat"), "Quitter");
    EXPECT_FALSE(Page().isVisible());
    CliqueSur(Ecran("DoCyl"), "Retour");
    Clique(Liens("Recent")[0]);
    EXPECT_TRUE(Ouvert("Resultat"));
}

TEST_F(Accueil, TheStatusLineStaysOnASmallDisplayAndTheToolkitSpeaksTheLanguage) {
    // Half of 1280 x 720 is what a scale of 200 % leaves of it.
    Ouvre("Exemple.Ang");
    mdi_->resize(640, 330);
    LaisseFaire();
    EXPECT_EQ(mdi_->size().boundedTo({640, 330}), mdi_->size());
    EXPECT_GE(mdi_->statusBar()->geometry().height(), 15);
    mdi_->ChangeLangue("Español");
    QDialogButtonBox boite(QDialogButtonBox::Cancel);
    EXPECT_EQ(S(boite.button(QDialogButtonBox::Cancel)->text().remove('&')), "Cancelar");
}
