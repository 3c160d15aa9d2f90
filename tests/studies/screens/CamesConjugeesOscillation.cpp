#include "studies/screens/CamesConjugeesOscillation.h"

#include "conjugate/ExemplePaire.h"
#include "conjugate/PaireOscillante.h"
#include "data/Textes.h"
#include "laws/CalculLois.h"
#include "outils/EcranDeSaisie.h"
#include "studies/TypesEtude.h"
#include "widgets/Grille.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

namespace {

struct TypePaire {
    TypePaire() {
        etude = Etude{};
        ChargeLois();
        etude.donnees.TypeCame = "ConjuguesOscillation";
    }
};

class EcranPaire : private TypePaire, public EcranDeSaisie<CamesConjugeesOscillation> {
protected:
    /// The pair typed as a person does, Return after every number.
    void TapeLaPaire() {
        Tape({{"Text14", "100"},
              {"Text15", "60,5"},
              {"Text6", "74"},
              {"Text8", "120"},
              {"Text2", "100"},
              {"Text3", "16"},
              {"Text4", "104"},
              {"Text5", "18"},
              {"Text7", ".35"},
              {"Text9", "2"}});
        Tape({{"Text10", "62"}, {"Text11", "73,5"}, {"AngleCame", "180"}});
        Clique("Suivante");
        Tape({{"Text11", "62"}, {"AngleCame", "180"}});
        Clique("Suivante");
    }
    QTabWidget& Feuilles() { return *Controle<QTabWidget>(*ecran, "SSTab1"); }
};

} // namespace

TEST_F(EcranPaire, APairIsTypedCalculatedAndShown) {
    QSignalSpy calculee(ecran.get(), &SaisieCame::EtudeCalculee);
    EXPECT_FALSE(Feuilles().isTabEnabled(2)) << "no results yet";
    TapeLaPaire();
    SuitReturn({"Text14", "Text15", "Text6", "Text8", "Text2", "Text3", "Text4", "Text5", "Text7", "Text9"});
    Clique("Calculer");
    ASSERT_EQ(calculee.count(), 1) << DerniereBoite();
    EXPECT_TRUE(dialogues.boites.empty()) << DerniereBoite();
    EXPECT_EQ(etude.donnees.CoteB, 60.5);
    EXPECT_EQ(etude.donnees.InertieO1, 0.35);
    EXPECT_EQ(etude.donnees.Zones[1].AngleFinal, 73.5);
    EXPECT_EQ(etude.donnees.ZonesConjuguees[2].AngleFinal, 62) << "what is saved";
    ASSERT_EQ(etude.passes.size(), 2u);
    EXPECT_EQ(etude.resultats.ResultatsPrets, Vrai);

    ecran->Montre();
    EXPECT_EQ(Feuilles().currentIndex(), 2);
    for (int feuille = 0; feuille < Feuilles().count(); ++feuille) EXPECT_TRUE(Feuilles().isTabEnabled(feuille));
    const auto* mouvement = Controle<Grille>(*ecran, "Grille1");
    ASSERT_EQ(mouvement->NombreLignes(), 361);
    ASSERT_EQ(mouvement->NombreColonnes(), 13);
    EXPECT_EQ(mouvement->Cellule(0, 12), "0.000") << "closed at the start";
    EXPECT_EQ(mouvement->Cellule(180, 1), "73.5");
    EXPECT_EQ(mouvement->Cellule(180, 4), Format(etude.passes[0].resultats.Points[180].Rayon, "###.###"));
    EXPECT_EQ(mouvement->Cellule(180, 8), Format(etude.passes[1].resultats.Points[180].Rayon, "###.###"));
    const auto* remarquables = Controle<Grille>(*ecran, "Resultats");
    EXPECT_EQ(remarquables->Cellule(1, 1), Format(etude.passes[0].resultats.RayonMax, "###.###"));
    EXPECT_EQ(remarquables->Cellule(1, 3), Format(etude.passes[1].resultats.RayonMax, "###.###"));
    EXPECT_EQ(Controle<Grille>(*ecran, "Fermeture")->NombreLignes(), 6);
    EXPECT_GT(Controle<QLabel>(*ecran, "Echelle")->text().toDouble(), 0);

    // An edit after the calculation: its results are no longer shown, and are calculated anew before they are used.
    Feuilles().setCurrentIndex(0);
    Tape({{"Text5", "17.5"}});
    EXPECT_TRUE(etude.resultats.Perimes);
    EXPECT_FALSE(Feuilles().isTabEnabled(2));
    Clique("Calculer");
    EXPECT_EQ(calculee.count(), 2);
    EXPECT_FALSE(etude.resultats.Perimes);
    EXPECT_EQ(etude.passes[1].RayonGalet, 17.5);
}

TEST_F(EcranPaire, BadNumbersKeepTheScreenAndTheFocusGoesToTheField) {
    QSignalSpy calculee(ecran.get(), &SaisieCame::EtudeCalculee);
    Tape({{"Text9", "1"}, {"Text10", "62"}, {"Text11", "70"}, {"AngleCame", "360"}});
    Clique("Suivante");
    EXPECT_EQ(DerniereBoite(), Texte(200)) << "a zone at no speed would last for ever";
    EXPECT_TRUE(AFocus("Text8"));
    Tape({{"Text8", "120"}});
    Clique("Suivante");
    const struct {
        Saisies saisies;
        int texte;
        const char* focus;
    } fautes[] = {
        {{}, 657, "Text14"},
        {{{"Text15", "60"}}, 197, "Text14"},
        {{{"Text14", "100"}, {"Text2", "100"}, {"Text3", "16"}, {"Text4", "104"}, {"Text5", "18"}}, 498, "Text7"},
        {{{"Text7", "1"}, {"Text2", "-100"}, {"Text3", "-16"}}, 498, "Text2"}};
    for (const auto& faute : fautes) {
        Tape(faute.saisies);
        Clique("Calculer");
        EXPECT_EQ(DerniereBoite(), Texte(faute.texte));
        EXPECT_TRUE(AFocus(faute.focus)) << faute.focus;
    }
    Tape({{"Text2", "100"}, {"Text3", "16"}, {"Text6", "37"}});
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(497) + " " + Texte(485)) << "the follower arm crosses the line to the pivot";
    EXPECT_EQ(calculee.count(), 0);
    EXPECT_EQ(Feuilles().currentIndex(), 0);
    Controle<QComboBox>(*ecran, "Combo2")->setCurrentText("3");
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(519) + "\n" + Texte(520));
    EXPECT_TRUE(AFocus("Combo2"));
}

TEST_F(EcranPaire, BothCamsTurnTogetherAndTheRotationKeepsTheDataAsTheyAre) {
    TapeLaPaire();
    Clique("Calculer");
    ecran->Montre();
    auto* angle = Controle<QScrollBar>(*ecran, "HScroll1");
    angle->setValue(90);
    const QString pentes = Controle<QLabel>(*ecran, "Label42")->text();
    EXPECT_EQ(pentes.count('/'), 1) << "a slope each";
    Controle<QSlider>(*ecran, "Slider1")->setValue(7);
    Clique("Tourner");
    QTRY_VERIFY(angle->value() > 90);
    EXPECT_EQ((angle->value() - 90) % 7, 0) << "the slider is the step";
    Feuilles().setCurrentIndex(0);
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(435));
    EXPECT_EQ(Feuilles().currentIndex(), 2);
    Clique("Arret");
    EXPECT_EQ(etude.resultats.RotationEnCours, Faux);
}

TEST_F(EcranPaire, AStudyOutOfAFileOpensOnItsResults) {
    PosePaire();
    CalculeCamesConjuguees();
    Ouvre();
    EXPECT_EQ(Feuilles().currentIndex(), 2);
    EXPECT_EQ(Controle<QLineEdit>(*ecran, "Text15")->text(), "60.25");
    EXPECT_NE(ecran->windowTitle().indexOf("Paire"), -1);
    QSignalSpy quitte(ecran.get(), &FenetreEnfant::Quitte);
    Clique("Retour");
    EXPECT_EQ(quitte.count(), 1);
}
