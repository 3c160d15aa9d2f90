#include "planecams/screens/DatoCama.h"
#include "planecams/screens/DoProfil.h"

#include "data/Demarrage.h"
#include "data/Textes.h"
#include "laws/CalculLois.h"
#include "outils/EcranDeSaisie.h"
#include "widgets/ChampNombre.h"
#include "widgets/Grille.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <fstream>

namespace {

class SaisieBras : public EcranDeSaisie<DatoCama> {
protected:
    void Tape(const char* champ, const char* texte) { TapeDans(*ecran, champ, texte); }
    void Loi(const char* texte) { Controle<QComboBox>(*ecran, "Combo1")->setCurrentText(texte); }
    QString Texte_(const char* champ) { return Controle<QLineEdit>(*ecran, champ)->text(); }

    void TapeDonnees() {
        const std::pair<const char*, const char*> donnees[] = {
            {"Text1", "80"},   {"Text2", "30"},   {"Text3", "100"}, {"Text4", "70"}, {"Text5", "40"},
            {"Text6", "10"},   {"Text18", "300"}, {"Text7", "0,8"}, {"Text8", ".6"}, {"Text9", "12"},
            {"Text17", "270"}, {"Text10", "1.5"}, {"Text11", "-3"}, {"Text12", "40"}};
        Controle<QLineEdit>(*ecran, "Text13")->setText("1");
        for (const auto& [champ, texte] : donnees) Tape(champ, texte);
    }
    void TapeZone(const char* final, const char* came, const char* loi) {
        Tape("Text15", final);
        Tape("Text16", came);
        Loi(loi);
        Clique("Suivante");
    }
};

} // namespace

TEST_F(SaisieBras, AStudyIsEnteredZoneByZoneAndCalculated) {
    QSignalSpy calculee(ecran.get(), &DatoCama::EtudeCalculee);
    TapeDonnees();
    Tape("Text13", "4");
    EXPECT_FALSE(Controle<QPushButton>(*ecran, "Calculer")->isEnabled());
    Tape("Text14", "25");
    TapeZone("40", "90", "MS");
    EXPECT_EQ(Texte_("Text14"), "40") << "a zone begins where the one before ends";
    TapeZone("40", "90", "CYC");
    dialogues.saisies = {"35"};
    TapeZone("25", "120", "MS_Spe");
    TapeZone("25", "60", "MS");
    Controle<QComboBox>(*ecran, "Combo2")->setCurrentText("4");
    Clique("Calculer");

    EXPECT_EQ(calculee.count(), 1);
    EXPECT_TRUE(dialogues.boites.empty()) << DerniereBoite();
    EXPECT_EQ(etude.donnees.MasseBrasO1A, 0.8) << "a decimal comma is a point";
    EXPECT_EQ(etude.donnees.Zones[3].NomLoi, "MS_Spe_ 35");
    EXPECT_EQ(etude.resultats.NombrePoints, 1440);
    EXPECT_NEAR(etude.resultats.Mouvement[360].Course, 40, 1e-12);
    EXPECT_NEAR(etude.donnees.Zones[1].Temps, 0.05, 1e-15);
    EXPECT_EQ(etude.resultats.EtudeModifiee, Vrai);
    EXPECT_EQ(etude.resultats.ResultatsPrets, Vrai);
    EXPECT_EQ(Controle<Grille>(*ecran, "Grille")->Cellule(2, 6), "MS_Spe_ 35");
}

TEST_F(SaisieBras, AStudyThatWasReadComesUpWhole) {
    TapeDonnees();
    Tape("Text13", "2");
    TapeZone("15", "180", "MS");
    TapeZone("0", "180", "MSC50");
    Ouvre();
    EXPECT_EQ(Texte_("Text7"), ".8");
    EXPECT_EQ(Texte_("Text13"), "2");
    EXPECT_EQ(Texte_("Text17"), "270");
    EXPECT_EQ(Controle<Grille>(*ecran, "Grille")->Cellule(1, 6), "MSC50");
    EXPECT_TRUE(Controle<QPushButton>(*ecran, "Calculer")->isEnabled());
    // A new speed holds for the zones entered before, and the results are those of the old one until it is calculated.
    Tape("Text18", "150");
    EXPECT_TRUE(etude.resultats.Perimes);
    Clique("Calculer");
    EXPECT_FALSE(etude.resultats.Perimes);
    EXPECT_EQ(etude.resultats.EtudeModifiee, Vrai);
    EXPECT_NEAR(etude.donnees.Zones[1].Temps, 0.2, 1e-15);
}

TEST_F(SaisieBras, NumberOfZones) {
    Tape("Text13", "0");
    EXPECT_EQ(DerniereBoite(), Texte(72));
    EXPECT_TRUE(AFocus("Text13"));
    Tape("Text13", "99999");
    EXPECT_EQ(DerniereBoite(), Texte(206));
    Tape("Text13", "3.7");
    EXPECT_EQ(etude.donnees.NombreZones, 3);
    EXPECT_EQ(etude.donnees.Zones.BorneHaute(), 3);
    QSignalSpy quitte(ecran.get(), &DatoCama::Quitte);
    dialogues.boites.clear();
    Controle<QLineEdit>(*ecran, "Text13")->setText("0");
    Controle<QLineEdit>(*ecran, "Text13")->setFocus();
    Controle<QPushButton>(*ecran, "Retour")->setFocus();
    Clique("Retour");
    EXPECT_EQ(quitte.count(), 1);
    EXPECT_TRUE(dialogues.boites.empty()) << "the way back is free";
}

TEST_F(SaisieBras, AZoneAtFaultIsRefusedWithTheFocusOnIt) {
    TapeDonnees();
    Tape("Text13", "2");
    const struct {
        const char *champ, *texte, *loi;
        int message;
        const char* fautif;
    } cas[] = {{"Text19", "1.01", "MS", 522, "Text19"}, {"Text19", "-.1", "MS", 522, "Text19"},
               {"Text19", ".5", "XYZ", 511, "Combo1"},  {"Text16", "0", "MS", 204, "Text16"},
               {"Text18", "0", "MS", 200, "Text18"},    {"Text4", "0", "MS", 202, "Text4"}};
    for (const auto& c : cas) {
        Tape("Text16", "90");
        Tape("Text19", ".5");
        Tape(c.champ, c.texte);
        Loi(c.loi);
        Clique("Suivante");
        EXPECT_EQ(DerniereBoite().find(Texte(c.message)), 0u) << c.champ << " " << DerniereBoite();
        EXPECT_TRUE(AFocus(c.fautif)) << c.champ;
        EXPECT_EQ(etude.donnees.ZoneCourante, 1);
        Tape("Text18", "300");
    }
    Tape("Text4", "70");
    Tape("Text6", "-5");
    Clique("Suivante");
    EXPECT_EQ(DerniereBoite(), Texte(201));
    EXPECT_TRUE(AFocus("Text6"));
    Tape("Text6", "10");
    Tape("Text4", "-70");
    Loi("MS");
    Clique("Suivante");
    EXPECT_EQ(DerniereBoite(), Texte(75)) << "an arm that cannot reach";
    Tape("Text4", "70");
    Tape("Text19", "1");
    Clique("Suivante");
    EXPECT_EQ(etude.donnees.ZoneCourante, 2) << "a coefficient of exactly 1 is accepted";
}

TEST_F(SaisieBras, CustomPercentage) {
    TapeDonnees();
    Tape("Text13", "1");
    Tape("Text16", "90");
    const std::optional<std::string> refusees[] = {"0", "100", "", "abc", std::nullopt};
    for (const auto& reponse : refusees) {
        dialogues.saisies = {reponse};
        Loi("MS_Spe");
        Clique("Suivante");
        EXPECT_EQ(DerniereBoite(), Texte(416));
        EXPECT_TRUE(etude.donnees.Zones[1].NomLoi.empty());
        dialogues.boites.clear();
    }
    EXPECT_EQ(dialogues.demandes.back(), Texte(73) + "|" + Texte(309) + "|50");
    dialogues.saisies = {"5"};
    Clique("Suivante");
    EXPECT_EQ(etude.donnees.Zones[1].NomLoi, "MS_Spe_ 5");
}

TEST_F(SaisieBras, LawsAreOfferedAndUnknownOnesRefused) {
    auto* lois = Controle<QComboBox>(*ecran, "Combo1");
    EXPECT_EQ(lois->count(), 13);
    for (int i = 0; i < lois->count(); ++i) EXPECT_FALSE(lois->itemText(i).contains("MSH"));
    Controle<QLineEdit>(*ecran, "Text19")->setText("0.3");
    lois->setFocus();
    lois->setCurrentText("XYZ");
    QTest::keyClick(lois->lineEdit(), Qt::Key_Return);
    LaisseFaire();
    EXPECT_EQ(DerniereBoite(), Texte(521) + " " + Texte(103));
    EXPECT_EQ(lois->currentIndex(), 0);
    EXPECT_EQ(Texte_("Text19"), ".5");
}

TEST_F(SaisieBras, PointsPerDegreeAndTooManyPoints) {
    TapeDonnees();
    Tape("Text13", "1");
    Tape("Text15", "10");
    Tape("Text16", "5000");
    Loi("MS");
    Clique("Suivante");
    for (const char* points : {"3", "0", "", "2x"}) {
        Controle<QComboBox>(*ecran, "Combo2")->setCurrentText(points);
        Clique("Calculer");
        EXPECT_EQ(DerniereBoite(), Texte(519) + "\n" + Texte(520)) << points;
        EXPECT_TRUE(AFocus("Combo2"));
    }
    Controle<QComboBox>(*ecran, "Combo2")->setCurrentText("10");
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(205));
    EXPECT_EQ(etude.donnees.Zones[1].AngleCame, 5000);
}

TEST_F(SaisieBras, AZoneMustEndOnAPoint) {
    TapeDonnees();
    Tape("Text13", "1");
    Tape("Text15", "10");
    Tape("Text16", "89.7");
    Loi("MS");
    Clique("Suivante");
    Clique("Calculer");
    EXPECT_FALSE(dialogues.boites.empty());
    EXPECT_TRUE(AFocus("Combo2"));
    dialogues.boites.clear();
    Controle<QComboBox>(*ecran, "Combo2")->setCurrentText("10");
    Clique("Calculer");
    EXPECT_EQ(etude.resultats.NombrePoints, 897);
    EXPECT_TRUE(dialogues.boites.empty()) << DerniereBoite();
}

TEST_F(SaisieBras, ComesBackWithWhatWasChangedMeanwhile) {
    TapeDonnees();
    ecran->hide();
    etude.donnees.MasseA = 7.5;
    etude.donnees.AnglePesanteur = -90; // as a file may have it
    ecran->show();
    EXPECT_EQ(Texte_("Text10"), "7.5");
    EXPECT_EQ(Texte_("Text17"), "-90");
    EXPECT_EQ(etude.donnees.AnglePesanteur, -90) << "only a typed value is cut back";
}

TEST_F(SaisieBras, ReturnWalksTheFieldsInOrder) {
    SuitReturn({"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text18", "Text7", "Text8", "Text9", "Text10",
                "Text11", "Text12", "Text13"});
}

TEST_F(SaisieBras, GravityIsCutBackToATurn) {
    Tape("Text17", "400");
    EXPECT_EQ(etude.donnees.AnglePesanteur, 360);
    Tape("Text17", "-5");
    EXPECT_EQ(Texte_("Text17"), "0");
    Tape("Text17", "12.5");
    EXPECT_EQ(etude.donnees.AnglePesanteur, 12.5) << "the scroll bar's whole degrees do not round the entry";
}

TEST_F(SaisieBras, ALawFileIsOfferedToOneZoneOnly) {
    auto* lois = Controle<QComboBox>(*ecran, "Combo1");
    Tape("Text13", "1");
    EXPECT_GE(lois->findText("Fichier"), 0);
    Tape("Text13", "2");
    EXPECT_LT(lois->findText("Fichier"), 0);
    Tape("Text13", "1");

    const auto chemin = std::filesystem::path(testing::TempDir()) / "loi.Lmi";
    std::ofstream fichier(chemin);
    for (int i = 0; i <= 721; ++i) fichier << std::min(i / 720.0, 1.0) << ";-1;.5\n";
    fichier.close();
    TapeDonnees();
    Tape("Text14", "25");
    Tape("Text15", "40");
    dialogues.fichiers = {std::nullopt, chemin};
    for (int fois = 0; fois < 2; ++fois) {
        lois->setCurrentText("Fichier");
        QTest::keyClick(lois->lineEdit(), Qt::Key_Return);
        LaisseFaire();
        if (fois == 0) {
            EXPECT_GT(etude.lois.ListeLois.BorneHaute(), 1) << "cancelled: as it was";
            EXPECT_EQ(lois->currentText(), "CYC");
        }
    }
    EXPECT_EQ(etude.lois.ListeLois[1].NomLoi, "Fichier");
    EXPECT_EQ(Texte_("Text16"), "360");
    EXPECT_EQ(Controle<QComboBox>(*ecran, "Combo2")->currentText(), "2");
    Clique("Suivante");
    Clique("Calculer");
    EXPECT_TRUE(dialogues.boites.empty()) << DerniereBoite();
    EXPECT_EQ(etude.resultats.NombrePoints, 720);
    EXPECT_NEAR(etude.resultats.Mouvement[361].Course, 32.5, 1e-9);
    std::filesystem::remove(chemin);
}

TEST_F(SaisieBras, TheTranslatingFollowerIsEnteredAlike) {
    DoProfil profil;
    profil.show();
    LaisseFaire();
    const auto tape = [&](const char* champ, const char* texte) { TapeDans(profil, champ, texte); };
    const auto clique = [&](const char* bouton) { CliqueSur(profil, bouton); };
    etude.donnees.TypeCame = "Lineaire";
    tape("Text1", "12");
    tape("Text2", "240");
    tape("Text3", "16");
    tape("Text4", "1,8");
    tape("Text13", "2");
    EXPECT_LT(Controle<QComboBox>(profil, "Combo1")->findText("Fichier"), 0);
    tape("Text14", "0");
    tape("Text15", "70");
    tape("Text16", "180");
    clique("Suivante");
    EXPECT_EQ(DerniereBoite(), Texte(393));
    tape("Text14", "50");
    clique("Suivante");
    tape("Text15", "50");
    tape("Text16", "180");
    clique("Suivante");
    QSignalSpy calculee(&profil, &SaisieCame::EtudeCalculee);
    clique("Calculer");
    EXPECT_EQ(calculee.count(), 1);
    EXPECT_EQ(etude.donnees.MasseA, 1.8);
    EXPECT_EQ(etude.resultats.RayonMax, 70);
    EXPECT_EQ(Controle<Grille>(profil, "Grille")->Cellule(0, 2), "50") << "no columns of arm angles";
}
