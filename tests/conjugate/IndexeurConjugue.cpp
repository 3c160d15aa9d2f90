#include "conjugate/IndexeurConjugue.h"

#include "conjugate/ExempleConjugue.h"
#include "conjugate/InertiePropre.h"
#include "conjugate/TextesConjugue.h"
#include "core/Etude.h"
#include "data/Textes.h"
#include "outils/Catalogue.h"
#include "outils/Echec.h"

#include <algorithm>
#include <cmath>

namespace {

class IndexeurConjugue : public AvecCatalogue {
protected:
    SaisieConjugue saisie = ExempleConjugue();
    ResultatConjugue r;

    const ResultatConjugue& Calcule() {
        CalculeIndexeurConjugue(saisie, r);
        return r;
    }
};

} // namespace

TEST_F(IndexeurConjugue, CapacitiesFollowFromTheContact) {
    ASSERT_EQ(Calcule().Erreur, Faux);
    const auto& c = *r.capacite;
    const double h = Pi / 8, RCF = std::sqrt(100.25 * 100.25 + 42 * 42 - 2 * 100.25 * 42 * std::cos(h));
    EXPECT_NEAR(r.repos->RSD, RCF - 13, 1e-12);
    EXPECT_NEAR(r.repos->SR, (RCF - 13) / 13, 1e-12);
    EXPECT_NEAR(c.premier.contact.RCF, RCF, 1e-12) << "the modified sine has not turned yet";
    EXPECT_NEAR(std::tan(r.repos->PAD / RadDeg), (100.25 * std::cos(h) - 42) / (100.25 * std::sin(h)), 1e-12);
    // 2200 pounds per square inch on the roller's section, at the arm of its axis.
    const double couple = 2200 / 2.2046 * 9.81 / 645.16 * 26 * 15 * 0.042;
    EXPECT_NEAR(c.C55d, couple * std::cos(r.repos->PAD / RadDeg), 1e-9);
    EXPECT_NEAR(c.premier.C60, 1.25 * couple * std::cos(c.premier.contact.PA / RadDeg), 1e-9);
    EXPECT_NEAR(c.LimiteStatique, 10350 * 0.042 * std::cos(r.repos->PAD / RadDeg), 1e-9);
    EXPECT_NEAR(c.Fu, std::pow(150.5 / 1440 + std::pow(0.5, 10.0 / 3) * (360 - 150.5 + 45) / 1440, -0.3), 1e-12)
        << "eight stops: four cycles of twice the angle";
    ASSERT_EQ(r.tableau.size(), 6U);
    for (const auto& ligne : r.tableau) {
        EXPECT_NEAR(ligne.DynB50 / ligne.DynB10, std::pow(4, 0.3), 1e-12);
        EXPECT_EQ(ligne.Catalogue, std::min(ligne.C60x, ligne.DynB50));
        EXPECT_NEAR(ligne.DynB10 / r.tableau[1].DynB10, std::pow(ligne.Ipm / 100, -0.3), 1e-12) << "with the speed";
    }
    // The two lines of the report go up with the cube of the speed.
    const double dyn = c.premier.DynB10;
    saisie.Ipm *= 1.5;
    EXPECT_NEAR(Calcule().capacite->premier.DynB10 / dyn, 1.5 * 1.5 * 1.5, 1e-12);
}

TEST_F(IndexeurConjugue, ReportStandsLineByLine) {
    saisie.A = 150.125;
    Calcule();
    ASSERT_EQ(r.lignes.size(), 57U);
    EXPECT_EQ(r.lignes[0], "Entre axes                   (Q) =100.25 mm");
    EXPECT_EQ(r.lignes[4], "Angle d'indexage             (A) =150.125 Degrés");
    EXPECT_EQ(r.lignes[9], "Indexages par minute         (Ipm) =99.5");
    EXPECT_EQ(r.lignes[10], "Rayon de courbure maxi :" + TexteArrondi(r.courbures->RayonMaxi, 2) +
                                " , Rayon de courbure mini :" + TexteArrondi(r.courbures->RayonMini, 2));
    EXPECT_EQ(r.lignes[25], "  PAD     RDS     PA   @ T = 14.07 deg  RCF      SR     FU      BLR");
    const auto colonne = [&](const char* titre) { return r.lignes[26].substr(r.lignes[25].find(titre)); };
    const CapaciteConjugue& c = *r.capacite;
    for (const auto& [titre, valeur] : {std::pair{"PAD", r.repos->PAD},
                                        {"RDS", r.repos->RSD},
                                        {"PA ", c.premier.contact.PA},
                                        {"RCF", c.premier.contact.RCF},
                                        {"SR", r.repos->SR},
                                        {"FU", c.Fu},
                                        {"BLR", 7750.0}})
        EXPECT_NEAR(Val(colonne(titre)), valeur, 0.051) << titre;
    EXPECT_EQ(r.lignes[31], "CAM SURFACE LIMIT @ RC55 :   AT DWELL  : " + TexteArrondi(c.C55d, 1));
    EXPECT_EQ(r.lignes[34], "CAM SURFACE LIMIT @ RC60 :   AT DWELL  : " + TexteCourt(c.C60d) + " Nm");
    const CapaciteParVitesse& derniere = r.tableau.back();
    EXPECT_EQ(r.lignes.back(), "     500        " + std::to_string(static_cast<int>(derniere.C60x)) + "       " +
                                   std::to_string(static_cast<int>(derniere.DynB10)) + "       " +
                                   std::to_string(static_cast<int>(derniere.DynB50)) + "     " +
                                   std::to_string(static_cast<int>(derniere.Catalogue)) + "     " +
                                   std::to_string(static_cast<int>(derniere.Catalogue - derniere.Propre)) + "  ");
    saisie.Q = 160;
    EXPECT_EQ(Calcule().tableau.size(), 7U) << "slower and finer from 160 mm on";
    EXPECT_EQ(r.tableau.front().Ipm, 25);
}

TEST_F(IndexeurConjugue, TheSecondContactAddsItsLines) {
    saisie.Loi = "MT";
    saisie.M = 60.5;
    saisie.N = 1;
    saisie.D = 2;
    saisie.F = 4;
    saisie.VitesseGraisse = 20000;
    ASSERT_EQ(Calcule().Erreur, Faux) << r.motif;
    const auto& c = *r.capacite;
    ASSERT_LT(c.phi2, 0);
    EXPECT_EQ(r.lignes.size(), 57U + 5U);
    EXPECT_EQ(r.lignes[27], std::string(16, ' ') + TexteArrondi(c.second.contact.PA, 2) + std::string(18, ' ') +
                                TexteArrondi(c.second.contact.RCF, 1));
    EXPECT_NEAR(c.second.DynB10 / c.premier.DynB10, c.second.C55 / c.premier.C55, 1e-12) << "the cosines alone";
}

TEST_F(IndexeurConjugue, OwnInertiaIsKnownForCertainMechanismsOnly) {
    const struct {
        double M, R, N, Q, A, K, J;
    } cas[] = {{8, 42, 4, 100, 150, 5.53, 0.006},
               {8, 42, 4, 100, 150.5, 0, 0},
               {8, 56, 2, 125, 270, 5.53, 0.21},
               {89, 8, 4, 200, 150, 0, 0}};
    for (const auto& c : cas)
        EXPECT_NEAR(Eig_mom(c.M, c.R, c.N, c.Q, c.A, 120.5), 226.1947 * c.K * 120.5 * 120.5 / (c.A * c.A * c.N) * c.J,
                    1e-12);
    EXPECT_NEAR(Eig_mom(8, 42, 8, 100, 75, 120.5), Eig_mom(8, 42, 4, 100, 150, 120.5) / 2, 1e-12)
        << "eight stops: twice the angle";
}

TEST_F(IndexeurConjugue, NumbersThatNoMechanismHasAreToldBesideTheirResults) {
    const auto dit = [&] {
        const auto& notes = Calcule().notes;
        return std::find(notes.begin(), notes.end(), Texte(TexteNoteDonnees)) != notes.end();
    };
    EXPECT_FALSE(dit());
    for (const auto& [membre, valeur] : {std::pair{&SaisieConjugue::W, 1.25},
                                         {&SaisieConjugue::W, -0.1},
                                         {&SaisieConjugue::F, -15.5},
                                         {&SaisieConjugue::Ipm, -0.5}}) {
        saisie = ExempleConjugue();
        saisie.*membre = valeur;
        EXPECT_TRUE(dit()) << valeur;
    }
    saisie = ExempleConjugue();
    saisie.W = 0;
    EXPECT_FALSE(dit());
}

TEST_F(IndexeurConjugue, WhatCannotBeCalculatedNamesItsEntry) {
    const std::tuple<double SaisieConjugue::*, double, const char*> cas[] = {
        {&SaisieConjugue::Q, 0, "Q"}, {&SaisieConjugue::M, 0, "M"},     {&SaisieConjugue::N, 0, "N"},
        {&SaisieConjugue::A, 0, "A"}, {&SaisieConjugue::Ipm, 0, "Ipm"}, {&SaisieConjugue::D, 0, "D"},
        {&SaisieConjugue::W, 1, "W"}};
    EXPECT_FALSE(ChercheFauteConjugue(saisie));
    for (const auto& [membre, valeur, champ] : cas) {
        saisie = ExempleConjugue();
        saisie.*membre = valeur;
        EXPECT_EQ(EchecDe([&] { Calcule(); }).numero, NumeroErreur::DivisionParZero) << champ;
        ASSERT_TRUE(ChercheFauteConjugue(saisie)) << champ;
        EXPECT_EQ(ChercheFauteConjugue(saisie)->champ, champ);
    }
    saisie = ExempleConjugue();
    saisie.A = -900; // the usage of the rollers has no real power
    EXPECT_EQ(EchecDe([&] { Calcule(); }).numero, NumeroErreur::AppelIncorrect);
}
