// Exports and reports of a study of two cams.
#include "conjugate/DonneesPaire.h"
#include "conjugate/ExemplePaire.h"
#include "outils/LesLignes.h"
#include "studies/EtudeImprimee.h"
#include "studies/Exports.h"

namespace {

using M = MarqueImpression;

class EtudePaire : public EtudeImprimee {
protected:
    EtudePaire() {
        PosePaire();
        CalculeEtude();
    }
};

} // namespace

TEST_F(EtudePaire, PointsAndScriptsHoldBothCams) {
    const auto points = LesLignes(ComposeFichierPoints());
    ASSERT_EQ(points.size(), 2u * (3 + 721) + 1);
    EXPECT_EQ(points[0], "Rayon du galet guide ,15.5");
    EXPECT_EQ(points[4], ".5," + Format(etude.passes[CameGuide].resultats.Points[1].Rayon, "###.######"));
    EXPECT_EQ(points.back(), "360," + Format(etude.passes[CameSuiveuse].resultats.Points[720].Rayon, "###.######"));

    const auto scripts = LesScripts();
    ASSERT_EQ(scripts.size(), 2u);
    for (std::size_t came = 0; came < 2; ++came) {
        const std::string script = scripts[came].compose();
        EXPECT_NE(script.find("CERCLE "), script.rfind("CERCLE ")) << "both rollers stand in each file";
        const auto& p = etude.passes[came].resultats.Profil[720];
        EXPECT_EQ(LesLignes(script).back(), StrTrim(p.XInterieur) + "," + StrTrim(p.YInterieur));
    }
}

TEST_F(EtudePaire, ReportsHoldBothCams) {
    Imprime({M::Donnees, M::PointsRemarquables, M::PointsForces});
    const std::string texte = TexteImprime();
    for (const std::size_t came : {CameGuide, CameSuiveuse}) {
        const std::string rayon = Format(etude.passes[came].resultats.RayonMax, "###.###");
        EXPECT_NE(texte.find(rayon), std::string::npos) << rayon;
    }
    Imprime({M::Profil});
    std::size_t contours = 0;
    for (const auto& trace : imprimante.pages[0].traces) contours += trace.points.size() == 721 ? 1 : 0;
    EXPECT_EQ(contours, 4u) << "profile and pitch curve of both";
    Imprime({M::GraphiqueMouvement, M::GraphiqueForces});
    EXPECT_EQ(imprimante.pages.size(), 3u) << "of the arm once, of the forces for each cam";
}
