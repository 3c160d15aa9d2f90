#include "globoidal/RapportGlobique.h"

#include "globoidal/CapaciteIndexeur.h"
#include "globoidal/CapaciteOscillateur.h"
#include "globoidal/ExemplesGlobiques.h"
#include "outils/Catalogue.h"
#include "outils/ImprimanteNotee.h"

#include <algorithm>

namespace {

class RapportGlobiqueImprime : public AvecCatalogue {
protected:
    ImprimanteNotee imprimante;

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
    DonneesIndexeur d = UnIndexeur();
    d.AngleIndexage = 85;
    const ResultatGlobique r = CalculeCapaciteIndexador(d, etude.lois.ListeLois);
    ImprimeCapacites(imprimante, RapportIndexeur(d, r), d, r);
    EXPECT_TRUE(imprimante.fini);
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
    EXPECT_NE(Ligne(Texte(581)).find(" ?? "), std::string::npos) << "what is red keeps its warning";
    EXPECT_EQ(Ligne(Texte(575)).find("??"), std::string::npos);
    const auto rang = [&](int texte) {
        const std::string debut = Texte(texte).substr(0, 30);
        return std::find_if(lignes.begin(), lignes.end(), [&](const auto& l) { return l.find(debut) != l.npos; });
    };
    EXPECT_LT(rang(884), rang(516)) << "the note of the pitch radius stands with the geometry";
    EXPECT_FALSE(imprimante.pages.back().traces.empty());
    for (const std::string& ligne : lignes) EXPECT_LE(NombreCaracteres(ligne), 78) << ligne;
}

TEST_F(RapportGlobiqueImprime, ALimitOfAnOscillatorIsANote) {
    DonneesOscillateur d = UnOscillateur();
    d.CameMaxDiam = 100;
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
}
