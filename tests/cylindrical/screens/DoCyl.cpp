#include "cylindrical/screens/DoCyl.h"
#include "cylindrical/screens/DoCylOsc.h"

#include "data/Demarrage.h"
#include "data/Textes.h"
#include "outils/EcranDeSaisie.h"

namespace {

using SaisieCyl = EcranDeSaisie<DoCyl>;
using SaisieCylOsc = EcranDeSaisie<DoCylOsc>;

} // namespace

TEST_F(SaisieCyl, AStudyIsEnteredAndTheDiameterIsAskedForInTheEnd) {
    etude.donnees.TypeCame = "Cylindrique";
    QSignalSpy calculee(ecran.get(), &SaisieCame::EtudeCalculee);
    Tape({{"Text6", "2"}, {"Text7", "5"}, {"Text8", "45"}, {"Text9", "180"}});
    Clique("Suivante");
    EXPECT_EQ(DerniereBoite(), Texte(200)) << "a zone at no speed would last for ever";
    EXPECT_TRUE(AFocus("Text1"));
    Tape({{"Text1", "90"}, {"Text2", "8,5"}, {"Text4", "2.5"}, {"Text5", "-30"}, {"Text3", "270"}});
    Clique("Suivante");
    EXPECT_EQ(Le<QLineEdit>("Text7")->text(), "45");
    EXPECT_FALSE(Le<QLineEdit>("Text7")->isEnabled()) << "a zone begins where the one before ends";
    Tape({{"Text8", "5"}, {"Text9", "180"}});
    Clique("Suivante");
    Le<QComboBox>("Combo2")->setCurrentText("3");
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(519) + "\n" + Texte(520)) << "before the diameter";
    EXPECT_TRUE(AFocus("Combo2"));
    Le<QComboBox>("Combo2")->setCurrentText("2");
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(419));
    EXPECT_TRUE(AFocus("Text10"));
    EXPECT_EQ(calculee.count(), 0);
    dialogues.boites.clear();
    Tape({{"Text10", "110"}});
    Clique("Calculer");
    EXPECT_EQ(calculee.count(), 1);
    EXPECT_TRUE(dialogues.boites.empty()) << DerniereBoite();
    EXPECT_EQ(etude.donnees.RayonGalet, 8.5);
    EXPECT_EQ(etude.donnees.AnglePesanteur, 270);
    EXPECT_EQ(etude.resultats.RayonMax, 45);
    EXPECT_EQ(etude.resultats.NombrePoints, 720);
    EXPECT_EQ(Cellule(0, 1) + Cellule(0, 2) + Cellule(0, 3), "180545");
}

TEST_F(SaisieCyl, OneZoneMayTakeItsLawFromAFileAndTurnsMayNotOverlap) {
    etude.donnees.TypeCame = "Cylindrique";
    SuitReturn({"Text1", "Text2", "Text10", "Text4", "Text5", "Text6"});
    Tape({{"Text1", "90"}, {"Text2", "8"}, {"Text10", "110"}, {"Text6", "1"}, {"Text8", "20"}, {"Text9", "720"}});
    auto* lois = Le<QComboBox>("Combo1");
    dialogues.fichiers = {CheminAppli / "Profils" / "Aller-retour.Lmi"};
    QSignalSpy calculee(ecran.get(), &SaisieCame::EtudeCalculee);
    for (const auto& [loi, calculs] : {std::pair{"MS", 0}, {"Fichier", 1}}) {
        lois->setCurrentText(loi);
        QTest::keyClick(lois->lineEdit(), Qt::Key_Return);
        LaisseFaire();
        Clique("Suivante");
        Clique("Calculer");
        EXPECT_EQ(calculee.count(), calculs) << loi;
        EXPECT_EQ(DerniereBoite().find(Texte(430)) != std::string::npos, calculs == 0) << DerniereBoite();
        dialogues.boites.clear();
    }
    EXPECT_EQ(etude.resultats.NombrePoints, 720);
}

TEST_F(SaisieCylOsc, TheDistanceThatSuitsTheArmIsOffered) {
    etude.donnees.TypeCame = "Oscillation";
    SuitReturn({"Text1", "Text2", "Text3", "RayonGalet", "VitesseCame", "Text6", "Text7", "NombreZones"});
    Tape({{"Text1", "100"},
          {"Text3", "120"},
          {"RayonGalet", "8"},
          {"VitesseCame", "150"},
          {"Text6", ".06"},
          {"Text7", "4"},
          {"NombreZones", "2"},
          {"AngleDepart", "-20"},
          {"AngleFinal", "20"},
          {"AngleCame", "180"}});
    EXPECT_LT(Le<QComboBox>("Combo1")->findText("Fichier"), 0);
    Clique("Suivante");
    Tape({{"AngleFinal", "-20"}, {"AngleCame", "180"}});
    Clique("Suivante");
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(202)) << "before anything is offered";
    EXPECT_TRUE(AFocus("Text2"));

    Tape({{"Text2", "90"}});
    dialogues.reponses = {false, true};
    QSignalSpy calculee(ecran.get(), &SaisieCame::EtudeCalculee);
    Clique("Calculer");
    EXPECT_EQ(dialogues.demandes.back(),
              Texte(528) + " 'a' " + Texte(529) + "\na = 87.29\n" + Texte(530) + " : 100. " + Texte(531) + " ");
    EXPECT_EQ(etude.donnees.CoteA, 100);
    Clique("Calculer");
    EXPECT_EQ(etude.donnees.CoteA, 87.29);
    EXPECT_EQ(Le<QLineEdit>("Text1")->text(), "87.29");
    Clique("Calculer");
    EXPECT_EQ(calculee.count(), 3) << "asked no more: the distance is the one offered";
    EXPECT_EQ(etude.donnees.InertieMasseA, 0.06);
    EXPECT_NEAR(etude.resultats.Points[90].Rayon, 0, 1e-12);
    EXPECT_EQ(Cellule(0, 3), "180") << "angles, and no radii";
}
