#include "studies/screens/Resultat.h"

#include "outils/EcranDeSaisie.h"
#include "studies/FichierEtude.h"

#include <QAction>
#include <QScrollBar>
#include <QSlider>

namespace {

struct EtudeCalculee {
    EtudeCalculee() { CalculeExemple("Exemple.Ang"); }
};

class FenetreResultat : private EtudeCalculee, public EcranDeSaisie<Resultat> {
protected:
    void Montre(const char* exemple) {
        CalculeExemple(exemple);
        Ouvre();
    }
    std::string Valeur(const char* nom) { return S(Le<QLabel>(nom)->text()); }
    bool Montree(const char* nom) { return Le<QWidget>(nom)->isVisible(); }
    QScrollBar& Angle() { return *Le<QScrollBar>("HScroll1"); }
    QTabWidget& Feuilles() { return *Le<QTabWidget>("SSTab1"); }
};

} // namespace

TEST_F(FenetreResultat, ShowsTheRecordInItsMasks) {
    const ResultatsEtude& r = etude.resultats;
    EXPECT_EQ(Valeur("RayonMax"), Format(r.RayonMax, "###.###"));
    EXPECT_EQ(Valeur("ForceGaletMax"), Format(r.ForceGaletMax, "####.##"));
    EXPECT_EQ(Valeur("AngleTangentMax"), Format(r.AngleTangentMax * RadDeg - 90, "##.##"));
    EXPECT_NE(Valeur("ForceGaletMaxAngle").find(std::to_string(r.ForceGaletMaxAngle)), std::string::npos);
    EXPECT_EQ(S(ecran->windowTitle()), "Exemple.Ang " + Texte(118));

    // A row of a listing is a degree, whatever the points per degree.
    ASSERT_EQ(etude.donnees.PointsParDegre, 2);
    EXPECT_EQ(Le<Grille>("Grille1")->NombreLignes(), 361);
    EXPECT_EQ(Cellule(90, 0, "Grille1"), "90");
    EXPECT_EQ(Cellule(90, 1, "Grille1"), Format(r.Points[180].Rayon, "###.###"));
    EXPECT_EQ(Cellule(45, 1, "Grille2"), Format(r.Mouvement[90].Course, "###.###"));
    EXPECT_EQ(Cellule(30, 2, "Grille3"), Format(r.Points[60].Couple, "###.###"));
    EXPECT_EQ(Cellule(360, 1, "Grille5"), Format(0, "###.##"));
    EXPECT_EQ(Le<Grille>("Grille")->NombreLignes(), 4);
}

TEST_F(FenetreResultat, ScrollAngleAndTextFollowEachOther) {
    Angle().setValue(60);
    EXPECT_EQ(TexteDe("Text1"), "60");
    EXPECT_EQ(Valeur("Label42"), Format(etude.resultats.Profil[120].AngleTangent * RadDeg - 90, "0.00"));
    EXPECT_NEAR(etude.resultats.AngleRotation, Pi / 3, 1e-15);
    Feuilles().setCurrentIndex(4);
    Tape({{"Text1", "200"}});
    EXPECT_EQ(Angle().value(), 200);
    Tape({{"Text1", "361"}});
    EXPECT_EQ(Angle().value(), 0);
    EXPECT_EQ(TexteDe("Text1"), "0");
}

TEST_F(FenetreResultat, TurnsBothWaysAndStops) {
    ecran->MontreRotation();
    Le<QSlider>("Slider1")->setValue(9);
    Angle().setValue(355);
    Clique("Tourner");
    EXPECT_EQ(etude.resultats.RotationEnCours, Vrai);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Angle().value() != 355; }));
    EXPECT_LT(Angle().value(), 180) << "over the end it goes on from the start";
    Le<QAction>("SensTrigo")->trigger();
    Angle().setValue(100);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Angle().value() != 100; }));
    EXPECT_LT(Angle().value(), 100);

    // A calculation would change the study under the drawing.
    Feuilles().setCurrentIndex(0);
    Clique("Recalcul");
    EXPECT_EQ(DerniereBoite(), Texte(435));
    EXPECT_EQ(Feuilles().currentIndex(), 4);
    Clique("Arret");
    EXPECT_EQ(etude.resultats.RotationEnCours, Faux);
    const int arret = Angle().value();
    QTest::qWait(50);
    EXPECT_EQ(Angle().value(), arret);
    QSignalSpy quitte(ecran.get(), &Resultat::Quitte);
    QTest::keyClick(ecran.get(), Qt::Key_Escape);
    EXPECT_EQ(quitte.count(), 1);
}

TEST_F(FenetreResultat, RecalculationShowsTheNewResults) {
    QSignalSpy recalculee(ecran.get(), &Resultat::EtudeRecalculee);
    const double rayon = etude.resultats.RayonMax, force = etude.resultats.ForceGaletMax;
    Tape({{"Text6", "150"}, {"Text2", "5,5"}});
    Clique("Recalcul");
    EXPECT_EQ(recalculee.count(), 1);
    EXPECT_EQ(etude.donnees.VitesseCame, 150);
    EXPECT_EQ(etude.donnees.MasseA, 5.5);
    EXPECT_EQ(etude.resultats.RayonMax, rayon);
    EXPECT_NE(etude.resultats.ForceGaletMax, force);
    EXPECT_EQ(etude.resultats.EtudeModifiee, Vrai);
    EXPECT_EQ(Valeur("ForceGaletMax"), Format(etude.resultats.ForceGaletMax, "####.##"));
    EXPECT_NEAR(etude.donnees.Zones[1].Temps, etude.donnees.Zones[1].AngleCame / 150 / 6, 1e-15);
}

TEST_F(FenetreResultat, AFailedRecalculationKeepsDataAndTables) {
    const Etude avant = etude;
    etude.donnees.Zones[2].AngleFinal = -120; // the arm would pass the cam centre
    Clique("Recalcul");
    EXPECT_EQ(DerniereBoite(), Texte(75) + "\n\n" + Texte(509));
    EXPECT_EQ(etude.resultats.RayonMax, avant.resultats.RayonMax);
    EXPECT_EQ(Cellule(90, 1, "Grille1"), Format(avant.resultats.Points[180].Rayon, "###.###"));
}

TEST_F(FenetreResultat, ADevelopedCamIsWalkedAlongToItsLastTurn) {
    Montre("Deux-tours.Cyl");
    EXPECT_EQ(Angle().maximum(), 720);
    Angle().setValue(500);
    EXPECT_EQ(Valeur("Label42"), Format(etude.resultats.Profil[1000].AngleTangent * RadDeg, "0.00"));
    EXPECT_EQ(etude.resultats.AngleRotation, 0) << "the sheet lies still, also in the scripts";
    EXPECT_EQ(Valeur("AngleTangentMax"), Format(etude.resultats.AngleTangentMax * RadDeg, "##.##"));
    EXPECT_FALSE(Montree("GroupeBras"));
    // The subscript of the peak is told as a cam angle.
    EXPECT_NE(Valeur("ForceGaletMaxAngle").find(Format(etude.resultats.ForceGaletMaxAngle / 2.0, "##0")),
              std::string::npos);
}

TEST_F(FenetreResultat, NotesStandBesideWhatTheyBelongToAndGoWithIt) {
    Montre("Deux-tours.Cyl");
    EXPECT_TRUE(Montree("Notes") && Montree("PenteVraie"));
    EXPECT_NE(Valeur("Notes").find(Texte(832)), std::string::npos);
    etude.donnees.PointsParDegre = 1;
    CalculeEtude();
    ecran->Montre();
    EXPECT_FALSE(Montree("Notes") || Montree("PenteVraie"));
}

TEST_F(FenetreResultat, TheOscillatingStudyIsCalculatedAgainWithItsOwnEntries) {
    Montre("Balancier.Osc");
    EXPECT_FALSE(Montree("Text2")) << "no mass at a point A";
    EXPECT_TRUE(Montree("GroupeBras"));
    EXPECT_EQ(Valeur("CoupleDemarrage"), Format(etude.resultats.CoupleDemarrage, "###.##"));
    EXPECT_EQ(Le<Grille>("Grille2")->NombreColonnes(), 4) << "no point A";
    Tape({{"Text7", "0,12"}, {"Text8", "-2"}});
    Clique("Recalcul");
    EXPECT_EQ(etude.donnees.InertieMasseA, 0.12);
    EXPECT_NEAR(etude.resultats.Points[300].ForceGalet, 2 / 0.112, 1e-9) << "at rest the constant torque alone";
}
