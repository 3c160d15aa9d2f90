#include "studies/RapportsCames.h"

#include "studies/EtudeImprimee.h"
#include "studies/TypesEtude.h"

#include <algorithm>
#include <sstream>

namespace {

using Textes = std::vector<std::string>;
using M = MarqueImpression;

class RapportsCames : public EtudeImprimee {
protected:
    /// The rows of a printed table, as numbers; all lines are of that width.
    std::vector<std::vector<double>> Tableau(int largeur) const {
        std::vector<std::vector<double>> rangees;
        for (const std::string& ligne : Lignes()) {
            const auto chiffre = ligne.find_first_not_of(' ');
            if (chiffre == std::string::npos || std::string(".-0123456789").find(ligne[chiffre]) == std::string::npos)
                continue;
            EXPECT_EQ(NombreCaracteres(ligne), largeur) << ligne;
            std::istringstream flux(ligne);
            rangees.emplace_back();
            for (std::string mot; flux >> mot;) rangees.back().push_back(Val(mot));
        }
        return rangees;
    }
    /// A printed line begins and ends so.
    bool Contient(const std::string& debut, const std::string& fin) const {
        return std::ranges::any_of(Lignes(), [&](const std::string& ligne) {
            return Trim(ligne).starts_with(debut) && Trim(ligne).ends_with(fin);
        });
    }
};

} // namespace

TEST_F(RapportsCames, TheSevenReportsComeInTheirOrderAndEachOnItsOwnPages) {
    Calcule("Exemple.Ang");
    Imprime({});
    EXPECT_TRUE(imprimante.fini && imprimante.pages.empty()) << "no mark prints nothing";
    Imprime({M::Profil, M::Donnees, M::GraphiqueForces, M::GraphiqueMouvement, M::PointsForces, M::PointsMouvement,
             M::PointsRemarquables});
    Textes titres;
    for (const auto& page : imprimante.pages)
        if (page.lignes.size() > 4 && page.lignes[1].Texte().find("Essai") != std::string::npos)
            titres.push_back(Trim(page.lignes[3].Texte()));
    EXPECT_EQ(titres, (Textes{"Données du profil", "Valeurs remarquables", "Profil de la came", "Graphiques",
                              "Graphiques", "Graphiques", "Point à point Mouvement", "Point à point Forces"}));
    EXPECT_TRUE(imprimante.fini);
    for (const auto& page : imprimante.pages) EXPECT_FALSE(page.Vide());
}

TEST_F(RapportsCames, DataAndRemarkableValuesStandWithTheirNames) {
    Calcule("Exemple.Ang");
    Imprime({M::Donnees, M::PointsRemarquables});
    for (const ChampEtude& champ : TrouveType("Angulaire")->champs)
        EXPECT_TRUE(Contient(Texte(champ.texte),
                             "(" + Texte(champ.unite) + ") : " + Format(champ.Nombre(etude.donnees), "###.##")))
            << champ.nom;
    EXPECT_TRUE(Contient("Angle (a) final", "(degrés) : 25."));
    EXPECT_TRUE(Contient("Rayon came : mini", "(mm) : " + Format(etude.resultats.RayonMin, "###.###")));
    EXPECT_TRUE(
        Contient("Force maxi sur le galet", "au point " + std::to_string(etude.resultats.ForceGaletMaxAngle) + "°"));
}

TEST_F(RapportsCames, MotionTableHoldsEveryPoint) {
    Calcule("Exemple.Ang");
    Imprime({M::PointsMouvement});
    const auto rangees = Tableau(57);
    ASSERT_EQ(rangees.size(), 361U);
    for (long i = 0; i <= 360; ++i) {
        const auto& r = rangees[static_cast<std::size_t>(i)];
        const Point& p = etude.resultats.Points[i];
        const PointLoi& m = etude.resultats.Mouvement[i];
        const double attendues[] = {p.Angle, p.Rayon, p.VitesseRayon, p.AccelRayon, m.Course, m.Vitesse, m.Accel};
        ASSERT_EQ(r.size(), std::size(attendues)) << i;
        for (std::size_t c = 0; c < r.size(); ++c) ASSERT_NEAR(r[c], attendues[c], 0.005 + 1e-9) << i << " " << c;
    }
    ASSERT_EQ(imprimante.pages.size(), 6U);
    for (const auto& page : imprimante.pages) {
        EXPECT_LE(page.Textes().size(), 67U);
    }
    EXPECT_EQ(imprimante.pages.back().Textes().back(), std::string(40, ' ') + "Page 6 / 6");
}

TEST_F(RapportsCames, ThePageTotalOfATableIsTruncated) {
    Calcule("Translation.Lin", 2);
    Imprime({M::PointsMouvement, M::PointsForces});
    // Int((720 + 8) / 61) = 11 for twelve pages: the total is a plain truncation.
    ASSERT_EQ(imprimante.pages.size(), 24U);
    EXPECT_EQ(imprimante.pages[11].Textes().back(), std::string(40, ' ') + "Page 12 / 11");
}

TEST_F(RapportsCames, TheProfileHasTheScaleOfItsLastLine) {
    // A cam that fits at 1:1, one of three times its size, and one of a fifth.
    for (const auto& [grandeur, echelle] : {std::pair{1.0, 1.0}, {3.0, 0.2}, {0.2, 5.0}}) {
        Calcule("Translation.Lin");
        for (Zone& zone : etude.donnees.Zones) {
            zone.RayonDepart *= grandeur;
            zone.RayonFinal *= grandeur;
        }
        etude.donnees.RayonGalet *= grandeur;
        CalculeEtude();
        Imprime({M::Profil});
        ASSERT_EQ(imprimante.pages.size(), 1U);
        EXPECT_EQ(Val(imprimante.pages[0].Textes().back().substr(10)), echelle) << "behind its caption";

        const auto courbes = Courbes(Couleur::Came);
        ASSERT_EQ(courbes.size(), 2U);
        for (long i = 1; i <= etude.resultats.NombrePoints; ++i) {
            const PointDessin& interieur = courbes[0][static_cast<std::size_t>(i)];
            const PointDessin& exterieur = courbes[1][static_cast<std::size_t>(i)];
            const PointProfil& p = etude.resultats.Profil[i];
            ASSERT_NEAR(interieur.x - courbes[0][0].x, echelle * (p.XInterieur - etude.resultats.Profil[0].XInterieur),
                        1e-9);
            ASSERT_NEAR(exterieur.y - interieur.y, -echelle * (p.YExterieur - p.YInterieur), 1e-9) << "y runs up";
            ASSERT_TRUE(exterieur.x > 0 && exterieur.x < 185 && exterieur.y > 20 && exterieur.y < 269) << i;
        }
    }
}

TEST_F(RapportsCames, ACylindricalCamIsPrintedDeveloped) {
    Calcule("Deux-tours.Cyl", 2);
    Imprime({M::Profil});
    const auto courbes = Courbes(Couleur::Came);
    ASSERT_EQ(courbes.size(), 4u) << "both flanks of every turn";
    const auto& profil = etude.resultats.Profil;
    for (long i = 0; i < 700; ++i)
        ASSERT_NEAR(courbes[0][static_cast<std::size_t>(i)].y - courbes[0][0].y,
                    0.5 * (profil[i].XInterieur - profil[0].XInterieur), 1e-9)
            << "at 1:2, down the page, where it is larger";
}

TEST_F(RapportsCames, APrinterThatFailsEndsTheRun) {
    Calcule("Exemple.Ang");
    imprimante.pannePage = 2;
    EXPECT_THROW(Imprime({M::PointsMouvement}), ErreurExecution);
    EXPECT_FALSE(imprimante.fini);
    EXPECT_THROW(ImprimanteEnCours(), ErreurExecution) << "the run is over";
}
