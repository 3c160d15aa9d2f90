#include "cylindrical/screens/CylindriqueIndexeur.h"

#include "cylindrical/TextesIndexeurCyl.h"
#include "outils/DossierTemporaire.h"
#include "outils/EcranDeCalculateur.h"
#include "outils/ImprimanteNotee.h"
#include "widgets/Grille.h"

namespace {

class DrumScreen : public EcranDeCalculateur<CylindriqueIndexeur> {
protected:
    /// The shipped example, but for an angle that is not whole.
    void TapeExemple() {
        Deroule("DerouleModeles", "MC-100");
        Tape({{"Text5", "8"}, {"Text6", "8"}, {"Text7", "150,5"}});
        Deroule("DerouleLois", "MS");
        Deroule("DerouleGalets", "G-035");
    }
    std::string Cellule(int ligne, int colonne) { return Le<Grille>("Grille")->Cellule(ligne, colonne); }
};

} // namespace

TEST_F(DrumScreen, ADrumIsChosenCalculatedAndShown) {
    TapeExemple();
    for (const auto& [champ, texte] : Saisies{{"Text1", "96.6"},
                                              {"Text2", "100"},
                                              {"Text12", "47"},
                                              {"Text20", "115"},
                                              {"Text21", "130"},
                                              {"Text9", "20"},
                                              {"Text10", "11850"},
                                              {"Text11", "17300"}})
        EXPECT_EQ(TexteDe(champ), texte) << champ;
    EXPECT_EQ(TexteDe("Text13"), ".5");
    EXPECT_FALSE(Offert());
    Clique("Calculer");
    ASSERT_TRUE(dialogues.boites.empty()) << DerniereBoite();
    EXPECT_TRUE(Offert());
    EXPECT_EQ(Valeur("Label15"), "111.537");
    EXPECT_EQ(Valeur("Label16"), "3");
    EXPECT_EQ(Valeur("Label20"), "1");
    EXPECT_EQ(Valeur("Label21"), "41.537");
    EXPECT_EQ(Cellule(150, 0), "150");
    EXPECT_EQ(Cellule(151, 0), "151.5") << "the dwell goes on from the angle, its rows rounded half to even";
    const std::string aDroite = Cellule(0, 1);
    Revient();
    Clique("CameGauche");
    EXPECT_FALSE(Offert()) << "the direction is an input";
    Clique("Calculer");
    EXPECT_EQ(Cellule(0, 1).substr(10), "-" + aDroite.substr(10));
    // A casing with missing figures empties its fields, and is refused until they are typed.
    Revient();
    Deroule("DerouleModeles", "MC-180");
    EXPECT_EQ(TexteDe("Text20"), "");
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(679));
    EXPECT_TRUE(AFocus("Text20"));
}

TEST_F(DrumScreen, FaultsSendToTheirFields) {
    Refuse(Texte(538), "DerouleLois"); // the law comes before all others
    TapeExemple();
    Tape({{"Text13", ".05"}});
    Refuse(Texte(676) + "\n0.1 & 0.9", "Text13");
    Tape({{"Text13", ".5"}, {"Text6", "4.4"}});
    Refuse(Texte(539), "Text6");
    Tape({{"Text6", "8"}});
    Clique("Calculer");
    EXPECT_TRUE(Offert()) << DerniereBoite();
}

TEST_F(DrumScreen, ALawFileIsAskedForAndBringsItsAngle) {
    TapeExemple();
    Deroule("DerouleLois", "Fichier");
    dialogues.fichiers = {std::nullopt};
    Clique("Calculer");
    EXPECT_TRUE(AFocus("DerouleLois"));
    EXPECT_TRUE(dialogues.boites.empty()) << "a file that is not chosen ends the calculation without a word";
    EXPECT_FALSE(Offert());
    DossierTemporaire dossier;
    dialogues.fichiers = {dossier.Ecrit("loi.Lmi", "0;0;0\r\n.2;0;0\r\n.5;0;0\r\n.8;0;0\r\n1;0;0\r\n")};
    Clique("Calculer");
    EXPECT_TRUE(Offert());
    EXPECT_EQ(TexteDe("Text7"), "2");
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
    ImprimanteNotee papier;
    ecran->Imprime(papier);
    EXPECT_TRUE(papier.fini);
    EXPECT_TRUE(papier.portrait) << "fewer than seven rollers";
    ASSERT_EQ(papier.pages.size(), 3U);
    const auto page = papier.pages[1].Textes(), suite = papier.pages[2].Textes();
    EXPECT_EQ(page[1].find("          Came 12   Le "), 0U);
    EXPECT_EQ(page[7].find("     0                   " + Cellule(0, 1)), 0U);
    EXPECT_EQ(suite[7].find("     95 "), 0U);
    EXPECT_EQ(suite[7 + 55].find("     150 "), 0U) << "the rows of the motion only";
}

TEST_F(DrumScreen, KeysWalkTheFields) {
    SuitReturn({"DerouleModeles", "Text1", "Text2", "Text3", "Text12", "Text20", "Text21", "Text5", "Text6", "Text7",
                "DerouleLois", "Text13", "DerouleGalets", "Text8", "Text9", "Text10", "Text11", "Calculer"});
}
