#include "studies/Exports.h"

#include "outils/Catalogue.h"
#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "outils/LesLignes.h"
#include "studies/FichierEtude.h"

#include <cmath>

namespace {

std::pair<double, double> LeCouple(const std::string& texte) {
    return {Val(texte), Val(std::string_view(texte).substr(texte.find(',') + 1))};
}

class Exports : public AvecCatalogue {
protected:
    DialoguesScript dialogues;
    Exports() {
        LitFichierEtude(CheminAppli / "Profils" / "Exemple.Ang");
        CalculeEtude();
    }
};

} // namespace

TEST_F(Exports, PointFileReadsBackToTheRadii) {
    const auto lignes = LesLignes(ComposeFichierPoints());
    ASSERT_EQ(lignes.size(), static_cast<std::size_t>(etude.resultats.NombrePoints) + 2);
    EXPECT_EQ(lignes[0], "Rayon du galet ," + StrTrim(etude.donnees.RayonGalet));
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        const auto [angle, rayon] = LeCouple(lignes[static_cast<std::size_t>(i) + 1]);
        ASSERT_EQ(angle, etude.resultats.Points[i].Angle);
        ASSERT_NEAR(rayon, etude.resultats.Points[i].Rayon, 5.1e-7);
    }
}

TEST_F(Exports, OuterScriptDrawsTheProfileTurned) {
    etude.resultats.AngleRotation = 0;
    auto lignes = LesLignes(ComposeScriptExterieur());
    ASSERT_EQ(lignes.size(), static_cast<std::size_t>(etude.resultats.NombrePoints) + 7);
    for (long i = 1; i <= etude.resultats.NombrePoints; ++i) {
        const auto [x, y] = LeCouple(lignes[static_cast<std::size_t>(i) + 6]);
        ASSERT_EQ(x, etude.resultats.Profil[i].XExterieur) << "full precision";
        ASSERT_EQ(y, etude.resultats.Profil[i].YExterieur);
    }
    etude.resultats.AngleRotation = Pi / 2;
    lignes = LesLignes(ComposeScriptExterieur());
    const auto [x, y] = LeCouple(lignes[7]);
    EXPECT_NEAR(x, etude.resultats.Profil[1].YExterieur, 1e-9) << "clockwise";
    EXPECT_NEAR(y, -etude.resultats.Profil[1].XExterieur, 1e-9);
}

TEST_F(Exports, InnerScriptBearsTheArm) {
    const auto lignes = LesLignes(ComposeScriptInterieur());
    const auto [x0, y0] = LeCouple(lignes[10].substr(6));
    EXPECT_EQ(x0, -etude.donnees.CoteA);
    EXPECT_EQ(y0, -etude.donnees.CoteB);
    const auto [px, py] = LeCouple(lignes[11]);
    EXPECT_NEAR(std::hypot(px - x0, py - y0), etude.donnees.RayonO1P, 1e-9);
    EXPECT_NEAR(std::hypot(px, py), etude.resultats.Points[0].Rayon, 1e-9) << "the roller stands on the pitch curve";
    EXPECT_EQ(lignes[13], "CERCLE " + lignes[11] + " d " + StrTrim(2 * etude.donnees.RayonGalet));
    EXPECT_EQ(lignes.size(), static_cast<std::size_t>(etude.resultats.NombrePoints) + 15);
}

TEST_F(Exports, FilesAreAskedForOneByOneAndACancelledOneIsSkipped) {
    const DossierTemporaire dossier;
    dialogues.fichiers = {dossier / "e.Pnt", std::nullopt, dossier / "e_Int.Scr"};
    FichiersPoints();
    FichiersScripts();
    EXPECT_EQ(LitBrut(dossier / "e.Pnt"), ComposeFichierPoints());
    EXPECT_EQ(LitBrut(dossier / "e_Int.Scr"), ComposeScriptInterieur());
    EXPECT_EQ(dossier.NombreFichiers(), 2);
    EXPECT_EQ(dialogues.demandes, (std::vector<std::string>{Texte(124), Texte(315), Texte(316)}));
}
