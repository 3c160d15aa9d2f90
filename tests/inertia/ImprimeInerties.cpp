#include "inertia/ImprimeInerties.h"

#include "core/Nombres.h"
#include "inertia/FichierInerties.h"
#include "outils/Catalogue.h"
#include "outils/ImprimanteNotee.h"
#include "reports/Cadrage.h"

#include <map>
#include <set>

namespace {

class RapportInerties : public AvecCatalogue {
protected:
    ImprimanteNotee papier;
    std::vector<std::string> lignes; ///< of all pages, without the blanks at both ends

    /// @param solides lines of a list file
    void Imprime(const std::string& solides) {
        const std::string enTete = "TypeSolide;Text1;Text2;MasseTotal;Text3;Text5;Text6;Text7;Text8\n";
        ImprimeInerties(papier, AnalyseInerties(enTete + solides));
        for (const auto& page : papier.pages)
            for (const std::string& ligne : page.Textes())
                if (!Trim(ligne).empty()) lignes.push_back(Trim(ligne));
        EXPECT_TRUE(papier.fini);
    }
    long Compte(const std::string& debut) const {
        return std::count_if(lignes.begin(), lignes.end(), [&](const auto& l) { return l.starts_with(debut); });
    }
    /// The line behind the first that begins so.
    std::string Suivante(const std::string& debut, int rang = 1) const {
        for (std::size_t i = 0; i + static_cast<std::size_t>(rang) < lignes.size(); ++i)
            if (lignes[i].starts_with(debut)) return lignes[i + static_cast<std::size_t>(rang)];
        return {};
    }
    std::multiset<std::string> Lettres() const {
        std::multiset<std::string> lettres;
        for (const auto& page : papier.pages)
            for (const auto& etiquette : page.etiquettes) lettres.insert(etiquette.texte);
        return lettres;
    }
};

const std::string Plateau = "1;1;1;False;7850;;500;;20\n", Couronne = "2;2;1;False;7850;;500;120;20\n";

} // namespace

TEST_F(RapportInerties, OneSolidIsOneFigureOneTableAndItsTotals) {
    Imprime(Plateau);
    ASSERT_EQ(papier.pages.size(), 1U);
    EXPECT_EQ(papier.police, "Courier New");
    EXPECT_EQ(Lettres(), (std::multiset<std::string>{"D", "H", "Fig A"}));
    EXPECT_EQ(lignes[0].rfind("Calcul d'Inerties", 0), 0U);
    EXPECT_NE(lignes[0].find("Page 1"), std::string::npos);
    EXPECT_EQ(Suivante("Figure A"), "Qté  Ap/In  Masse D      H      Inertie");
    EXPECT_EQ(Suivante("Figure A", 2), "kg    mm     mm     kgm²");
    EXPECT_EQ(Suivante("Figure A", 3), "1    1      31.   500    20     .96");
    EXPECT_EQ(Suivante("Totaux"), "Masse                =  31.00 kg");
    EXPECT_EQ(Suivante("Totaux", 2), "Inertie              =  .96 kgm²");
    // torques of zero are not printed; the exact values come last
    EXPECT_EQ(Suivante("Totaux", 3), lignes.back());
    EXPECT_EQ(lignes.back().substr(0, 17), "Exact :  30.82687");
}

TEST_F(RapportInerties, SolidsOfAKindShareFigureAndTable) {
    Imprime(Couronne + Plateau + Couronne + "18;1;1;True;40;;160;6;0.25\n");
    EXPECT_EQ(Compte("Figure A"), 1);
    EXPECT_EQ(Lettres().count("Fig A") + Lettres().count("Fig B") + Lettres().count("Fig C"), 3U);
    // kind 2 stands under the heading of kind 1; the bore is said behind the row
    EXPECT_EQ(Suivante("Figure A", 3), Suivante("Figure A", 4));
    EXPECT_NE(Suivante("Figure A", 3).find("d = 120"), std::string::npos);
    EXPECT_EQ(Suivante("Figure C"), "Qté  Ap/In  M.Trans   M.Rot   f      D       Inertie");
    EXPECT_EQ(Suivante("Figure C", 3), "1    1      40        6       0.25   160     .28");
    EXPECT_EQ(Suivante("Totaux", 3), "Couple de travail    =  7.85 Nm");
}

TEST_F(RapportInerties, EveryKindPrintsAllItsDimensions) {
    const std::map<std::string, std::string> tapes{
        {"Text5", "471"}, {"Text6", "461"}, {"Text7", "251"}, {"Text8", "231"}};
    for (const GenreSolide& genre : LesSolides()) {
        papier = {};
        lignes.clear();
        const std::string code = std::to_string(genre.TypeSolide);
        Imprime(code + ";1;1;True;25;471;461;251;231\n");
        for (const ChampSolide& champ : genre.champs) {
            if (genre.TypeSolide == 17) continue; // its results are its values
            EXPECT_NE(Suivante("Figure A", 3).find(tapes.at(champ.controle)), std::string::npos) << code;
        }
        EXPECT_GE(Lettres().size(), 2U) << code;
        for (const std::string& ligne : lignes) EXPECT_LE(NombreCaracteres(ligne), 68) << ligne;
    }
}

TEST_F(RapportInerties, LongListsRepeatTheHeadingAndLoseNoRow) {
    std::string solides;
    for (int i = 0; i < 500; ++i)
        solides += std::to_string(i % 3 + 1) + ";" + std::to_string(1000 + i) + ";1;True;2.5;;400;100;20\n";
    Imprime(solides);
    EXPECT_GT(papier.pages.size(), 8U);
    for (std::size_t p = 0; p < papier.pages.size(); ++p) {
        const auto textes = papier.pages[p].Textes();
        EXPECT_NE(textes.at(0).find("Page " + std::to_string(p + 1)), std::string::npos);
        EXPECT_LE(textes.size(), 66U);
        EXPECT_GT(textes.size(), 3U) << "nothing but a heading on page " << p + 1;
    }
    for (int i = 0; i < 500; ++i) EXPECT_EQ(Compte(std::to_string(1000 + i) + " "), 1) << i;
}
