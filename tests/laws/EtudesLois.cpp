#include "laws/EtudesLois.h"

#include "outils/Catalogue.h"
#include "outils/Echec.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

class EtudesLois : public AvecCatalogue {
protected:
    ResultatLoi Calcule(const char* genre, std::initializer_list<double> valeurs, std::int16_t pointsParDegre) {
        const EtudeLoi& loi = *TrouveGenreLoi(genre);
        auto valeur = valeurs.begin();
        for (const ChampLoi& champ : loi.champs) champ.Nombre(etude.donnees) = *valeur++;
        etude.donnees.PointsParDegre = pointsParDegre;
        EXPECT_FALSE(ChercheFauteLoi(loi)) << genre;
        return CalculeEtudeLoi(loi);
    }
    double Angle(long i) const { return etude.resultats.Points[i].Angle; }
};

} // namespace

TEST_F(EtudesLois, AMotionOfAFractionalAngleEndsAtItsOwnAngleAndDuration) {
    const struct {
        const char* genre;
        std::initializer_list<double> valeurs;
        double angle;
    } etudes[] = {
        {"hesser", {30.7, 12.5, 45.5}, 30.7},
        {"avance-rapide", {30.7, 15.3, 100.5, 80.2, 45.5}, 30.7},
        {"liquides", {30.7, 12.5, 45.5, 0.21}, 30.7},
        {"msh-dissymetrique", {30.3, 41.9, 12.5, 45.5}, 72.2},
    };
    for (const auto& e : etudes) {
        SCOPED_TRACE(e.genre);
        const ResultatLoi resultat = Calcule(e.genre, e.valeurs, 2);
        const long n = etude.resultats.NombrePoints;
        EXPECT_EQ(n, static_cast<long>(std::ceil(e.angle * 2 - 1e-9)));
        EXPECT_NEAR(Angle(n), e.angle, 1e-12);
        EXPECT_NEAR(Angle(n - 1), (n - 1) / 2.0, 1e-12);
        EXPECT_NEAR(resultat.Duree, e.angle / 6 / 45.5, 1e-14);
        const bool aller = etude.lois.LoiUnite[n].Course > 0.5;
        EXPECT_NEAR(etude.lois.LoiUnite[n].Course, aller ? 1 : 0, 1e-9);
        EXPECT_NEAR(etude.lois.LoiUnite[n].Vitesse, 0, 1e-9);
        // Speeds are the slope of the lift against time (per unit of the rise for a rise and return).
        const double parUnite = aller ? e.angle : 30.3;
        for (long i = 3; i + 3 < n; ++i) {
            const double pente =
                (etude.lois.LoiUnite[i + 1].Course - etude.lois.LoiUnite[i - 1].Course) / (1.0 / parUnite);
            EXPECT_NEAR(pente, etude.lois.LoiUnite[i].Vitesse, 0.02) << i;
        }
    }
}

TEST_F(EtudesLois, WholeStepsMakeNoRowMore) {
    Calcule("hesser", {0.29, 10, 60}, 100); // 28.999999999999996 by its digits
    EXPECT_EQ(etude.resultats.NombrePoints, 29);
    EXPECT_EQ(etude.lois.LoiUnite[29].Course, 1.0);
}

TEST_F(EtudesLois, TheSlowApproachShowsItsOwnAcceleration) {
    const ResultatLoi r = Calcule("avance-rapide", {120.4, 60.2, 100, 80, 60}, 10);
    double fin = 0, freinage = 0;
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        const double a = etude.resultats.Mouvement[i].Accel;
        if (Angle(i) > 90) fin = std::max(fin, std::abs(a));
        if (Angle(i) > 30 && Angle(i) < 61) freinage = std::max(freinage, -a);
    }
    EXPECT_NEAR(std::abs(r.AccelLente), fin, 1e-3 * fin);
    EXPECT_NEAR(r.AccelFreinage, freinage, 1e-3 * freinage);
}

TEST_F(EtudesLois, NumbersBeyondAllMeasureEndTheStudyWithTheirName) {
    const std::string echec = EchecDe([&] { Calcule("hesser", {30, 1e308, 1e4}, 1); }).detail;
    EXPECT_EQ(echec, Texte(225) + ", " + Texte(439) + " 0") << "its scale is no number";
}
