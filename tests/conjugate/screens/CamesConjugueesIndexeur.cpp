#include "conjugate/screens/CamesConjugueesIndexeur.h"

#include "conjugate/TextesConjugue.h"
#include "outils/EcranDeCalculateur.h"
#include "outils/ImprimanteNotee.h"
#include "widgets/Grille.h"

#include <algorithm>

namespace {

class ConjugateScreen : public EcranDeCalculateur<CamesConjugueesIndexeur> {
protected:
    void TapeMecanisme() {
        Tape({{"Text1", "100,25"}, {"Text2", "42"}, {"Text5", "8"}, {"Text3", "8"}});
        Tape({{"Text4", "150.5"}, {"Text11", ".25"}, {"Text12", "99.5"}});
        Deroule("Combo1", "GP-026");
    }
    /// Types one field on the first sheet and calculates.
    void CalculeAvec(const char* champ, const char* texte) {
        Revient();
        Tape({{champ, texte}});
        Clique("Calculer");
    }
    std::vector<std::string> Lignes() {
        std::vector<std::string> lignes;
        const auto* grille = Le<Grille>("Grille");
        for (int i = 0; i < grille->NombreLignes(); ++i) lignes.push_back(grille->Cellule(i, 1));
        return lignes;
    }
    std::string Notes() {
        std::string notes;
        for (const auto* note : Le<QWidget>("Notes")->findChildren<QLabel*>()) notes += S(note->text()) + "\n";
        return notes;
    }
    bool Imprimable() { return Le<QPushButton>("Imprimer")->isEnabled() && etude.resultats.ResultatsPrets != Faux; }
};

} // namespace

TEST_F(ConjugateScreen, ReportOfWhatWasTyped) {
    TapeMecanisme();
    for (const auto& [champ, texte] : // from the catalogue
         Saisies{{"Text6", "26"}, {"Text7", "15"}, {"Text8", "7750"}, {"Text9", "10350"}, {"Text10", "7400"}})
        EXPECT_EQ(TexteDe(champ), texte) << champ;
    EXPECT_FALSE(Le<QTabWidget>("SSTab1")->isTabEnabled(1));
    Clique("Calculer");
    ASSERT_TRUE(dialogues.boites.empty()) << DerniereBoite();
    EXPECT_EQ(Le<QTabWidget>("SSTab1")->currentIndex(), 1);
    auto lignes = Lignes();
    ASSERT_EQ(lignes.size(), 57U);
    EXPECT_EQ(Le<Grille>("Grille")->Cellule(56, 0), "57");
    EXPECT_EQ(lignes[0], "Entre axes                   (Q) =100.25 mm");
    EXPECT_EQ(lignes[8], "Coefficient de vitesse       (Cvu) =1.76");
    EXPECT_TRUE(Imprimable());
    EXPECT_NE(Notes().find(Texte(TexteNoteStops)), std::string::npos) << "what the captions beside it do not say";
    ImprimanteNotee imprimante;
    ecran->Imprime(imprimante);
    const auto papier = imprimante.pages.front().Textes();
    EXPECT_TRUE(std::equal(lignes.begin(), lignes.end(), papier.begin()));

    // Another law, taken from its list, closes the report until it is calculated anew.
    Revient();
    Deroule("Combo2", "MT");
    EXPECT_FALSE(Imprimable());
    EXPECT_FALSE(Le<QTabWidget>("SSTab1")->isTabEnabled(1));
    Clique("Calculer");
    EXPECT_EQ(Lignes()[8], "Coefficient de vitesse       (Cvu) =2");
    CalculeAvec("Text5", "8,5");
    EXPECT_EQ(Lignes()[2], "Nombre de galets             (M) =8") << "half to even";
    CalculeAvec("Text3", "5");
    EXPECT_EQ(Notes().find(Texte(TexteNoteStops)), std::string::npos);
}

TEST_F(ConjugateScreen, StopsTellTheirReasonAndShowWhatWasWritten) {
    TapeMecanisme();
    Clique("Calculer");
    CalculeAvec("Text12", "6000");
    ASSERT_EQ(DerniereBoite(), Texte(458));
    EXPECT_EQ(dialogues.boites.back().icone, Icone::Critique);
    EXPECT_TRUE(AFocus("Text12"));
    EXPECT_EQ(Lignes().size(), 25U) << "the lines written so far";
    EXPECT_TRUE(Le<QTabWidget>("SSTab1")->isTabEnabled(1));
    EXPECT_FALSE(Imprimable());

    CalculeAvec("Text12", "100");
    CalculeAvec("Text4", "abc");
    EXPECT_TRUE(DerniereBoite().starts_with(Texte(708))) << DerniereBoite();
    EXPECT_TRUE(AFocus("Text4"));
    CalculeAvec("Text4", "150.5");
    EXPECT_TRUE(Imprimable());
    const auto boites = dialogues.boites.size();
    CalculeAvec("Text6", "97");
    EXPECT_EQ(dialogues.boites.size(), boites) << "an undercut stops without a box";
    EXPECT_TRUE(Lignes().empty());
    EXPECT_NE(Notes().find("Sur Usinage dans la piste B part 1 dans la position 1"), std::string::npos);
    EXPECT_FALSE(Imprimable());
}

TEST_F(ConjugateScreen, ReturnWalksTheFields) {
    SuitReturn({"Text1", "Text2", "Text5", "Text3", "Text4", "Text11", "Combo2", "Text12", "Combo1", "Text6", "Text7",
                "Text8", "Text9", "Text10"});
    EXPECT_TRUE(AFocus("Calculer"));
}
