#include "conjugate/screens/CamesConjugueesIndexeur.h"

#include "core/Etude.h"
#include "data/Textes.h"
#include "indexers/screens/ListeCles.h"
#include "outils/BaseAEcrire.h"
#include "outils/EcranDeSaisie.h"
#include "outils/ImprimanteNotee.h"
#include "widgets/Chaines.h"
#include "widgets/Grille.h"
#include "widgets/ZoneDessin.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>

namespace {

class ConjugateScreen : public EcranDeSaisie<CamesConjugueesIndexeur> {
protected:
    BaseAEcrire base;
    ConjugateScreen() { Ouvre(); } // on the database that can be written

    template <class T> T* Le(const char* nom) { return Controle<T>(*ecran, nom); }
    QString TexteDe(const char* champ) { return Le<QLineEdit>(champ)->text(); }
    /// Opens a list and takes an entry with the keys of a keyboard; -1 leaves it with Escape.
    void Deroule(const char* nom, int entree) {
        auto* liste = Le<QComboBox>(nom);
        liste->setFocus();
        liste->showPopup();
        LaisseFaire();
        QTest::keyClick(liste->view(), Qt::Key_Home);
        for (int i = 0; i < entree; ++i) QTest::keyClick(liste->view(), Qt::Key_Down);
        QTest::keyClick(liste->view(), entree < 0 ? Qt::Key_Escape : Qt::Key_Return);
        LaisseFaire();
    }
    void TapeMecanisme() {
        Tape({{"Text1", "100,25"},
              {"Text2", "42"},
              {"Text5", "8"},
              {"Text3", "8"},
              {"Text4", "150.5"},
              {"Text11", ".25"},
              {"Text12", "99.5"}});
        Deroule("Combo1", 5);
    }
    /// Types one field on the first sheet and calculates.
    void CalculeAvec(const char* champ, const char* texte) {
        Le<QTabWidget>("SSTab1")->setCurrentIndex(0);
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
    EXPECT_EQ(TexteDe("Text6"), "26") << "from the catalogue";
    EXPECT_EQ(TexteDe("Text10"), "7400");
    EXPECT_FALSE(Le<QTabWidget>("SSTab1")->isTabEnabled(1));
    Clique("Calculer");
    ASSERT_TRUE(dialogues.boites.empty()) << DerniereBoite();
    EXPECT_EQ(Le<QTabWidget>("SSTab1")->currentIndex(), 1);
    auto lignes = Lignes();
    ASSERT_EQ(lignes.size(), 57U);
    EXPECT_EQ(Le<Grille>("Grille")->Cellule(56, 0), "57");
    EXPECT_EQ(lignes[0], "Entre axes                   (Q) =100.25 mm");
    EXPECT_EQ(lignes[7], "Partie à vitesse constante   (W) =0.25");
    EXPECT_EQ(lignes[8], "Coefficient de vitesse       (Cvu) =1.76");
    EXPECT_NE(Notes().find("Not yet programmed"), std::string::npos);
    EXPECT_TRUE(Imprimable());
    ImprimanteNotee imprimante;
    ecran->Imprime(imprimante);
    const auto papier = imprimante.pages.front().Textes();
    EXPECT_TRUE(std::equal(lignes.begin(), lignes.end(), papier.begin()));

    // Another law, taken from its list, closes the report until it is calculated anew.
    Le<QTabWidget>("SSTab1")->setCurrentIndex(0);
    Deroule("Combo2", -1);
    EXPECT_TRUE(Imprimable()) << "a list that is escaped changes nothing";
    Deroule("Combo2", 1);
    EXPECT_FALSE(Imprimable());
    EXPECT_FALSE(Le<QTabWidget>("SSTab1")->isTabEnabled(1));
    Clique("Calculer");
    EXPECT_EQ(Lignes()[8], "Coefficient de vitesse       (Cvu) =2");
    CalculeAvec("Text5", "8,5");
    EXPECT_EQ(Lignes()[2], "Nombre de galets             (M) =8") << "half to even";
    for (const char* graphe : {"Graphe1", "Graphe2", "Graphe3"})
        EXPECT_TRUE(Le<ZoneDessin>(graphe)->isVisibleTo(Le<QWidget>(graphe)->parentWidget()));
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
    EXPECT_EQ(etude.resultats.Erreur, Vrai);

    CalculeAvec("Text12", "100");
    EXPECT_TRUE(Imprimable());
    const auto boites = dialogues.boites.size();
    QSignalSpy annonce(ecran.get(), &FenetreEnfant::Annonce);
    CalculeAvec("Text6", "97");
    EXPECT_EQ(dialogues.boites.size(), boites) << "an undercut stops without a box";
    EXPECT_EQ(annonce.count(), 1);
    EXPECT_EQ(Le<QTabWidget>("SSTab1")->currentIndex(), 1);
    EXPECT_TRUE(Lignes().empty());
    EXPECT_NE(Notes().find("Sur Usinage dans la piste B part 1 dans la position 1"), std::string::npos);
    EXPECT_FALSE(Imprimable());
    EXPECT_FALSE(Le<ZoneDessin>("Graphe3")->isVisibleTo(Le<QWidget>("Graphe3")->parentWidget()));
    Le<QTabWidget>("SSTab1")->setCurrentIndex(0);
    Tape({{"Text6", "96"}});
    EXPECT_FALSE(Le<QTabWidget>("SSTab1")->isTabEnabled(1)) << "nor are they those of other inputs";
}

TEST_F(ConjugateScreen, WhatCannotBeCalculatedSendsToItsField) {
    Clique("Calculer");
    EXPECT_TRUE(AFocus("Text1")) << "nothing typed";
    TapeMecanisme();
    for (const auto& [champ, texte, valeur] : {std::tuple{"Text1", "0", "100"},
                                               {"Text5", "0.5", "8"},
                                               {"Text3", "0", "8"},
                                               {"Text4", "abc", "150"},
                                               {"Text11", "1", "0"},
                                               {"Text12", "0", "100"},
                                               {"Text6", "0", "26"}}) {
        CalculeAvec(champ, texte);
        EXPECT_TRUE(DerniereBoite().starts_with(Texte(708))) << champ << DerniereBoite();
        EXPECT_TRUE(AFocus(champ)) << champ;
        EXPECT_FALSE(Imprimable());
        CalculeAvec(champ, valeur);
        EXPECT_TRUE(Imprimable()) << champ << DerniereBoite();
    }
    EXPECT_EQ(TexteDe("Text2"), "42") << "nothing is lost";
}

TEST_F(ConjugateScreen, ARollerIsKept) {
    Clique("GardeGalet");
    EXPECT_EQ(DerniereBoite(), Texte(453));
    EXPECT_TRUE(AFocus("Combo1"));
    Deroule("Combo1", 5);
    Clique("GardeGalet");
    EXPECT_EQ(DerniereBoite(), Texte(453)) << "it is there already";
    auto* cle = Le<QComboBox>("Combo1")->lineEdit();
    cle->setFocus();
    cle->selectAll();
    QTest::keyClicks(cle, "Mien 27,5");
    Tape({{"Text6", "27,5"}, {"Text10", "0"}});
    Clique("GardeGalet");
    EXPECT_EQ(DerniereBoite(), Texte(453));
    EXPECT_TRUE(AFocus("Text10"));
    Tape({{"Text10", "7000"}});
    const auto boites = dialogues.boites.size();
    Clique("GardeGalet");
    EXPECT_EQ(dialogues.boites.size(), boites);
    Ouvre();
    auto* liste = Le<QComboBox>("Combo1");
    Deroule("Combo1", liste->count() - 1);
    EXPECT_EQ(liste->currentText(), "Mien 27,5");
    EXPECT_EQ(TexteDe("Text6"), "27.5");
    EXPECT_EQ(TexteDe("Text8"), "7750");
}

TEST_F(ConjugateScreen, ReturnWalksTheFieldsAndEscapeLeavesNothing) {
    SuitReturn({"Text1", "Text2", "Text5", "Text3", "Text4", "Text11", "Combo2", "Text12", "Combo1", "Text6", "Text7",
                "Text8", "Text9", "Text10"});
    EXPECT_TRUE(AFocus("Calculer"));
    QSignalSpy quitte(ecran.get(), &FenetreEnfant::Quitte);
    QTest::keyClick(ecran.get(), Qt::Key_Escape);
    EXPECT_EQ(quitte.count(), 0);
    EXPECT_TRUE(ecran->Active()) << "printing goes to it while it is open";
    etude.resultats.ResultatsPrets = Vrai;
    ecran->Ferme();
    EXPECT_EQ(etude.resultats.ResultatsPrets, Faux);
}
