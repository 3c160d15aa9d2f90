#include "conjugate/PaireOscillante.h"

#include "conjugate/DonneesPaire.h"
#include "conjugate/ExemplePaire.h"
#include "conjugate/FermeturePaire.h"
#include "conjugate/LimitesPaire.h"
#include "outils/DialoguesScript.h"
#include "planecams/CamesPlates.h"

#include <algorithm>
#include <cmath>

namespace {

class PaireOscillante : public AvecCatalogue {
protected:
    DialoguesScript dialogues;

    PaireOscillante() { PosePaire(); }
    static const ResultatsEtude& Guide() { return etude.passes.at(CameGuide).resultats; }
    static const ResultatsEtude& Suiveuse() { return etude.passes.at(CameSuiveuse).resultats; }
};

} // namespace

TEST_F(PaireOscillante, EachCamIsTheArmCamOfItsNumbers) {
    CalculeCamesConjuguees();
    ASSERT_TRUE(SansErreur());
    EXPECT_TRUE(dialogues.boites.empty());
    const std::vector<PasseEtude> passes = etude.passes;
    etude.donnees.TypeCame = "Angulaire";
    for (const int came : {CameGuide, CameSuiveuse}) {
        const bool guide = came == CameGuide;
        etude.donnees.RayonO1P = guide ? etude.donnees.RayonBrasR1 : etude.donnees.RayonBrasR2;
        etude.donnees.RayonGalet = guide ? etude.donnees.RayonGaletG1 : etude.donnees.RayonGaletG2;
        const double decalage = guide ? 0 : etude.donnees.AngleBras;
        for (Zone& zone : etude.donnees.Zones) {
            zone.AngleDepart -= decalage;
            zone.AngleFinal -= decalage;
        }
        CalculeCameAngulaire();
        const ResultatsEtude &camePaire = passes[static_cast<std::size_t>(came)].resultats, &seule = etude.resultats;
        ASSERT_EQ(camePaire.NombrePoints, seule.NombrePoints);
        for (long i = 0; i <= seule.NombrePoints; ++i) {
            ASSERT_EQ(camePaire.Mouvement[i].Course, seule.Mouvement[i].Course) << i;
            ASSERT_EQ(camePaire.Points[i].AccelRayon, seule.Points[i].AccelRayon) << i;
            ASSERT_EQ(camePaire.Profil[i].XInterieur, seule.Profil[i].XInterieur) << i;
            ASSERT_EQ(camePaire.Profil[i].RayonCourbure, seule.Profil[i].RayonCourbure) << i;
        }
    }
}

TEST_F(PaireOscillante, ForcesAreThoseOfTheInertiaAndTheirMaximaAreCommon) {
    CalculeCamesConjuguees();
    double force = 0.1, couple = 0.1;
    for (const PasseEtude& passe : etude.passes) {
        const auto& r = passe.resultats;
        for (long i = 0; i < r.NombrePoints; ++i) {
            // Newton about the pivot with the dynamic factor 1.4, and the power of the force through the roller.
            EXPECT_NEAR(r.Points[i].ForceGalet * passe.RayonO1P / 1000, 1.4 * 0.352 * r.Mouvement[i].Accel, 1e-9);
            const double pente = (r.Points[i].Rayon - r.Points[i + 1].Rayon) * 2 * RadDeg / 1000;
            ASSERT_NEAR(r.Points[i].Couple, r.Points[i].ForceGalet * pente, 1e-9) << i;
            force = std::max(force, std::abs(r.Points[i].ForceGalet));
            couple = std::max(couple, std::abs(r.Points[i].Couple));
        }
    }
    for (const PasseEtude& passe : etude.passes) {
        EXPECT_EQ(passe.resultats.ForceGaletMax, force);
        EXPECT_EQ(passe.resultats.CoupleMax, couple);
        EXPECT_EQ(passe.resultats.CoupleMaxAngle, etude.passes[0].resultats.CoupleMaxAngle);
    }
}

TEST_F(PaireOscillante, ACustomLawServesBothCamsAsItWasForTheFirst) {
    etude.donnees.AngleBras = 0;
    // Row 2 of the catalogue is overwritten by the custom law of zone 2: zone 1 has had its harmonic law by then.
    PoseZones({{61.7, 73.4, 120, "SHM"}, {73.4, 61.7, 120, "MS_Spe_ 40"}, {61.7, 65.1, 120, "SHM"}});
    CalculeCamesConjuguees();
    for (const PasseEtude& passe : etude.passes)
        EXPECT_GT(passe.resultats.Mouvement[0].Accel, 1) << "the harmonic law starts with its full acceleration";
    CalculeCamesConjuguees();
    EXPECT_NEAR(Guide().Mouvement[0].Accel, 0, 1e-12) << "the row stays overwritten";
    EXPECT_EQ(etude.donnees.Zones[1].AngleCame, 120) << "back in degrees";
}

TEST_F(PaireOscillante, AFailingCamIsNamedAndNothingIsStored) {
    CalculeCamesConjuguees();
    ASSERT_EQ(etude.passes.size(), 2u);
    // The line to the pivot lies at some 31 degrees: the guide arm crosses it.
    etude.donnees.Zones[1].AngleFinal = etude.donnees.Zones[2].AngleDepart = etude.donnees.Zones[2].AngleFinal = 20;
    for (const char* came : {"Came guide", "Came suiveuse"}) {
        CalculeCamesConjuguees();
        EXPECT_FALSE(SansErreur());
        EXPECT_TRUE(etude.passes.empty());
        ASSERT_GE(dialogues.boites.size(), 2u);
        EXPECT_EQ((dialogues.boites.end() - 2)->texte, Texte(427));
        EXPECT_EQ(dialogues.boites.back().texte, "Calcul impossible pour la " + std::string(came));
        PosePaire();
        etude.donnees.AngleBras = 37; // carries the other arm across
    }
}

TEST_F(PaireOscillante, ClosureComparesWhatTheProfilesOfferWithTheDoubleArm) {
    CalculeCamesConjuguees();
    const FermeturePaire f = CalculeFermeture();
    const double a = etude.donnees.AngleBras / RadDeg, r1 = etude.donnees.RayonBrasR1, r2 = etude.donnees.RayonBrasR2;
    EXPECT_NEAR(f.entraxe, std::sqrt(r1 * r1 + r2 * r2 - 2 * r1 * r2 * std::cos(a)), 1e-9);
    ASSERT_EQ(f.ecarts.size(), 721u);
    EXPECT_NEAR(f.ecarts[0], 0, 1e-9) << "keyed at the start";
    EXPECT_NEAR(f.ecarts[719], 0, 1e-9) << "and back there";
    // The law of cosines about the cam centre, with the angle that the rollers stand at from each other at the start.
    const auto& g = Guide().Points;
    const auto& s = Suiveuse().Points;
    const double angle0 = std::acos((g[0].Rayon * g[0].Rayon + s[0].Rayon * s[0].Rayon - f.entraxe * f.entraxe) /
                                    (2 * g[0].Rayon * s[0].Rayon));
    const long i = 150;
    const double offert =
        std::sqrt(g[i].Rayon * g[i].Rayon + s[i].Rayon * s[i].Rayon - 2 * g[i].Rayon * s[i].Rayon * std::cos(angle0));
    EXPECT_NEAR(f.ecarts[i], offert - f.entraxe, 1e-9);
    EXPECT_GT(std::abs(f.ecartMax.valeur), ToleranceFermeture);
    EXPECT_FALSE(f.ouvertes.empty());
    EXPECT_GT(f.ouvertes.front().debut, 0) << "the start closes";
    EXPECT_TRUE(f.heurtees.empty());
    // Rollers that overlap where the cams touch them.
    etude.donnees.AngleBras = 0.5;
    CalculeCamesConjuguees();
    const FermeturePaire serree = CalculeFermeture();
    EXPECT_LT(serree.jeux[CameGuide].valeur, 0);
    ASSERT_EQ(serree.heurtees.size(), 1u) << "one range, the whole turn";
    PoseZones({{61.7, 61.7, 360, "MS"}});
    CalculeCamesConjuguees();
    EXPECT_TRUE(CalculeFermeture().ouvertes.empty()) << "a resting arm closes everywhere";
    EXPECT_TRUE(dialogues.boites.empty()) << "the closure is told on the sheet only";
}

TEST_F(PaireOscillante, LimitsOfTheScreen) {
    EXPECT_FALSE(ChercheFautePaire(etude.donnees));
    const struct {
        double DonneesEtude::*membre;
        const char* champ;
        int texte;
    } cas[] = {{&DonneesEtude::CoteA, "CoteA", 197},
               {&DonneesEtude::RayonGaletG2, "InertieO1", 498},
               {&DonneesEtude::CoteB, "CoteA", 657}};
    for (const auto& c : cas) { // each is found before those above it, which stay
        etude.donnees.*c.membre = 0;
        const auto faute = ChercheFautePaire(etude.donnees);
        ASSERT_TRUE(faute) << c.champ;
        EXPECT_STREQ(faute->champ, c.champ);
        EXPECT_EQ(faute->texte, c.texte);
    }
}

TEST_F(PaireOscillante, TheProductOfRadiiRollersAndInertiaDecides) {
    etude.donnees.RayonGaletG1 *= -1;
    EXPECT_TRUE(ChercheFautePaire(etude.donnees));
    etude.donnees.InertieO1 *= -1;
    EXPECT_FALSE(ChercheFautePaire(etude.donnees));
    EXPECT_TRUE(DonneesNegatives(etude.donnees));
}
