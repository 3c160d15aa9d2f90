// Files, exports and reports of a study of two cams.
#include "conjugate/DonneesPaire.h"
#include "conjugate/ExemplePaire.h"
#include "outils/DialoguesScript.h"
#include "outils/ImprimanteNotee.h"
#include "studies/Exports.h"
#include "studies/FichierEtude.h"
#include "studies/RapportsCames.h"

#include <sstream>

namespace {

class EtudePaire : public AvecCatalogue {
protected:
    DialoguesScript dialogues;
    ImprimanteNotee imprimante;

    EtudePaire() {
        PosePaire();
        CalculeEtude();
    }
    static std::vector<std::string> Lignes(const std::string& texte) {
        std::vector<std::string> lignes;
        std::istringstream flux(texte);
        for (std::string ligne; std::getline(flux, ligne);) lignes.push_back(Trim(ligne));
        return lignes;
    }
    std::string Imprime(MarqueImpression marque) {
        MarquesImpression marques{};
        marques.at(static_cast<std::size_t>(marque)) = true;
        ImprimeRapportsCames(imprimante, marques);
        std::string texte;
        for (const auto& page : imprimante.pages)
            for (const auto& ligne : page.lignes) texte += ligne.Texte() + "\n";
        return texte;
    }
    static std::size_t Fois(const std::string& texte, const std::string& quoi) {
        std::size_t fois = 0;
        for (auto i = texte.find(quoi); i != std::string::npos; i = texte.find(quoi, i + 1)) ++fois;
        return fois;
    }
};

} // namespace

TEST_F(EtudePaire, TheWorkedExampleIsReadSavedAndCalculatedWithoutABox) {
    etude = Etude{};
    ChargeLois();
    ASSERT_TRUE(LitFichierEtude(CheminAppli / NomDossierEtudes / "Conjuguees.Cjg"));
    CalculeEtude();
    EXPECT_TRUE(SansErreur());
    EXPECT_TRUE(dialogues.boites.empty());
    EXPECT_EQ(etude.passes[CameGuide].resultats.NombrePoints, 720);
    const std::string fichier = ComposeFichierEtude(LeTypeEtude(), '.');
    const std::vector<PasseEtude> passes = etude.passes;
    VideEtude();
    EXPECT_TRUE(etude.passes.empty());
    ASSERT_TRUE(LitEtude(fichier, *TrouveType("ConjuguesOscillation")));
    CalculeEtude();
    EXPECT_EQ(etude.passes[CameSuiveuse].resultats.CoupleMax, passes[CameSuiveuse].resultats.CoupleMax);
}

TEST_F(EtudePaire, PointsAndScriptsHoldBothCams) {
    const auto points = Lignes(ComposeFichierPoints());
    ASSERT_EQ(points.size(), 2u * (3 + 721) + 1);
    EXPECT_EQ(points[0], "Rayon du galet guide ,15.5");
    EXPECT_EQ(points[1], "Point à point came guide");
    EXPECT_EQ(points[2], "");
    EXPECT_EQ(points[4], ".5," + Format(etude.passes[CameGuide].resultats.Points[1].Rayon, "###.######"));
    EXPECT_EQ(points[3 + 721], "");
    EXPECT_EQ(points[4 + 721], "Rayon du galet suiveur ,18.25");
    EXPECT_EQ(points[5 + 721], "Point à point came suiveuse");
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
        const auto lignes = Lignes(script);
        const auto debut = std::find(lignes.begin(), lignes.end(), "_pline");
        ASSERT_NE(debut, lignes.end());
        EXPECT_EQ(lignes.end() - debut, 721);
        const auto& p = etude.passes[came].resultats.Profil[720];
        EXPECT_EQ(lignes.back(), StrTrim(p.XInterieur) + "," + StrTrim(p.YInterieur));
    }
}

TEST_F(EtudePaire, ReportsNameBothCams) {
    const std::string donnees = Imprime(MarqueImpression::Donnees);
    EXPECT_NE(donnees.find("Came guide G1 "), std::string::npos);
    EXPECT_NE(donnees.find("Came suiveuse G2 "), std::string::npos);
    EXPECT_NE(donnees.find("18.25"), std::string::npos);
    imprimante = {};
    const std::string remarquables = Imprime(MarqueImpression::PointsRemarquables);
    for (const PasseEtude& passe : etude.passes)
        EXPECT_NE(remarquables.find(Format(passe.resultats.RayonMax, "###.###")), std::string::npos);
    EXPECT_NE(remarquables.find("Fermeture de la paire"), std::string::npos);
    EXPECT_EQ(remarquables.find(Texte(234)), std::string::npos) << "nothing is known of the mass of the cams";
    imprimante = {};
    const std::string forces = Imprime(MarqueImpression::PointsForces);
    EXPECT_EQ(Fois(forces, "Point à point Forces : Came guide"), 1u);
    EXPECT_EQ(Fois(forces, "Point à point Forces : Came suiveuse"), 1u);
    imprimante = {};
    const std::string points = Imprime(MarqueImpression::PointsMouvement);
    const auto& p = etude.passes[CameSuiveuse].resultats.Points[301];
    EXPECT_NE(points.find("O1 - G2"), std::string::npos);
    EXPECT_NE(points.find(Format(p.Rayon, "###.000")), std::string::npos);
    EXPECT_NE(points.find("centre de la came aux centres"), std::string::npos) << "what the headings stand for";
    imprimante = {};
    const std::string profil = Imprime(MarqueImpression::Profil);
    EXPECT_NE(profil.find("Données du profil"), std::string::npos);
    EXPECT_NE(profil.find("Echelle : "), std::string::npos);
    std::size_t contours = 0;
    for (const auto& page : imprimante.pages)
        for (const auto& trace : page.traces) contours += trace.points.size() == 721 ? 1 : 0;
    EXPECT_EQ(contours, 4u) << "profile and pitch curve of both";
}

TEST_F(EtudePaire, GraphsOfTheArmOnceAndOfTheForcesForEachCam) {
    Imprime(MarqueImpression::GraphiqueMouvement);
    EXPECT_EQ(imprimante.pages.size(), 1u);
    imprimante = {};
    const std::string texte = Imprime(MarqueImpression::GraphiqueForces);
    EXPECT_EQ(Fois(texte, "Graphiques : Came"), 2u);
}
