#include "cylindrical/IndexeurCylindrique.h"

#include "cylindrical/FichiersIndexeurCyl.h"
#include "cylindrical/TextesIndexeurCyl.h"
#include "data/TextesSaisie.h"
#include "indexers/TextesIndexeurs.h"
#include "outils/Catalogue.h"
#include "outils/LesLignes.h"

#include <cmath>

namespace {

class Drum : public AvecCatalogue {
protected:
    IndexeurCylindrique donnees;
    Drum() {
        donnees.NomLoi = "MS";
        donnees.CoefSymetrie = 0.5;
        donnees.Modele = "M";
        donnees.Entraxe = 96.6;
        donnees.RayonTourelle = 100.5;
        donnees.InertieTourelle = 0.0647;
        donnees.CapaciteArbre = 47;
        donnees.CameDiam = 115.3;
        donnees.CameMaxLarg = 130;
        donnees.NombreStops = 8;
        donnees.NombreGalets = 8;
        donnees.AngleIndexage = 120;
        donnees.ReferenceGalet = "G";
        donnees.DiametreGalet = 32.5;
        donnees.HauteurGalet = 18;
        donnees.CapaciteB10 = 1e4;
        donnees.CapaciteLimite = 1.5e4;
    }
    ResultatIndexeurCylindrique Calcule() const { return CalculeIndexeurCylindrique(donnees, etude.lois.ListeLois); }
    PointDessin Centre(const ResultatIndexeurCylindrique& r, long degre, std::size_t galet) const {
        return LitPosition(r.Grille[degre + 1][galet]).value_or(PointDessin{std::nan(""), std::nan("")});
    }
};

} // namespace

TEST_F(Drum, EveryCentreLiesOnTheTurretCircle) {
    donnees.NombreGalets = 12;
    donnees.NombreStops = 6;
    donnees.AngleIndexage = 100.7;
    for (const double sens : {1.0, -1.0}) {
        donnees.Sens = sens;
        const auto r = Calcule();
        EXPECT_EQ(r.NombreEntrees, 2);
        ASSERT_EQ(r.GaletsUtilises, 4);
        const double R = donnees.RayonTourelle, ecart = R * std::cos(Pi / 12);
        long centres = 0;
        for (long i = 1; i <= 361; ++i) {
            // Rows past the motion hold degrees .7 higher than the whole ones.
            const double arc = Val(r.Grille[i][0]) * Pi / 360 * donnees.CameDiam;
            for (std::size_t j = 1; j <= 4; ++j)
                if (const auto p = LitPosition(r.Grille[i][j])) {
                    ASSERT_NEAR(std::hypot(p->x - arc + ecart, p->y), R, 1.5e-3) << i << " " << j;
                    ++centres;
                }
        }
        EXPECT_GT(centres, 260 * 3 + 101);
        // Before and after one index the rollers stand alike, two further down the track.
        EXPECT_NEAR(Centre(r, 0, 1).y, Centre(r, 360, 3).y, 1e-9);
        EXPECT_NEAR(Centre(r, 0, 1).y, sens * R * std::sin(Pi / 12), 5e-4);
    }
}

TEST_F(Drum, SizesFollowThePitchAndWhatTheCentresUse) {
    const auto r = Calcule();
    const double corde = 2 * donnees.RayonTourelle * std::sin(Pi / 8);
    EXPECT_NEAR(r.LargeurCameAffichee, corde + donnees.DiametreGalet, 5e-4);
    EXPECT_NEAR(r.EpaisseurStationnaire, corde - donnees.DiametreGalet, 1e-12);
    EXPECT_EQ(r.LargeurCame, 2 * r.MaxY);
    EXPECT_LT(r.LargeurCame, r.LargeurCameAffichee);
    // At rest two neighbours stand at the half pitch: the rib is as thick as told.
    EXPECT_NEAR(Val(r.Grille[1].back()), r.EpaisseurStationnaire, 1.5e-3);
    // Past the motion rollers count that have left the cam, and a note says so.
    EXPECT_GT(Val(r.Grille[300].back()), r.EpaisseurStationnaire + 50);
    EXPECT_EQ(r.notes, std::vector<std::string>{Texte(TexteEpaisseurProfil)});
    // A cam to the left takes the first height as it stands, below the middle.
    donnees.Sens = -1;
    const auto gauche = Calcule();
    EXPECT_NEAR(Val(gauche.Grille[1].back()), -donnees.DiametreGalet, 1.5e-3);
    EXPECT_EQ(gauche.notes.back(), Texte(TexteEpaisseurGauche));
    donnees.Sens = -2.5;
    EXPECT_EQ(Calcule().MaxY, gauche.MaxY) << "its sign alone counts";
    // The product of the roller's numbers is checked, not each.
    donnees.Sens = 1;
    donnees.HauteurGalet *= -1, donnees.CapaciteB10 *= -1;
    EXPECT_EQ(Calcule().notes.back(), Texte(TexteProduitSeul));
}

TEST_F(Drum, FaultsComeInOrderWithTheirField) {
    using Fiche = IndexeurCylindrique;
    const auto dit = [this] {
        const auto faute = ChercheFauteIndexeurCylindrique(donnees);
        return faute ? faute->champ + " " + faute->texte : "";
    };
    const struct {
        double Fiche::*membre;
        double valeur;
        const char* champ;
        std::string texte;
    } fautes[] = {
        {&Fiche::NombreStops, 7, "NombreStops", Texte(677) + "\n" + Texte(509)},
        {&Fiche::CoefSymetrie, 0.95, "CoefSymetrie", Texte(676) + "\n0.1 & 0.9"},
        {&Fiche::AngleIndexage, 360.5, "AngleIndexage", Texte(623)},
        {&Fiche::NombreGalets, 4.5, "NombreGalets", Texte(539)},
        {&Fiche::NombreStops, 0, "NombreStops", Texte(681)},
        {&Fiche::CameMaxLarg, 0, "CameMaxLarg", Texte(680)},
        {&Fiche::CameDiam, -1, "CameDiam", Texte(679)},
        {&Fiche::CapaciteArbre, 0, "CapaciteArbre", Texte(678)},
        {&Fiche::InertieTourelle, 0, "InertieTourelle", Texte(549)},
        {&Fiche::RayonTourelle, 0, "RayonTourelle", Texte(548)},
        {&Fiche::Entraxe, 0, "Entraxe", Texte(547)},
        {&Fiche::HauteurGalet, -1, "HauteurGalet", Texte(683)},
        {&Fiche::CapaciteB10, -1, "Entraxe", Texte(547)}, // the product of the four is positive again
    };
    EXPECT_EQ(dit(), "");
    // Each fault is found before those above it, which stay.
    for (const auto& f : fautes) {
        donnees.*f.membre = f.valeur;
        EXPECT_EQ(dit(), f.champ + (" " + f.texte));
    }
    for (const auto& [membre, texte] : {std::pair{&Fiche::Modele, 546}, {&Fiche::ReferenceGalet, 682}}) {
        (donnees.*membre).clear();
        EXPECT_TRUE(dit().ends_with(" " + Texte(texte))) << dit();
    }
    donnees.NomLoi.clear();
    EXPECT_TRUE(dit().ends_with(" " + Texte(538))) << dit();
}

// The record line by line, as other copies of the program read it.
TEST_F(Drum, TheRecordTellsTheTextsAsTyped) {
    const auto lignes =
        LesLignes(ComposeTam([](const char* champ) { return "<" + std::string(champ) + ">"; }, -1, "01 02 2026"));
    ASSERT_EQ(lignes.size(), 20U);
    EXPECT_EQ(lignes[0], "Came tambour indexée");
    EXPECT_EQ(lignes[1], "Date  : 01 02 2026");
    const char* champs[] = {"Modele",         "Entraxe",       "RayonTourelle", "InertieTourelle", "CapaciteArbre",
                            "CameDiam",       "CameMaxLarg",   "NombreStops",   "NombreGalets",    "AngleIndexage",
                            "ReferenceGalet", "DiametreGalet", "HauteurGalet",  "CapaciteB10",     "CapaciteLimite",
                            "NomLoi",         "CoefSymetrie"};
    for (std::size_t i = 0; i < std::size(champs); ++i)
        EXPECT_TRUE(lignes[i + 2].ends_with(" : <" + std::string(champs[i]) + ">")) << lignes[i + 2];
    EXPECT_EQ(lignes[8], "Largeur de la Came(Maxi) : <CameMaxLarg>");
    EXPECT_EQ(lignes[15], "Capacité Mr B10 (Galet) : <CapaciteB10>");
    EXPECT_EQ(lignes[19], "Type de came : à gauche");
}

TEST_F(Drum, TheScriptEndsWithItsFirstRow) {
    donnees.RayonTourelle = 50;
    const auto r = Calcule();
    const auto lignes = LesLignes(ComposeScrIndexeur(donnees, r));
    // Four lines and two radii with an empty line each, three circles, and two rollers in engagement at the start.
    ASSERT_EQ(lignes.size(), 12U + 3U + 2U);
    const std::string P = StrTrim(Pi * donnees.CameDiam), W = StrTrim(r.LargeurCame / 2);
    EXPECT_EQ(lignes[0], "LIGNE 0,0 " + P + ",0");
    EXPECT_EQ(lignes[1], "");
    EXPECT_EQ(lignes[2], "LIGNE 0,-" + W + " " + P + ",-" + W);
    EXPECT_EQ(lignes[8], "LIGNE 0,0 46.194,19.134");
    EXPECT_EQ(lignes[12], "_cercle 0,0 d 100");
    EXPECT_EQ(lignes[14], "_cercle 46.194,-19.134 d 32.5");
    EXPECT_EQ(lignes[15], "_cercle 000.000,019.134 d 32.5");
    EXPECT_EQ(lignes[16], "_cercle 000.000,-019.134 d 32.5");
}
