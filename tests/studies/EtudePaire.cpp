// Files, exports and reports of a study of two cams.
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
    static std::size_t Fois(const std::string& texte, const std::string& quoi) {
        std::size_t fois = 0;
        for (auto i = texte.find(quoi); i != std::string::npos; i = texte.find(quoi, i + 1)) ++fois;
        return fois;
    }
};

} // namespace

TEST_F(EtudePaire, TheWorkedExampleIsReadSavedAndCalculatedWithoutABox) {
    Calcule("Conjuguees.Cjg", 2);
    EXPECT_TRUE(dialogues.boites.empty());
    const std::string fichier = ComposeFichierEtude(LeTypeEtude(), '.');
    const std::vector<PasseEtude> passes = etude.passes;
    VideEtude();
    EXPECT_TRUE(etude.passes.empty());
    ASSERT_TRUE(LitEtude(fichier, *TrouveType("ConjuguesOscillation")));
    CalculeEtude();
    EXPECT_EQ(etude.passes[CameSuiveuse].resultats.CoupleMax, passes[CameSuiveuse].resultats.CoupleMax);
}

TEST_F(EtudePaire, PointsAndScriptsHoldBothCams) {
    const auto points = LesLignes(ComposeFichierPoints());
    ASSERT_EQ(points.size(), 2u * (3 + 721) + 1);
    EXPECT_EQ(points[0], "Rayon du galet guide ,15.5");
    EXPECT_EQ(points[1], "Point à point came guide");
    EXPECT_EQ(points[4], ".5," + Format(etude.passes[CameGuide].resultats.Points[1].Rayon, "###.######"));
    EXPECT_EQ(points[4 + 721], "Rayon du galet suiveur ,18.25");
    EXPECT_EQ(points.back(), "360," + Format(etude.passes[CameSuiveuse].resultats.Points[720].Rayon, "###.######"));

    const auto scripts = LesScripts();
    ASSERT_EQ(scripts.size(), 2u);
    EXPECT_EQ(scripts[0].suite, "_Came guide");
    EXPECT_EQ(scripts[1].suite, "_Came suiveuse");
    for (std::size_t came = 0; came < 2; ++came) {
        const std::string script = scripts[came].compose();
        EXPECT_EQ(Fois(script, "CERCLE "), 2u) << "both rollers stand in each file";
        EXPECT_NE(script.find(" d 31"), std::string::npos);
        EXPECT_NE(script.find(" d 36.5"), std::string::npos);
        const auto& p = etude.passes[came].resultats.Profil[720];
        EXPECT_EQ(LesLignes(script).back(), StrTrim(p.XInterieur) + "," + StrTrim(p.YInterieur));
    }
}

TEST_F(EtudePaire, ReportsNameBothCams) {
    Imprime({M::Donnees, M::PointsRemarquables, M::PointsForces});
    const std::string texte = TexteImprime();
    for (const std::string& morceau :
         {std::string("Came guide G1 "), std::string("Came suiveuse G2 "), std::string("18.25"),
          std::string("Fermeture de la paire"), Format(etude.passes[CameGuide].resultats.RayonMax, "###.###"),
          Format(etude.passes[CameSuiveuse].resultats.RayonMax, "###.###")})
        EXPECT_NE(texte.find(morceau), std::string::npos) << morceau;
    EXPECT_EQ(texte.find(Texte(234)), std::string::npos) << "nothing is known of the mass of the cams";
    for (const char* came : {"Came guide", "Came suiveuse"})
        EXPECT_GE(Fois(texte, "Point à point Forces : " + std::string(came)), 1u) << came;
    Imprime({M::PointsMouvement});
    EXPECT_NE(TexteImprime().find(Format(etude.passes[CameSuiveuse].resultats.Points[301].Rayon, "###.000")),
              std::string::npos);
    Imprime({M::Profil});
    std::size_t contours = 0;
    for (const auto& trace : imprimante.pages[0].traces) contours += trace.points.size() == 721 ? 1 : 0;
    EXPECT_EQ(contours, 4u) << "profile and pitch curve of both";
    Imprime({M::GraphiqueMouvement});
    EXPECT_EQ(imprimante.pages.size(), 1u) << "of the arm once";
    Imprime({M::GraphiqueForces});
    EXPECT_EQ(Fois(TexteImprime(), "Graphiques : Came"), 2u) << "of the forces for each cam";
}
