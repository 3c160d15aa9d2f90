// The first page: one click to every study, and room for what stands on a small display.
#include "app/CameType.h"
#include "app/MdiCamA.h"
#include "app/PageAccueil.h"
#include "data/Demarrage.h"
#include "laws/ChoixLois.h"
#include "outils/DialoguesScript.h"
#include "outils/Ecrans.h"
#include "studies/TypesEtude.h"
#include "widgets/BoutonImage.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"
#include "widgets/ZoneDefilante.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>

namespace {

constexpr const char* Langues[] = {"Français", "Español", "English"};

class Accueil : public testing::Test {
protected:
    DialoguesScript dialogues_;
    MdiCamA mdi_{Configuration{{}, LangueTravail}};

    Accueil() {
        mdi_.show();
        LaisseFaire();
    }
    QWidget& Page() { return *Controle<QWidget>(mdi_, "Accueil"); }
    QStringList Liens(const char* nom) {
        QStringList textes;
        for (const auto* lien : Page().findChildren<QPushButton*>(nom)) textes << lien->text();
        return textes;
    }
    void Clique(QWidget* controle) {
        QTest::mouseClick(controle, Qt::LeftButton);
        LaisseFaire();
    }
    /// Brings the window to the room that a display of 1280 x 720 leaves below a title bar.
    void Retrecit() {
        mdi_.resize(1280, 690);
        LaisseFaire();
    }
    /// No sheet of the screen scrolls, and the screen stands on the desk whole.
    void AttendTient(const char* ecran, const std::string& quoi) {
        FenetreEnfant* fenetre = mdi_.EcranOuvert(ecran);
        ASSERT_NE(fenetre, nullptr) << quoi;
        for (const QScrollArea* feuille : fenetre->findChildren<QScrollArea*>()) {
            const QSize manque = feuille->widget()->minimumSizeHint() - feuille->viewport()->size();
            EXPECT_FALSE(feuille->verticalScrollBar()->isVisible()) << quoi << " " << manque.height();
            EXPECT_FALSE(feuille->horizontalScrollBar()->isVisible()) << quoi << " " << manque.width();
        }
        auto* bureau = Controle<QMdiArea>(mdi_, "Bureau");
        EXPECT_TRUE(bureau->viewport()->rect().contains(fenetre->parentWidget()->geometry())) << quoi;
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
        ASSERT_NE(mdi_.EcranOuvert(choix.Ecran()), nullptr) << choix.image;
        EXPECT_FALSE(Page().isVisible());
        mdi_.FermeEcrans();
        LaisseFaire();
        EXPECT_TRUE(Page().isVisible()) << "the page is back when the desk is empty";
    }
}

TEST_F(Accueil, ExamplesAndRecentFilesAreOneClickAway) {
    EXPECT_EQ(Liens("Exemple"), (QStringList{"Balancier.Osc", "Barillet.Cyl", "Conjuguees.Cjg", "Deux-tours.Cyl",
                                             "Exemple.Ang", "Translation.Lin"}));
    EXPECT_TRUE(Liens("Recent").isEmpty());
    Clique(Page().findChildren<QPushButton*>("Exemple")[1]);
    EXPECT_EQ(etude.donnees.NomFichier, "Barillet.Cyl");
    EXPECT_NE(mdi_.EcranOuvert("Resultat"), nullptr);
    // Results that hide a data screen are no empty desk.
    CliqueSur(*mdi_.EcranOuvert("Resultat"), "Quitter");
    EXPECT_FALSE(Page().isVisible());
    TapeDans(*mdi_.EcranOuvert("DoCyl"), "Text3", "41");
    CliqueSur(*mdi_.EcranOuvert("DoCyl"), "Retour");
    EXPECT_EQ(Liens("Recent"), QStringList{"Barillet.Cyl"});
    Clique(Controle<QPushButton>(Page(), "AccueilFichierReprendre"));
    EXPECT_NE(mdi_.EcranOuvert("DoCyl"), nullptr) << "what was given up is one click away too";
    mdi_.FermeEcrans();
    Clique(Page().findChildren<QPushButton*>("Recent")[0]);
    EXPECT_NE(mdi_.EcranOuvert("Resultat"), nullptr);
}

TEST_F(Accueil, NothingIsCutInAnyLanguage) {
    for (const char* langue : Langues) {
        mdi_.ChangeLangue(langue);
        Retrecit();
        for (const auto& coupee : LegendesCoupees(Page())) ADD_FAILURE() << langue << " " << coupee;
        EXPECT_FALSE(qobject_cast<QScrollArea*>(&Page())->verticalScrollBar()->isVisible()) << langue;
        EXPECT_FALSE(qobject_cast<QScrollArea*>(&Page())->horizontalScrollBar()->isVisible()) << langue;
    }
}

TEST_F(Accueil, TheToolkitSpeaksTheWorkingLanguage) {
    const char* const attendus[] = {"Annuler", "Cancelar", "Cancel"};
    for (int i = 0; i < 3; ++i) {
        mdi_.ChangeLangue(Langues[i]);
        QDialogButtonBox boite(QDialogButtonBox::Cancel);
        EXPECT_EQ(S(boite.button(QDialogButtonBox::Cancel)->text().remove('&')), attendus[i]);
    }
}

TEST_F(Accueil, LawStudiesAndResultsFitOnASmallDisplay) {
    for (const char* langue : Langues) {
        mdi_.ChangeLangue(langue);
        for (const ChoixLoi& choix : LesChoixLois()) {
            mdi_.FermeEcrans();
            Retrecit();
            mdi_.EtudieLoi(choix);
            mdi_.resize(1280, 690); // it may have grown on a larger display
            LaisseFaire();
            auto* cadre = mdi_.EcranOuvert(choix.ecran)->parentWidget();
            cadre->setGeometry(Controle<QMdiArea>(mdi_, "Bureau")->viewport()->rect());
            LaisseFaire();
            AttendTient(choix.ecran, std::string(langue) + " " + choix.cle);
        }
        for (const std::filesystem::path& exemple : LesExemples()) {
            mdi_.OuvreAutre(exemple);
            mdi_.resize(1280, 690);
            LaisseFaire();
            const char* ecran = TrouveTypeFichier(exemple)->ecranResultats;
            mdi_.EcranOuvert(ecran)->parentWidget()->setGeometry(
                Controle<QMdiArea>(mdi_, "Bureau")->viewport()->rect());
            LaisseFaire();
            AttendTient(ecran, langue + exemple.filename().string());
        }
    }
}

TEST_F(Accueil, TheStatusLineStaysOnTheDisplay) {
    // Half of 1280 x 720 is what a scale of 200 % leaves of it.
    mdi_.resize(640, 330);
    mdi_.OuvreFichier(CheminAppli / NomDossierEtudes / "Exemple.Ang");
    mdi_.resize(640, 330);
    LaisseFaire();
    EXPECT_LE(mdi_.height(), 330);
    EXPECT_LE(mdi_.width(), 640);
    EXPECT_GE(mdi_.statusBar()->geometry().height(), 15);
    // A window that grows for its child stays on the display with its frame.
    mdi_.EtudieLoi(*TrouveChoixLoi("MSPerso"));
    LaisseFaire();
    EXPECT_TRUE(mdi_.screen()->availableGeometry().contains(mdi_.frameGeometry()));
}
