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

TEST_F(FenetreResultat, ShowsTheRecordAtTheAngleAskedFor) {
    const ResultatsEtude& r = etude.resultats;
    EXPECT_EQ(Valeur("RayonMax"), Format(r.RayonMax, "###.###"));

    // A row of a listing is a degree, whatever the points per degree.
    ASSERT_EQ(etude.donnees.PointsParDegre, 2);
    EXPECT_EQ(Le<Grille>("Grille1")->NombreLignes(), 361);
    EXPECT_EQ(Cellule(90, 1, "Grille1"), Format(r.Points[180].Rayon, "###.###"));

    Angle().setValue(60);
    EXPECT_NEAR(etude.resultats.AngleRotation, Pi / 3, 1e-15);
    Feuilles().setCurrentIndex(4);
    Tape({{"Text1", "200"}});
    EXPECT_EQ(Angle().value(), 200);
    Tape({{"Text1", "361"}});
    EXPECT_EQ(Angle().value(), 0);
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
}

TEST_F(FenetreResultat, RecalculationShowsTheNewResults) {
    QSignalSpy recalculee(ecran.get(), &Resultat::EtudeRecalculee);
    const double force = etude.resultats.ForceGaletMax;
    Tape({{"Text6", "150"}, {"Text2", "5,5"}});
    Clique("Recalcul");
    EXPECT_EQ(recalculee.count(), 1);
    EXPECT_EQ(etude.donnees.VitesseCame, 150);
    EXPECT_NE(etude.resultats.ForceGaletMax, force);
    EXPECT_EQ(etude.resultats.EtudeModifiee, Vrai);
    EXPECT_EQ(Valeur("ForceGaletMax"), Format(etude.resultats.ForceGaletMax, "####.##"));
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
    EXPECT_TRUE(Montree("Notes") && Montree("PenteVraie")) << "two points a degree: the slope misleads";
    // The subscript of the peak is told as a cam angle.
    EXPECT_NE(Valeur("ForceGaletMaxAngle").find(Format(etude.resultats.ForceGaletMaxAngle / 2.0, "##0")),
              std::string::npos);
}
