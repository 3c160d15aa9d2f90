#include "cylindrical/screens/CylindriqueIndexeur.h"

#include "core/Lignes.h"
#include "cylindrical/TextesIndexeurCyl.h"
#include "data/Textes.h"
#include "indexers/screens/ListeCles.h"
#include "indexers/screens/PanneauLoi.h"
#include "outils/BaseAEcrire.h"
#include "outils/EcranDeSaisie.h"
#include "outils/ImprimanteNotee.h"
#include "widgets/Chaines.h"
#include "widgets/Grille.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTabWidget>

namespace {

class DrumScreen : public EcranDeSaisie<CylindriqueIndexeur> {
protected:
    template <class T> T* Le(const char* nom) { return Controle<T>(*ecran, nom); }

    void Choisit(const char* nom, const char* cle) {
        auto* liste = Le<QComboBox>(nom);
        liste->setFocus();
        liste->showPopup();
        LaisseFaire();
        QTest::keyClick(liste->view(), Qt::Key_Home);
        for (int i = liste->findText(cle); i > 0; --i) QTest::keyClick(liste->view(), Qt::Key_Down);
        QTest::keyClick(liste->view(), Qt::Key_Return);
        LaisseFaire();
    }
    /// The shipped example, but for an angle that is not whole.
    void TapeExemple() {
        Choisit("DerouleModeles", "MC-100");
        Tape({{"Text5", "8"}, {"Text6", "8"}, {"Text7", "150,5"}});
        Choisit("DerouleLois", "MS");
        Choisit("DerouleGalets", "G-035");
    }
    void Revient() { Le<QTabWidget>("SSTab1")->setCurrentIndex(0); }
    std::string Cellule(int ligne, int colonne) { return Le<Grille>("Grille")->Cellule(ligne, colonne); }
    bool Offert() { return Le<QWidget>("Frame8")->isEnabled(); }
};

} // namespace

TEST_F(DrumScreen, ADrumIsChosenCalculatedAndShown) {
    TapeExemple();
    EXPECT_EQ(Le<QLineEdit>("Text1")->text(), "96.6");
    EXPECT_EQ(Le<QLineEdit>("Text13")->text(), ".5");
    EXPECT_FALSE(Offert());
    Clique("Calculer");
    ASSERT_TRUE(dialogues.boites.empty()) << DerniereBoite();
    EXPECT_TRUE(Offert());
    EXPECT_EQ(Le<QTabWidget>("SSTab1")->currentIndex(), 1);
    EXPECT_EQ(Le<QLabel>("Label15")->text(), "111.537");
    EXPECT_EQ(Le<QLabel>("Label16")->text(), "3");
    EXPECT_EQ(Le<QLabel>("Label20")->text(), "1");
    EXPECT_EQ(Le<QLabel>("Label21")->text(), "41.537");
    EXPECT_EQ(Le<Grille>("Grille")->NombreColonnes(), 5);
    EXPECT_EQ(Cellule(150, 0), "150");
    EXPECT_EQ(Cellule(151, 0), "151.5") << "the dwell goes on from the angle, its rows rounded half to even";
    EXPECT_EQ(Cellule(152, 0), "");
    EXPECT_NE(Cellule(0, 1).find(" , "), std::string::npos);
    const std::string aDroite = Cellule(0, 1);
    Revient();
    Clique("CameGauche");
    EXPECT_FALSE(Offert()) << "the direction is an input";
    Clique("Calculer");
    EXPECT_EQ(Cellule(0, 1).substr(10), "-" + aDroite.substr(10));
    // A casing with missing figures empties its fields, and is refused until they are typed.
    Revient();
    Choisit("DerouleModeles", "MC-180");
    EXPECT_EQ(Le<QLineEdit>("Text20")->text(), "");
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(679));
    EXPECT_TRUE(AFocus("Text20"));
}

TEST_F(DrumScreen, EveryCheckHasItsTextAndItsField) {
    TapeExemple();
    const struct {
        const char *champ, *texte, *bon;
        std::string message;
    } cas[] = {
        {"Text1", "0", "96.6", Texte(547)},
        {"Text2", "0", "100", Texte(548)},
        {"Text3", "-1", ".06", Texte(549)},
        {"Text12", "0", "47", Texte(678)},
        {"Text20", "0", "115", Texte(679)},
        {"Text21", "0", "130", Texte(680)},
        {"Text5", "0", "8", Texte(681)},
        {"Text6", "4.4", "8", Texte(539)},
        {"Text7", "360.5", "150", Texte(623)},
        {"Text7", "0", "150", Texte(623)},
        {"Text13", ".05", ".5", Texte(676) + "\n0.1 & 0.9"},
        {"Text5", "7", "8", Texte(677) + "\n" + Texte(509)},
        {"Text8", "0", "35", Texte(683)},
        {"Text11", "-2", "17300", Texte(683)},
    };
    for (const auto& c : cas) {
        Tape({{c.champ, c.texte}});
        Clique("Calculer");
        EXPECT_EQ(DerniereBoite(), c.message) << c.champ;
        EXPECT_TRUE(AFocus(c.champ)) << c.champ;
        EXPECT_FALSE(Offert());
        Tape({{c.champ, c.bon}});
    }
    for (const auto& [liste, message] : {std::pair{"DerouleGalets", 682}, {"DerouleModeles", 546}}) {
        auto* cle = Le<QComboBox>(liste)->lineEdit();
        const QString gardee = cle->text();
        cle->setFocus();
        cle->selectAll();
        QTest::keyClick(cle, Qt::Key_Backspace);
        Clique("Calculer");
        EXPECT_EQ(DerniereBoite(), Texte(message));
        EXPECT_TRUE(AFocus(liste));
        QTest::keyClicks(cle, gardee);
    }
    const auto boites = dialogues.boites.size();
    Clique("Calculer");
    EXPECT_EQ(dialogues.boites.size(), boites) << DerniereBoite();
    EXPECT_TRUE(Offert());
    Ouvre();
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(538)) << "the law comes before all others";
    EXPECT_TRUE(AFocus("DerouleLois"));
}

TEST_F(DrumScreen, ALawFileIsAskedForAndBringsItsAngle) {
    TapeExemple();
    Choisit("DerouleLois", "Fichier");
    dialogues.fichiers = {std::nullopt};
    Clique("Calculer");
    EXPECT_TRUE(AFocus("DerouleLois"));
    EXPECT_TRUE(dialogues.boites.empty()) << "a file that is not chosen ends the calculation without a word";
    EXPECT_FALSE(Offert());
    DossierTemporaire dossier;
    dialogues.fichiers = {dossier.Ecrit("loi.Lmi", "0;0;0\r\n.2;0;0\r\n.5;0;0\r\n.8;0;0\r\n1;0;0\r\n")};
    Clique("Calculer");
    EXPECT_TRUE(Offert());
    EXPECT_EQ(dialogues.demandes.back(), Texte(125));
    EXPECT_EQ(Le<QLineEdit>("Text7")->text(), "2");
    EXPECT_EQ(etude.resultats.ResultatsPrets, Vrai);
}

TEST_F(DrumScreen, FilesHoldTheTextsAsTyped) {
    TapeExemple();
    Tape({{"Text12", "047.50"}});
    Clique("Calculer");
    DossierTemporaire dossier;
    QSignalSpy ecrits(ecran.get(), &FenetreEnfant::FichierEnregistre), annonces(ecran.get(), &FenetreEnfant::Annonce);
    dialogues.fichiers = {dossier / "came.Tam"};
    Clique("Sauvegarde");
    EXPECT_EQ(dialogues.demandes.back(), "Came Cylindrique Indexeur - Sauvegarde des données");
    const std::string tam = LitBrut(dossier / "came.Tam");
    EXPECT_NE(tam.find("Capacité maxi d'arbre d'entrée  : 047.50\r\n"), std::string::npos) << tam;
    EXPECT_NE(tam.find("Coefficient de symétrie : .5\r\nType de came : à droite\r\n"), std::string::npos) << tam;
    EXPECT_EQ(dossier.NombreFichiers(), 1);
    Clique("Check2");
    Clique("Check3");
    EXPECT_TRUE(Offert()) << "what is written is no input";
    dialogues.fichiers = {dossier / "came.Tam", dossier / "came.Pnt", dossier / "came.Scr"};
    Clique("Sauvegarde");
    EXPECT_EQ(ecrits.count(), 4);
    EXPECT_EQ(annonces.count(), 1) << "the script ends early";
    EXPECT_NE(LitBrut(dossier / "came.Pnt").find("\r\n150;"), std::string::npos);
    EXPECT_TRUE(LitBrut(dossier / "came.Scr").starts_with("LIGNE 0,0 361."));
    // A dialogue that is cancelled ends the saving; what is written stays.
    std::filesystem::remove(dossier / "came.Scr");
    dialogues.fichiers = {dossier / "autre.Tam", std::nullopt};
    Clique("Sauvegarde");
    EXPECT_EQ(dossier.NombreFichiers(), 3);
}

TEST_F(DrumScreen, ThePagesAreAskedForAndPrinted) {
    TapeExemple();
    Clique("Calculer");
    dialogues.saisies = {"  "};
    EXPECT_FALSE(ecran->PrepareImpression());
    EXPECT_EQ(DerniereBoite(), Texte(674) + "\n" + Texte(675));
    dialogues.saisies = {"Came 12"};
    dialogues.reponses = {true};
    ASSERT_TRUE(ecran->PrepareImpression());
    EXPECT_EQ(dialogues.demandes.back(), Texte(684));
    ImprimanteNotee papier;
    ecran->Imprime(papier);
    EXPECT_TRUE(papier.fini);
    EXPECT_TRUE(papier.portrait) << "fewer than seven rollers";
    ASSERT_EQ(papier.pages.size(), 3U);
    EXPECT_GT(papier.pages[0].traces.size(), 450U) << "a circle for every cell";
    const auto page = papier.pages[1].Textes(), suite = papier.pages[2].Textes();
    EXPECT_EQ(page.size(), 102U);
    EXPECT_EQ(page[1].find("          Came 12   Le "), 0U);
    EXPECT_EQ(page[5].find("     Position            Galet 1             Galet 2"), 0U);
    EXPECT_EQ(page[7].find("     0                   " + Cellule(0, 1)), 0U);
    EXPECT_EQ(suite[5], page[5]);
    EXPECT_EQ(suite[7].find("     95 "), 0U);
    EXPECT_EQ(suite[7 + 55].find("     150 "), 0U) << "the rows of the motion only";
}

TEST_F(DrumScreen, CasingsAndRollersAreKept) {
    const BaseAEcrire base;
    Ouvre();
    TapeExemple();
    Clique("GardeModele");
    EXPECT_EQ(DerniereBoite(), Texte(550));
    Clique("GardeGalets");
    EXPECT_EQ(DerniereBoite(), Texte(673) + "\n" + Texte(509) + "\n");
    auto* modele = Le<QComboBox>("DerouleModeles")->lineEdit();
    modele->setFocus();
    modele->selectAll();
    QTest::keyClicks(modele, "Essai 7");
    const auto boites = dialogues.boites.size();
    Le<QLineEdit>("Text20")->setFocus();
    Le<QLineEdit>("Text20")->selectAll();
    QTest::keyClick(Le<QLineEdit>("Text20"), Qt::Key_Delete);
    Tape({{"Text2", "101.5"}});
    Clique("GardeModele");
    EXPECT_EQ(dialogues.boites.size(), boites) << DerniereBoite();
    const auto ligne = ChercheLigne(CatalogueMecanismesCylindriques(), "Essai 7");
    ASSERT_TRUE(ligne);
    EXPECT_EQ(ligne->at("RayonTourelle"), 101.5);
    EXPECT_FALSE(ligne->at("CameDiam"));
    EXPECT_EQ(ligne->at("Boitier"), 4) << "that of the casing chosen before";
}

TEST_F(DrumScreen, KeysWalkTheFields) {
    SuitReturn({"DerouleModeles", "Text1", "Text2", "Text3", "Text12", "Text20", "Text21", "Text5", "Text6", "Text7",
                "DerouleLois", "Text13", "DerouleGalets", "Text8", "Text9", "Text10", "Text11", "Calculer"});
    EXPECT_EQ(etude.donnees.CylindriqueIndexeurActif, Vrai);
}
