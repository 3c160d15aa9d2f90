#include "studies/screens/CamesConjugeesOscillation.h"

#include "data/TextesSaisie.h"
#include "outils/EcranDeSaisie.h"
#include "studies/NotesEtude.h"

namespace {

struct TypePaire {
    TypePaire() { etude.donnees.TypeCame = "ConjuguesOscillation"; }
};

class EcranPaire : private TypePaire, public EcranDeSaisie<CamesConjugeesOscillation> {
protected:
    QSignalSpy calculee{ecran.get(), &SaisieCame::EtudeCalculee};

    /// The pair typed as a person does, Return after every number.
    void TapeLaPaire() {
        TapeLigne("Text14=100 Text15=60,5 Text6=74 Text8=120 Text2=100 Text3=16 Text4=104 Text5=18 Text7=.35");
        TapeLigne("Text9=2 Text10=62 Text11=73,5 AngleCame=180");
        Clique("Suivante");
        TapeLigne("Text11=62 AngleCame=180");
        Clique("Suivante");
    }
    QTabWidget& Feuilles() { return *Le<QTabWidget>("SSTab1"); }
};

} // namespace

TEST_F(EcranPaire, APairIsTypedCalculatedAndShown) {
    EXPECT_FALSE(Feuilles().isTabEnabled(2)) << "no results yet";
    TapeLaPaire();
    Clique("Calculer");
    ASSERT_EQ(calculee.count(), 1) << DerniereBoite();
    EXPECT_TRUE(dialogues.boites.empty()) << DerniereBoite();
    EXPECT_EQ(etude.donnees.Zones[1].AngleFinal, 73.5);
    EXPECT_EQ(etude.donnees.ZonesConjuguees[2].AngleFinal, 62) << "what is saved";

    ecran->Montre();
    EXPECT_EQ(Feuilles().currentIndex(), 2);
    ASSERT_EQ(Le<Grille>("Grille1")->NombreLignes(), 361);
    EXPECT_EQ(Cellule(0, 12, "Grille1"), "0.000") << "closed at the start";
    for (const int came : {0, 1}) {
        const ResultatsEtude& passe = etude.passes[static_cast<std::size_t>(came)].resultats;
        EXPECT_EQ(Cellule(180, 4 + 4 * came, "Grille1"), Format(passe.Points[180].Rayon, "###.###"));
    }

    // An edit after the calculation: its results are no longer shown, and are calculated anew before they are used.
    Feuilles().setCurrentIndex(0);
    Tape({{"Text5", "17.5"}});
    EXPECT_TRUE(etude.resultats.Perimes);
    EXPECT_FALSE(Feuilles().isTabEnabled(2));
    Clique("Calculer");
    EXPECT_EQ(calculee.count(), 2);
    EXPECT_FALSE(etude.resultats.Perimes);
}

TEST_F(EcranPaire, BadNumbersKeepTheScreenAndTheFocusGoesToTheField) {
    TapeLigne("Text9=1 Text10=62 Text11=70 AngleCame=360");
    Clique("Suivante");
    EXPECT_EQ(DerniereBoite(), Texte(200)) << "a zone at no speed would last for ever";
    EXPECT_TRUE(AFocus("Text8"));
    Tape({{"Text8", "120"}});
    Clique("Suivante");
    const struct {
        const char* saisies;
        int texte;
        const char* focus;
    } fautes[] = {{"", 657, "Text14"},
                  {"Text15=60", 498, "Text7"},
                  {"Text2=100 Text3=16 Text4=104 Text5=18 Text7=.35", 197, "Text14"},
                  {"Text14=100 Text3=-16", 498, "Text7"}};
    for (const auto& faute : fautes) {
        TapeLigne(faute.saisies);
        Clique("Calculer");
        EXPECT_EQ(DerniereBoite(), Texte(faute.texte));
        EXPECT_TRUE(AFocus(faute.focus)) << faute.focus;
    }
    EXPECT_EQ(calculee.count(), 0);
    EXPECT_EQ(Feuilles().currentIndex(), 0);
}

TEST_F(EcranPaire, WhatMisleadsIsSaidBelowTheValues) {
    const auto notes = [&] {
        Clique("Calculer");
        ecran->Montre();
        return S(Le<QLabel>("NotesRemarquables")->text());
    };
    TapeLaPaire();
    EXPECT_EQ(notes().find(Texte(TexteCourbureUnPoint)), std::string::npos);
    Feuilles().setCurrentIndex(0);
    auto* points = Le<QComboBox>("Combo2")->lineEdit();
    points->setFocus();
    points->selectAll();
    QTest::keyClicks(points, "2");
    const std::string deux = notes();
    EXPECT_NE(deux.find(Texte(TexteCourbureUnPoint)), std::string::npos) << deux;
    EXPECT_EQ(deux.find(Texte(TexteProduitSeul)), std::string::npos);
    // Two negative numbers make up for each other in the check.
    Feuilles().setCurrentIndex(0);
    Tape({{"Text3", "-16"}, {"Text7", "-.35"}});
    EXPECT_NE(notes().find(Texte(TexteProduitSeul)), std::string::npos);
}
