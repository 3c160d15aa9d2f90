#include "app/Aide.h"

#include "app/MdiCamA.h"
#include "data/Demarrage.h"
#include "help/screens/VisionneuseAide.h"
#include "outils/Clavier.h"
#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"

#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeWidget>

namespace {

class AideDuProgramme : public testing::Test {
protected:
    DialoguesScript dialogues_;
    MdiCamA mdi_{Configuration{{true, true, true, true, true, true, true}, "Français"}};

    AideDuProgramme() {
        ChoisitAide();
        mdi_.show();
        LaisseFaire();
    }

    /// The help window, once it is open.
    static VisionneuseAide* Fenetre() {
        for (QWidget* fenetre : QApplication::topLevelWidgets())
            if (auto* aide = qobject_cast<VisionneuseAide*>(fenetre); aide != nullptr && aide->isVisible()) return aide;
        return nullptr;
    }
    static std::string Page() { return Fenetre() == nullptr ? "" : S(Fenetre()->Page()); }
    static void F1(QWidget& controle) {
        QTest::keyClick(&controle, Qt::Key_F1);
        LaisseFaire();
    }
    template <class T> static T* Le(const char* nom) { return Controle<T>(*Fenetre(), nom); }

    /// Clicks the first link to a page.
    static void SuitLien(const char* page) {
        auto* texte = Le<QTextBrowser>("Page");
        for (QTextBlock bloc = texte->document()->begin(); bloc.isValid(); bloc = bloc.next())
            for (auto morceau = bloc.begin(); !morceau.atEnd(); ++morceau) {
                if (morceau.fragment().charFormat().anchorHref() != page) continue;
                QTextCursor curseur(bloc);
                curseur.setPosition(morceau.fragment().position() + 1);
                texte->setTextCursor(curseur);
                texte->ensureCursorVisible();
                QTest::mouseClick(texte->viewport(), Qt::LeftButton, {}, texte->cursorRect(curseur).center());
                return LaisseFaire();
            }
        FAIL() << "no link to " << page;
    }
};

} // namespace

TEST_F(AideDuProgramme, F1OpensThePageOfTheScreen) {
    F1(mdi_);
    EXPECT_EQ(Page(), "accueil");
    const QAbstractItemView* sommaire = Le<QTreeWidget>("Sommaire");
    EXPECT_LE(sommaire->sizeHintForColumn(0), sommaire->viewport()->width()) << "its titles stand whole";
    mdi_.OuvreFichier(std::filesystem::path(VELORIN_DOSSIER) / "Profils" / "Exemple.Ang");
    F1(*mdi_.menuBar());
    EXPECT_EQ(Page(), "Resultat") << "the window in front";
    FenetreEnfant* saisie = mdi_.OuvreEcran("DoCyl");
    F1(*Controle<QLineEdit>(*saisie, "Text10"));
    EXPECT_EQ(Page(), "DoCyl");
}

TEST_F(AideDuProgramme, AModalBoxLeavesItUsable) {
    std::string page, tape;
    QTimer::singleShot(0, qApp, [&] {
        QWidget* boite = QApplication::activeModalWidget();
        F1(*boite->focusWidget());
        page = Page();
        auto* recherche = Le<QLineEdit>("Recherche");
        recherche->setFocus();
        // As the system gives keys, which a box that blocks the window would keep from it.
        QTest::keyClick(Fenetre()->windowHandle(), 'g');
        tape = S(recherche->text());
        QTest::keyClick(mdi_.windowHandle(), Qt::Key_O, Qt::ControlModifier); // would ask for a file
        static_cast<QDialog*>(boite)->reject();
    });
    Controle<QAction>(mdi_, "FichierNouveau")->trigger();
    EXPECT_EQ(page, "CameType");
    EXPECT_EQ(tape, "g");
    EXPECT_NE(Fenetre(), nullptr) << "it outlives the box";
}

TEST_F(AideDuProgramme, WordsAreFoundWithoutTheirAccents) {
    F1(mdi_);
    auto* trouvailles = Le<QListWidget>("Trouvailles");
    QTest::keyClicks(Le<QLineEdit>("Recherche"), "COEFFICIENT de symetrie");
    ASSERT_GT(trouvailles->count(), 5);
    QTest::keyClick(Le<QLineEdit>("Recherche"), Qt::Key_Return);
    QTest::keyClick(trouvailles, Qt::Key_Down);
    auto* page = Le<QTextBrowser>("Page");
    EXPECT_EQ(page->document()->firstBlock().text(), trouvailles->currentItem()->text().section('\n', 0, 0));
    EXPECT_FALSE(page->extraSelections().isEmpty()) << "the words are marked";
}

TEST_F(AideDuProgramme, LinksLeadOnAndBackAndALanguageBringsItsOwnPages) {
    F1(mdi_);
    SuitLien("CameType.md");
    EXPECT_EQ(Page(), "CameType");
    SuitLien("DatoCama.md");
    QTest::keyClick(Fenetre(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Page(), "CameType");
    for (const char* langue : {"English", "Español"}) {
        mdi_.ChangeLangue(langue);
        EXPECT_EQ(Page(), "CameType") << langue;
    }
    EXPECT_EQ(FichierAide().filename(), "CamesEs.chm");
}

TEST_F(AideDuProgramme, AFileThatIsNoHelpIsTold) {
    const DossierTemporaire vide;
    const std::filesystem::path ancien = std::exchange(CheminAppli, vide.Chemin());
    ChoisitAide();
    F1(mdi_);
    vide.Ecrit("CamesFr.chm", std::string(300, 'x'));
    F1(mdi_);
    CheminAppli = ancien;
    ASSERT_EQ(dialogues_.boites.size(), 2U);
    for (const auto& boite : dialogues_.boites) EXPECT_EQ(boite.texte, Texte(138) + " CamesFr.chm");
    EXPECT_EQ(Fenetre(), nullptr);
}
