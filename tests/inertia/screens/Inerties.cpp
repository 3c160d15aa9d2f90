#include "inertia/screens/Inerties.h"

#include "data/Textes.h"
#include "inertia/TextesInertie.h"
#include "outils/DossierTemporaire.h"
#include "outils/EcranDeSaisie.h"
#include "widgets/ChampNombre.h"
#include "widgets/Grille.h"

#include <QAction>
#include <QClipboard>
#include <QRadioButton>

namespace {

class EcranInerties : public EcranDeSaisie<Inerties> {
protected:
    void Choisit(const char* solide) { Le<QAction>(solide)->trigger(); }
    void CliqueOption(const char* option) {
        auto* bouton = Le<QRadioButton>(option);
        QTest::mouseClick(bouton, Qt::LeftButton, Qt::NoModifier, QPoint(6, bouton->height() / 2));
    }
    /// Types over what a field holds, without Return.
    void TapeTouches(const char* champ, const char* touches) {
        auto* zone = Le<ChampNombre>(champ);
        zone->setFocus(Qt::TabFocusReason);
        zone->selectAll();
        QTest::keyClicks(zone, QString::fromUtf8(touches));
    }
    std::string Etiquette(const char* nom) { return Le<QLabel>(nom)->text().toStdString(); }
    std::vector<std::string> Resultats() {
        return {Etiquette("Label14"), Etiquette("Label17"), Etiquette("Label21"), Etiquette("Label22")};
    }
    bool EnFaute(const char* champ) { return Le<ChampNombre>(champ)->EnFaute(); }
    bool Montre(const char* nom) { return Le<QWidget>(nom)->isVisible(); }
    std::string Cellule(int ligne, int colonne) { return EcranDeSaisie::Cellule(ligne, colonne, "Grille1"); }
    std::vector<std::string> Totaux(int colonne = 0) {
        std::vector<std::string> totaux;
        for (int i = 0; i < 4; ++i) totaux.push_back(EcranDeSaisie::Cellule(i, colonne, "Grille2"));
        return totaux;
    }
    void AjoutePlateau() {
        Choisit("M_ObjetCentrePlateau");
        Tape({{"Text1", "2"}, {"Text2", "1"}, {"Text3", "12.5"}, {"Text6", "320"}, {"Text8", "25"}});
        Clique("Plus");
    }
};

using Textes = std::vector<std::string>;

} // namespace

TEST_F(EcranInerties, TheTabKeyGoesFromTopToBottom) {
    Le<QWidget>("Text2")->setFocus(Qt::TabFocusReason);
    QTest::keyClick(ecran->focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(AFocus("MasseTotal"));
    QTest::keyClick(ecran->focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(AFocus("Text3"));
}

TEST_F(EcranInerties, RunsFromKeyToKeyIntoTheList) {
    SuitReturn({"Text1", "Text2", "Text3", "Text6", "Text8", "Plus"});
    Le<QWidget>("Text1")->setFocus(Qt::TabFocusReason);
    for (const char* touches : {"3", "\r", "2", "\r", "12,5", "\r", "320", "\r"})
        QTest::keyClicks(ecran->focusWidget(), touches);
    EXPECT_EQ(Resultats(), (Textes{"", "", "", ""})); // the height is missing
    QTest::keyClicks(ecran->focusWidget(), "2");
    EXPECT_EQ(Resultats(), (Textes{"38", ".12", ".", "."}));
    EXPECT_EQ(Etiquette("ExactLabel14"), "37.5");
    QTest::keyClicks(ecran->focusWidget(), "5\r");
    EXPECT_EQ(TexteDe("Text1") + " " + TexteDe("Text2") + " " + TexteDe("Text3") + " " + TexteDe("Text8"),
              "3 2 12.5 25");
    ASSERT_TRUE(AFocus("Plus"));
    QTest::keyClick(ecran->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Cellule(0, 1) + " " + Cellule(0, 2) + " " + Cellule(0, 8) + " " + Cellule(0, 14), "38. .12 12.5 1");
    EXPECT_EQ(Totaux(), (Textes{"38.", ".12", "0", "0"}));
    EXPECT_EQ(Totaux(1), (Textes{"37.5", ".12", "0", "0"}));
    EXPECT_TRUE(AFocus("Text1"));
    EXPECT_EQ(TexteDe("Text6"), "320"); // the same solid can be added again
}

TEST_F(EcranInerties, AFieldThatIsMissingIsMarkedAndNothingOldIsAdded) {
    AjoutePlateau();
    auto* diametre = Le<ChampNombre>("Text6");
    diametre->setFocus(Qt::TabFocusReason);
    QTest::keyClick(diametre, Qt::Key_Delete);
    EXPECT_TRUE(EnFaute("Text6"));
    EXPECT_EQ(Resultats().front(), "25"); // as they were
    EXPECT_TRUE(Montre("NoteResultats"));
    Clique("Plus");
    EXPECT_EQ(ecran->Liste().lignes.size(), 1U);
    EXPECT_TRUE(AFocus("Text6"));
    TapeTouches("Text6", "100");
    EXPECT_FALSE(EnFaute("Text6"));
    EXPECT_TRUE(dialogues.boites.empty());
}

TEST_F(EcranInerties, TheAngleThatIsNotCountedIsSaidBesideTheFriction) {
    const auto note = [this](const char* nom) { return Montre(nom) ? Etiquette(nom) : std::string(); };
    Choisit("M_ObjetDiversDesequilibre");
    Tape({{"Text1", "2"}, {"Text2", "1.5"}, {"Text3", "4"}, {"Text5", "150"}});
    EXPECT_EQ(Resultats().back(), "7.85"); // 2 · 4 · 9.81 · 0.15 / 1.5, the level arm
    EXPECT_EQ(note("NoteResultats"), "");
    TapeTouches("Text8", "37.5");
    EXPECT_EQ(Resultats().back(), "7.85");
    const std::string texte = "L'angle ß ne compte pas : le couple de friction est celui du bras R horizontal. ";
    EXPECT_EQ(note("NoteResultats"), texte + "Avec l'angle ß : 6.23 Nm"); // 7.848 · cos 37.5°
    EXPECT_EQ(note("NoteTotaux"), "");
    Clique("Plus");
    EXPECT_EQ(note("NoteTotaux"), texte + "Avec l'angle ß : 6.23 Nm");
    // a field that came to be at fault has the older remark, and its digits bring this one back
    TapeTouches("Text5", "-");
    EXPECT_EQ(note("NoteResultats").find("angle"), std::string::npos);
    TapeTouches("Text5", "300");
    EXPECT_EQ(note("NoteResultats"), texte + "Avec l'angle ß : 12.45 Nm");
    TapeTouches("Text8", "270");
    EXPECT_EQ(note("NoteResultats"), texte + "Avec l'angle ß : 0.00 Nm");
    // what stands level adds to both alike
    TapeTouches("Text8", "360");
    EXPECT_EQ(note("NoteResultats"), "");
    Clique("Plus");
    EXPECT_EQ(note("NoteTotaux"), texte + "Avec l'angle ß : 21.92 Nm"); // 6.226 + 15.696
    Le<Grille>("Grille1")->selectRow(0);
    Clique("Moins");
    EXPECT_EQ(note("NoteTotaux"), "");
    Choisit("M_ObjetExcentreMasse");
    EXPECT_EQ(note("NoteResultats"), "");
}

TEST_F(EcranInerties, ANumberIsNotRefusedWhileItIsBeingTyped) {
    Choisit("M_ObjetCentreTubeCouche");
    Tape({{"Text3", "5"}, {"Text6", "80"}, {"Text7", "60"}, {"Text8", "100"}});
    TapeTouches("Text6", "1");
    EXPECT_TRUE(EnFaute("Text7"));
    EXPECT_EQ(Resultats().front(), "");
    QTest::keyClicks(ecran->focusWidget(), "50");
    EXPECT_EQ(Resultats().front(), "5");
    EXPECT_TRUE(dialogues.boites.empty());
    // digits behind a point mend nothing any more, and a bore only grows
    TapeTouches("Text6", "59.");
    EXPECT_EQ(DerniereBoite(), "Ø intérieur > Ø extérieur");
    EXPECT_TRUE(AFocus("Text7"));
}

TEST_F(EcranInerties, AKindShowsItsFieldsAndStartsAnew) {
    Choisit("M_ObjetExcentreCouronne");
    Tape({{"Text1", "4"}, {"Text3", "2"}, {"Text5", "210"}});
    CliqueOption("MasseSpecifique");
    EXPECT_EQ(TexteDe("Text3"), "7850");
    CliqueOption("MasseTotal");
    EXPECT_EQ(TexteDe("Text3"), "");
    for (const GenreSolide& genre : LesSolides()) {
        Choisit(genre.menu);
        EXPECT_EQ(TexteDe("Text1") + TexteDe("Text5"), "1");
        EXPECT_EQ(TexteDe("Text3"), genre.TypeSolide == 8 ? "7850" : "") << genre.menu;
        for (const char* champ : {"Text5", "Text6", "Text7", "Text8"}) {
            const bool demande = std::ranges::any_of(
                genre.champs, [&](const ChampSolide& c) { return c.controle == std::string(champ); });
            EXPECT_EQ(Montre(champ), demande) << genre.menu << champ;
        }
    }
}

TEST_F(EcranInerties, ARowComesBackAsItWasTyped) {
    Choisit("M_ObjetCentreSphere");
    CliqueOption("MasseSpecifique");
    Tape({{"Text1", "3"}, {"Text3", "2700"}, {"Text6", "150"}});
    const auto avant = Resultats();
    Clique("Plus");
    AjoutePlateau();
    auto* liste = Le<Grille>("Grille1");
    liste->selectRow(0);
    Clique("Moins");
    EXPECT_EQ(TexteDe("Text1") + " " + TexteDe("Text3") + " " + TexteDe("Text6"), "3 2700 150");
    EXPECT_TRUE(Le<QRadioButton>("MasseSpecifique")->isChecked());
    EXPECT_EQ(Resultats(), avant);
    EXPECT_EQ(ecran->Liste().lignes.size(), 1U);
    EXPECT_EQ(Totaux().front(), "25.");
    liste->setFocus();
    liste->selectRow(0);
    QTest::keyClick(liste, Qt::Key_Delete);
    EXPECT_EQ(Totaux(), (Textes{"0", "0", "0", "0"}));
}

TEST_F(EcranInerties, TheListIsKeptInFilesAndOnTheClipboard) {
    DossierTemporaire dossier;
    AjoutePlateau();
    dialogues.fichiers = {dossier / "liste.Ine", dossier / "liste.csv"};
    Le<QAction>("ListeEnregistrer")->trigger();
    Le<QAction>("ListeCsv")->trigger();
    EXPECT_EQ(LitBrut(dossier / "liste.Ine").substr(65), "1;2;1;True;12.5;;320;;25\r\n");
    const std::string csv = LitBrut(dossier / "liste.csv");
    EXPECT_NE(csv.find("\r\n25.;.32;0;0;True;2;1;12.5;1;;320;;25;1;25;.32;0;0\r\n"), std::string::npos) << csv;
    Le<QAction>("ListeCopier")->trigger();
    EXPECT_NE(QGuiApplication::clipboard()->text().indexOf("25.\t.32\t0"), -1);

    // A faulty file changes nothing; a list given up comes back.
    AjoutePlateau();
    EXPECT_THROW(ecran->OuvreListe(dossier.Ecrit("faux.Ine", "1;1\n")), ErreurExecution);
    EXPECT_EQ(ecran->Liste().lignes.size(), 2U);
    ecran->OuvreListe(dossier / "liste.Ine");
    EXPECT_EQ(Totaux().front(), "25.");
    Le<QAction>("ListeReprendre")->trigger();
    EXPECT_EQ(Totaux().front(), "50.");

    // What the program keeps of the window comes back in another one.
    const std::string travail = ecran->Travail();
    Ouvre();
    ecran->Reprend(travail);
    EXPECT_EQ(Totaux().front(), "50.");
    QSignalSpy transmise(ecran.get(), &Inerties::InertieOfferte);
    Le<QAction>("ListeTransmettre")->trigger();
    EXPECT_NEAR(transmise.back().front().toDouble(), 0.64, 1e-14);
}
