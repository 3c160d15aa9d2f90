#include "inertia/Assemblage.h"

#include "inertia/FichierInerties.h"
#include "outils/Catalogue.h"
#include "outils/DossierTemporaire.h"
#include "outils/Echec.h"

#include <gtest/gtest.h>

namespace {

class AssemblageSolides : public AvecCatalogue {};
class FichierInerties : public AvecCatalogue {};

/// A mass on an arm, its texts as typed.
SaisieSolide Masse(const char* quantite, const char* masse, const char* R) {
    SaisieSolide saisie = SaisieInitiale(*TrouveSolide(16));
    saisie.Text1 = quantite;
    saisie.Text3 = masse;
    saisie.Text5 = R;
    return saisie;
}

/// A solid of given values.
SaisieSolide Donnees(const char* masse, const char* J, const char* W, const char* F) {
    SaisieSolide saisie = SaisieInitiale(*TrouveSolide(17));
    saisie.Text3 = masse;
    saisie.Text5 = J;
    saisie.Text6 = W;
    saisie.Text7 = F;
    return saisie;
}

Ajout Ajoute(Assemblage& assemblage, const SaisieSolide& saisie) {
    const Grandeurs valeurs = CalculeSolide(saisie);
    return AjouteSolide(assemblage, saisie, EtiquettesDe(valeurs), valeurs);
}

std::vector<std::string> Ligne(const Assemblage& assemblage, int rang) {
    const TableTexte table = TableListe(assemblage);
    std::vector<std::string> cellules;
    for (int colonne = 0; colonne < 15; ++colonne) cellules.push_back(table.Cellule(rang, colonne));
    return cellules;
}

} // namespace

TEST_F(AssemblageSolides, ARowHoldsWhatTheLabelsRead) {
    Assemblage assemblage;
    EXPECT_EQ(Ajoute(assemblage, Masse("3", "2,4", "512.5")), Ajout::Fait);
    EXPECT_EQ(Ligne(assemblage, 0), (std::vector<std::string>{"", "7.", "1.89", "0", "0", "True", "3", "1", "2,4", "1",
                                                              "512.5", "", "", "", "16"}));
    EXPECT_EQ(assemblage.totaux, (Grandeurs{7, 1.89, 0, 0}));
    EXPECT_NEAR(TotauxExacts(assemblage)[0], 7.2, 1e-14);
    EXPECT_NEAR(TotauxExacts(assemblage)[1], 7.2 * 0.5125 * 0.5125, 1e-14);
    EXPECT_TRUE(TotauxTrompeurs(assemblage));
    EXPECT_EQ(Ajoute(assemblage, Masse("1", "0.4", "100")), Ajout::SansEffet) << "too small for its labels";
    EXPECT_EQ(assemblage.lignes.size(), 1U);
}

TEST_F(AssemblageSolides, WhatIsTakenBackIsAsItWasTypedAndLeavesNoTrace) {
    Assemblage assemblage;
    Ajoute(assemblage, Donnees("10", "0.1", "0.7", "0.2"));
    const Grandeurs avant = assemblage.totaux;
    // thirds of decimals that have no exact double
    for (const char* J : {"0.2", "0.3", "0.41"}) Ajoute(assemblage, Donnees("10", J, "0.1", "0.1"));
    EXPECT_EQ(assemblage.totaux, (Grandeurs{40, 1.01, 1, 0.5}));
    for (int i = 0; i < 3; ++i) {
        const auto repris = EnleveSolide(assemblage, 1);
        ASSERT_TRUE(repris);
        EXPECT_EQ(repris->Text6, "0.1");
    }
    EXPECT_EQ(assemblage.totaux, avant);
    EXPECT_TRUE(EnleveSolide(assemblage, 0));
    EXPECT_EQ(assemblage.totaux, Grandeurs{});
    EXPECT_EQ(TotauxExacts(assemblage), Grandeurs{});
}

TEST_F(AssemblageSolides, ARowIsRefusedByTheProductOfTheTotalsAlone) {
    Assemblage assemblage;
    Ajoute(assemblage, Donnees("10", "1", "5", "5"));
    // one total below zero
    EXPECT_EQ(Ajoute(assemblage, Donnees("-20", "1", "1", "1")), Ajout::Refuse);
    EXPECT_EQ(assemblage.lignes.size(), 1U);
    EXPECT_EQ(assemblage.totaux, (Grandeurs{10, 1, 5, 5}));
    EXPECT_EQ(Ajoute(assemblage, Donnees("-20", "-3", "1", "1")), Ajout::Fait) << "two below zero pass";
}

TEST_F(FichierInerties, TheFileIsOneSolidALine) {
    const std::string fichier = "TypeSolide;Text1;Text2;MasseTotal;Text3;Text5;Text6;Text7;Text8\r\n"
                                "1;1;1;False;7850;;500;;20\r\n"
                                "10;12;2,5;True;1.25;200;40;;60\r\n";
    const Assemblage assemblage = AnalyseInerties(fichier);
    ASSERT_EQ(assemblage.lignes.size(), 2U);
    EXPECT_EQ(assemblage.lignes[1].saisie.Text2, "2,5");
    EXPECT_EQ(assemblage.lignes[1].saisie.Text8, "60");
    EXPECT_EQ(assemblage.totaux[0], 31 + 15);
    EXPECT_NEAR(assemblage.lignes[0].exactes[0], 30.826, 0.001);
    EXPECT_EQ(ComposeInerties(assemblage), fichier);

    DossierTemporaire dossier;
    EcritInerties(dossier / "liste.Ine", assemblage);
    EXPECT_EQ(LitInerties(dossier / "liste.Ine").totaux, assemblage.totaux);
}

TEST_F(FichierInerties, ALineThatIsNoSolidIsNamed) {
    const std::string debut =
        "TypeSolide;Text1;Text2;MasseTotal;Text3;Text5;Text6;Text7;Text8\n1;1;1;False;7850;;500;;20\n";
    for (const char* fausse : {"21;1;1;True;1;;500;;20", "1;1;1;Vrai;1;;500;;20", "1;1;1;True;1;;500",
                               "1;1;1;True;1;;500;;20;3", "1;1;1;True;1;;5OO;;20"}) {
        const Echec echec = EchecDe([&] { AnalyseInerties(debut + fausse + "\n"); });
        EXPECT_EQ(echec.numero, NumeroErreur::ContenuInvalide) << fausse;
        EXPECT_EQ(echec.detail, "(3)") << fausse;
    }
    // a solid that stops would come back as nothing
    EXPECT_TRUE(EchecDe([&] { AnalyseInerties(debut + "1;1;1;True;3;;500;;\n"); }).detail.starts_with("(3) "));
}
