#include "studies/NotesEtude.h"

#include "cams/Courbure.h"
#include "cylindrical/GeometrieCyl.h"
#include "laws/FichierLoi.h"
#include "studies/EtudeImprimee.h"

#include <set>

namespace {

class NotesEtudes : public EtudeImprimee {
protected:
    void Pose(const char* type, std::int16_t pointsParDegre) {
        etude.donnees.TypeCame = type;
        etude.donnees.NomFichier = "Essai";
        etude.donnees.CoteA = 100;
        etude.donnees.CoteB = 65;
        etude.donnees.RayonO1A = etude.donnees.RayonO1P = 100;
        etude.donnees.AnglePO1A = 50;
        etude.donnees.DiametreCame = 120;
        etude.donnees.RayonGalet = 8;
        etude.donnees.VitesseCame = 90;
        etude.donnees.AnglePesanteur = 90;
        etude.donnees.MasseA = 2;
        etude.donnees.PointsParDegre = pointsParDegre;
    }
    Notes Calcule() {
        CalculeEtude();
        EXPECT_TRUE(SansErreur());
        return NotesEnVigueur(LeTypeEtude());
    }
    static bool A(const Notes& notes, const char* valeur, int texte) {
        return notes.Textes(valeur).find(Texte(texte)) != std::string::npos;
    }
    /// Points that the profile is printed with in red.
    std::size_t EnRouge() {
        Imprime({MarqueImpression::Profil});
        std::size_t points = 0;
        for (const auto& courbe : Courbes(Couleur::Repere)) points += courbe.size();
        return points;
    }
};

} // namespace

TEST_F(NotesEtudes, ADevelopedSlopeIsTrueAtOnePointADegree) {
    // A cycloid climbs at most twice as steep as on the average.
    const double vraie = std::atan(2 * 30 / (Pi / 2 * 60)) * RadDeg;
    for (const std::int16_t points : {1, 4, 10}) {
        Pose("Cylindrique", points);
        PoseZones({{0, 30, 90, "CYC"}, {30, 30, 50, "CYC"}, {30, 0, 220, "CYC"}});
        const Notes notes = Calcule();
        EXPECT_NEAR(PenteVraieMaxi(), vraie, 0.02) << points;
        for (const char* valeur : {"AngleTangentMax", "ForceGaletMax", "CoupleMax"})
            EXPECT_EQ(A(notes, valeur, TexteArcDegre), points > 1) << valeur << points;
    }
    // At rest nothing is misleading.
    PoseZones({{5, 5, 360, "CYC"}});
    EXPECT_TRUE(Calcule().Vide());
}

TEST_F(NotesEtudes, TheArmOfACylinderMovesInDegreesOverAThousand) {
    Pose("Oscillation", 1);
    PoseZones({{-5, 5, 180, "CYC"}, {5, -5, 180, "CYC"}});
    const Notes notes = Calcule();
    for (const char* valeur : {"LoiVitesseMax", "AccelRayonMax", "ForceGaletMax", "VitesseGaletMax"})
        EXPECT_TRUE(A(notes, valeur, TexteEchelleOsc)) << valeur;
}

TEST_F(NotesEtudes, ALawFileHasLostItsSigns) {
    Pose("Angulaire", 2);
    PoseZones({{25, 40, 360, "MS"}});
    EXPECT_FALSE(A(Calcule(), "ForceGaletMax", TexteFichierSansSigne));
    LitFichierLoi(VELORIN_SOURCES "/Profils/Aller-retour.Lmi");
    etude.donnees.Zones[1].NomLoi = NomLoiFichier;
    EXPECT_TRUE(A(Calcule(), "ForceGaletMax", TexteFichierSansSigne));
}

TEST_F(NotesEtudes, AMaximumOfAnEarlierCalculationIsMarkedWithItsOwn) {
    Pose("Angulaire", 1);
    // Harmonic motion: what its zones end with is overwritten in the table, and was calculated all the same.
    const auto calcule = [this](double vitesse) {
        etude.donnees.VitesseCame = vitesse;
        PoseZones({{25, 40, 100, "SHM"}, {40, 40, 30, "SHM"}, {40, 25, 230, "SHM"}});
        return Calcule();
    };
    EXPECT_EQ(calcule(90).Renvoi("LoiAccelMax"), "");
    const double vite = etude.durables.VitesseGaletMax;
    const Notes notes = calcule(45);
    EXPECT_EQ(etude.durables.VitesseGaletMax, vite);
    for (const char* valeur : {"LoiVitesseMax", "LoiAccelMax", "VitesseGaletMax"})
        EXPECT_TRUE(A(notes, valeur, TexteMaximumGarde)) << valeur;
    EXPECT_NEAR(etude.resultats.MaximaPropres.VitesseGaletMax, vite / 2, 1);
    EXPECT_FALSE(A(calcule(90), "VitesseGaletMax", TexteMaximumGarde)) << "reached again";
}

TEST_F(NotesEtudes, ARollerThatTurnsBackwardsIsToldWithItsSpeed) {
    Pose("Angulaire", 1);
    PoseZones({{25, 40, 180, "MS"}, {40, 25, 180, "CYC"}});
    EXPECT_FALSE(A(Calcule(), "VitesseGaletMax", TexteGaletEnArriere));
    etude.donnees.VitesseCame *= -1;
    PoseZones({{25, 40, 180, "MS"}, {40, 25, 180, "CYC"}});
    const Notes notes = Calcule();
    double arriere = 0;
    for (const Point& p : etude.resultats.Points) arriere = std::min(arriere, p.VitesseGalet);
    ASSERT_LT(arriere, -1);
    EXPECT_TRUE(A(notes, "VitesseGaletMax", TexteGaletEnArriere));
    EXPECT_NE(notes.Textes("VitesseGaletMax").find(" " + std::to_string(static_cast<int>(arriere)) + ". "),
              std::string::npos)
        << notes.Textes("VitesseGaletMax");
}

TEST_F(NotesEtudes, ASteeperRiseIsToldBesideTheSlopeOfTheFall) {
    Pose("Lineaire", 1);
    PoseZones({{50, 80, 60, "MS"}, {80, 50, 300, "MS"}});
    EXPECT_TRUE(A(Calcule(), "AngleTangentMax", TextePenteMontee));
    PoseZones({{50, 80, 300, "MS"}, {80, 50, 60, "MS"}});
    EXPECT_FALSE(A(Calcule(), "AngleTangentMax", TextePenteMontee));
    etude.donnees.PointsParDegre = 2;
    EXPECT_TRUE(A(Calcule(), "RayonCourbureMin", TexteCourbureUnPoint));
}

TEST_F(NotesEtudes, UndercutIsToldByCamAnglesAndDrawnInRed) {
    Pose("Cylindrique", 2);
    etude.donnees.RayonGalet = 2;
    PoseZones({{0, 30, 40, "MS"}, {30, 30, 140, "MS"}, {30, 0, 180, "MS"}});
    EXPECT_FALSE(A(Calcule(), "RayonCourbureMin", TexteTropCourbe));
    EXPECT_EQ(EnRouge(), 0U);

    etude.donnees.RayonGalet = 25;
    const Notes notes = Calcule();
    ASSERT_FALSE(dialogues.boites.empty());
    // The box lists points, two a degree.
    std::set<int> annonces, angles;
    const std::string& boite = dialogues.boites.back().texte;
    const std::string debut = Texte(439) + " : ";
    for (auto p = boite.find(debut); p != std::string::npos; p = boite.find(debut, p + 1))
        annonces.insert(static_cast<int>(Val(boite.substr(p + debut.size())) / 2));
    for (const PlageAngles& plage : PlagesTropCourbees()) {
        EXPECT_FALSE(angles.count(plage.debut - 1)) << "neighbours are put together";
        for (int a = plage.debut; a <= plage.fin; ++a) angles.insert(a);
    }
    EXPECT_EQ(angles, annonces);
    EXPECT_TRUE(A(notes, "RayonCourbureMin", TexteTropCourbe));
    EXPECT_GT(EnRouge(), 2 * angles.size());
}
