#include "globoidal/RapportGlobique.h"

#include "globoidal/CapaciteIndexeur.h"
#include "globoidal/CapaciteOscillateur.h"
#include "globoidal/DessinsGlobiques.h"
#include "globoidal/ExemplesGlobiques.h"
#include "outils/Catalogue.h"
#include "outils/ImprimanteNotee.h"

namespace {

class RapportGlobiqueImprime : public AvecCatalogue {
protected:
    ImprimanteNotee imprimante;
    DonneesIndexeur indexeur = UnIndexeur();

    void ImprimeIndexeur() {
        const ResultatGlobique r = CalculeCapaciteIndexador(indexeur, etude.lois.ListeLois);
        ImprimeCapacites(imprimante, RapportIndexeur(indexeur, r), indexeur, r);
    }
    /// The lines of all pages.
    std::vector<std::string> Lignes() const {
        std::vector<std::string> lignes;
        for (const auto& page : imprimante.pages)
            for (const std::string& ligne : page.Textes()) lignes.push_back(ligne);
        return lignes;
    }
    /// The first line that holds a text; empty for none.
    std::string Ligne(const std::string& texte) const {
        for (const std::string& ligne : Lignes())
            if (ligne.find(texte) != std::string::npos) return ligne;
        return {};
    }
};

} // namespace

TEST_F(RapportGlobiqueImprime, ThreePartsThenTheDrawings) {
    ImprimeIndexeur();
    EXPECT_TRUE(imprimante.fini);
    EXPECT_EQ(imprimante.police, "Courier New");
    const std::vector<std::string> lignes = Lignes();
    auto place = lignes.begin();
    for (const std::string& partie : {Texte(592), std::string("MG-160"), Texte(574), Texte(516)}) {
        place = std::find_if(place, lignes.end(), [&](const auto& l) { return l.find(partie) != std::string::npos; });
        EXPECT_NE(place, lignes.end()) << partie;
    }
    EXPECT_NE(Ligne(Texte(171)).find(": 160 mm"), std::string::npos);
    EXPECT_NE(Ligne(Texte(568)).find(": –"), std::string::npos) << "no shares typed";
    for (const char* part : {"0 %", "25 %", "50 %", "75 %", "100 %"})
        EXPECT_NE(Ligne(Texte(586)).find(part), std::string::npos);
    EXPECT_FALSE(imprimante.pages.back().traces.empty());
    for (const std::string& ligne : lignes) EXPECT_LE(NombreCaracteres(ligne), 78) << ligne;
}

TEST_F(RapportGlobiqueImprime, WhatIsRedKeepsItsWarningAndALimitOfAnOscillatorIsANote) {
    ImprimeIndexeur();
    EXPECT_EQ(Ligne("??"), "");
    indexeur.AngleIndexage = 85;
    imprimante = {};
    ImprimeIndexeur();
    EXPECT_NE(Ligne(Texte(581)).find(" ?? "), std::string::npos);
    EXPECT_EQ(Ligne(Texte(575)).find("??"), std::string::npos);
    DonneesOscillateur d = UnOscillateur();
    d.CameMaxDiam = 100;
    imprimante = {};
    const ResultatGlobique r = CalculeCapaciteOscillateur(d, etude.lois.ListeLois);
    ImprimeCapacites(imprimante, RapportOscillateur(d, r), d, r);
    EXPECT_NE(Ligne(Texte(540)).find(": 60"), std::string::npos);
    EXPECT_NE(Ligne("100 mm"), "");
    EXPECT_EQ(Ligne(Texte(575)).find("??"), std::string::npos);
}

TEST_F(RapportGlobiqueImprime, TheGoverningLimitIsTheSmallestOfItsRow) {
    TableCapacites t = TableVide();
    t[LimiteGalet].fill(50);
    t[LimiteTrempee].fill(40);
    t[LimiteProfondeur].fill(30);
    t[LimiteNitruree].fill(20);
    t[LimiteArbre].fill(35);
    CompleteTable(t, true);
    EXPECT_EQ(LigneQuiLimite(t, LimiteCameTrempee, 0), LimiteArbre);
    EXPECT_EQ(LigneQuiLimite(t, LimiteCameNitruree, 0), LimiteProfondeur);
    t[LimiteProfondeur].fill(45); // deeper than the hard skin needs: the hardened limit holds
    CompleteTable(t, true);
    EXPECT_EQ(t[LimiteCameNitruree][0], 35);
    t[LimiteArbre].fill(0);
    CompleteTable(t, true);
    EXPECT_EQ(t[LimiteCameNitruree][0], 40);
    CompleteTable(t, false);
    EXPECT_EQ(t[LimiteCameNitruree][0], 0) << "an oscillator takes a shaft of 0 at its word";
    ResultatGlobique r;
    r.Resultats = t;
    EXPECT_TRUE(SansCharge(r, B10Galet, 0)) << "what nothing was loaded for";
}

TEST_F(RapportGlobiqueImprime, TheSectionIsDrawnAtItsTrueProportions) {
    const ResultatGlobique r = CalculeCapaciteIndexador(indexeur, etude.lois.ListeLois);
    const auto feuille = imprimante.Feuille({0, 0}, 160, 120);
    DessineSectionIndexeur(*feuille, indexeur, r);
    double gauche = 1e9, droite = -1e9, haut = 1e9, bas = -1e9;
    for (const auto& trace : imprimante.pages.back().traces)
        if (trace.couleur == Couleur::Came)
            for (const PointDessin& p : trace.points) {
                gauche = std::min(gauche, p.x), droite = std::max(droite, p.x);
                haut = std::min(haut, p.y), bas = std::max(bas, p.y);
            }
    EXPECT_NEAR((bas - haut) / (droite - gauche), r.CameLargeur / r.CameDiametre, 1e-6);
}
