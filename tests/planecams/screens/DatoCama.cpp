#include "planecams/screens/DatoCama.h"
#include "planecams/screens/DoProfil.h"

#include "data/TextesSaisie.h"
#include "outils/EcranDeSaisie.h"

namespace {

class SaisieBras : public EcranDeSaisie<DatoCama> {
protected:
    QSignalSpy calculee{ecran.get(), &SaisieCame::EtudeCalculee};

    void Loi(const char* texte) { Le<QComboBox>("Combo1")->setCurrentText(texte); }
    void ChoisitLoi(const char* texte) {
        Loi(texte);
        QTest::keyClick(Le<QComboBox>("Combo1")->lineEdit(), Qt::Key_Return);
        LaisseFaire();
    }
    void Calcule(const char* pointsParDegre) {
        Le<QComboBox>("Combo2")->setCurrentText(pointsParDegre);
        Clique("Calculer");
    }
    void TapeDonnees(const char* zones) {
        Tape({{"Text13", zones}});
        TapeLigne("Text1=80 Text2=30 Text3=100 Text4=70 Text5=40 Text6=10 Text18=300 Text7=0,8 Text8=.6 Text9=12");
        TapeLigne("Text17=270 Text10=1.5 Text11=-3 Text12=40");
    }
    void TapeZone(const char* final, const char* came, const char* loi) {
        Tape({{"Text15", final}, {"Text16", came}});
        Loi(loi);
        Clique("Suivante");
    }
    void AttendRefus(int texte, const char* champ) {
        EXPECT_TRUE(DerniereBoite().starts_with(Texte(texte))) << champ << " " << DerniereBoite();
        EXPECT_TRUE(AFocus(champ)) << champ;
    }
};

using SaisieTranslation = EcranDeSaisie<DoProfil>;

} // namespace

TEST_F(SaisieBras, AStudyIsEnteredZoneByZoneAndCalculated) {
    TapeDonnees("4");
    EXPECT_FALSE(Le<QPushButton>("Calculer")->isEnabled());
    Tape({{"Text14", "25"}});
    TapeZone("40", "90", "MS");
    EXPECT_EQ(TexteDe("Text14"), "40") << "a zone begins where the one before ends";
    TapeZone("40", "90", "CYC");
    dialogues.saisies = {"35"};
    TapeZone("25", "120", "MS_Spe");
    TapeZone("25", "60", "MSC50");
    Calcule("4");
    EXPECT_EQ(calculee.count(), 1);
    EXPECT_TRUE(dialogues.boites.empty()) << DerniereBoite();
    EXPECT_EQ(etude.donnees.MasseBrasO1A, 0.8) << "a decimal comma is a point";
    EXPECT_EQ(etude.donnees.Zones[3].NomLoi, "MS_Spe_ 35");
    EXPECT_EQ(etude.resultats.NombrePoints, 1440);
    EXPECT_NEAR(etude.donnees.Zones[1].Temps, 0.05, 1e-15);

    Ouvre();
    EXPECT_EQ(TexteDe("Text7"), ".8");
    EXPECT_EQ(TexteDe("Text13"), "4");
    EXPECT_EQ(Cellule(3, 6), "MSC50");
    // A new speed holds for the zones entered before, and the results are those of the old one until it is calculated.
    Tape({{"Text18", "150"}});
    EXPECT_TRUE(etude.resultats.Perimes);
    Clique("Calculer");
    EXPECT_FALSE(etude.resultats.Perimes);
    EXPECT_NEAR(etude.donnees.Zones[1].Temps, 0.1, 1e-15);
}

TEST_F(SaisieBras, AZoneAtFaultIsRefusedWithTheFocusOnIt) {
    TapeDonnees("2");
    const struct {
        const char *champ, *texte, *bon, *loi;
        int message;
        const char* fautif;
    } cas[] = {{"Text19", "1.01", ".5", "MS", 522, "Text19"}, {"Text19", ".5", ".5", "XYZ", 511, "Combo1"},
               {"Text16", "0", "90", "MS", 204, "Text16"},    {"Text18", "0", "300", "MS", 200, "Text18"},
               {"Text4", "0", "70", "MS", 202, "Text4"},      {"Text6", "-5", "10", "MS", 201, "Text6"}};
    Tape({{"Text16", "90"}});
    for (const auto& c : cas) {
        Tape({{c.champ, c.texte}});
        Loi(c.loi);
        Clique("Suivante");
        AttendRefus(c.message, c.fautif);
        Tape({{c.champ, c.bon}});
    }
    Tape({{"Text4", "-70"}});
    Clique("Suivante");
    EXPECT_EQ(DerniereBoite(), Texte(75)) << "an arm that cannot reach";
    Tape({{"Text4", "70"}, {"Text19", "1"}});
    Clique("Suivante");
    EXPECT_EQ(etude.donnees.ZoneCourante, 2) << "a coefficient of exactly 1 is accepted";
}

TEST_F(SaisieBras, CustomPercentage) {
    TapeDonnees("1");
    dialogues.saisies = {"100"};
    TapeZone("40", "90", "MS_Spe");
    EXPECT_EQ(DerniereBoite(), Texte(416));
    EXPECT_TRUE(etude.donnees.Zones[1].NomLoi.empty());
    dialogues.saisies = {"5"};
    Clique("Suivante");
    EXPECT_EQ(etude.donnees.Zones[1].NomLoi, "MS_Spe_ 5");
}

TEST_F(SaisieBras, PointsPerDegree) {
    TapeDonnees("1");
    TapeZone("10", "5000", "MS");
    Calcule("3");
    AttendRefus(519, "Combo2");
    Calcule("10");
    EXPECT_EQ(DerniereBoite(), Texte(205)) << "too many points";
    TapeZone("10", "89.7", "MS");
    Calcule("1");
    EXPECT_TRUE(AFocus("Combo2")) << "a zone must end on a point";
    EXPECT_EQ(calculee.count(), 0);
    Calcule("10");
    EXPECT_EQ(calculee.count(), 1);
    EXPECT_EQ(etude.resultats.NombrePoints, 897);
}

TEST_F(SaisieBras, TypedGravityIsCutBackToATurn) {
    Tape({{"Text17", "400"}});
    EXPECT_EQ(etude.donnees.AnglePesanteur, 360);
    Tape({{"Text17", "12.5"}});
    EXPECT_EQ(etude.donnees.AnglePesanteur, 12.5) << "the scroll bar's whole degrees do not round the entry";
}

TEST_F(SaisieBras, ReturnWalksTheFieldsInOrder) {
    SuitReturn({"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text18", "Text7", "Text8", "Text9", "Text10",
                "Text11", "Text12", "Text13"});
}

TEST_F(SaisieBras, ALawFileIsOfferedToOneZoneOnly) {
    auto* lois = Le<QComboBox>("Combo1");
    Tape({{"Text13", "2"}});
    EXPECT_LT(lois->findText("Fichier"), 0);
    TapeDonnees("1");
    TapeLigne("Text14=25 Text15=40");
    dialogues.fichiers = {std::nullopt, Exemple("Aller-retour.Lmi")};
    ChoisitLoi("Fichier");
    EXPECT_EQ(lois->currentText(), "CYC") << "cancelled: as it was";
    ChoisitLoi("Fichier");
    EXPECT_EQ(TexteDe("Text16"), "360");
    EXPECT_EQ(Le<QComboBox>("Combo2")->currentText(), "2");
    Clique("Suivante");
    Clique("Calculer");
    EXPECT_TRUE(dialogues.boites.empty()) << DerniereBoite();
    EXPECT_EQ(etude.resultats.NombrePoints, 720);
    // The law of this file comes back: the cam closes. Cut at half of its points it does not.
    EXPECT_FALSE(Le<QLabel>("RemarquesZones")->isVisible()) << S(Le<QLabel>("RemarquesZones")->text());
    Le<QComboBox>("Combo2")->setFocus(Qt::TabFocusReason);
    Frappe(*ecran, "1");
    Clique("Calculer");
    Clique("Suivante");
    EXPECT_NE(S(Le<QLabel>("RemarquesZones")->text()).find(Texte(TexteCameOuverte) + " 25 "), std::string::npos);
}

TEST_F(SaisieTranslation, IsEnteredAlike) {
    etude.donnees.TypeCame = "Lineaire";
    TapeLigne("Text1=12 Text2=240 Text3=16 Text4=1,8 Text13=2 Text14=0 Text15=70 Text16=180");
    EXPECT_LT(Le<QComboBox>("Combo1")->findText("Fichier"), 0);
    Clique("Suivante");
    EXPECT_EQ(DerniereBoite(), Texte(393)) << "a radius of 0";
    TapeLigne("Text14=50");
    Clique("Suivante");
    TapeLigne("Text15=50 Text16=180");
    Clique("Suivante");
    Clique("Calculer");
    EXPECT_EQ(etude.resultats.EtudeModifiee, Vrai) << DerniereBoite();
    EXPECT_EQ(etude.donnees.MasseA, 1.8);
    EXPECT_EQ(etude.resultats.RayonMax, 70);
    EXPECT_EQ(Cellule(0, 2), "50") << "no columns of arm angles";
}
