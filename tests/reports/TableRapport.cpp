#include "reports/TableRapport.h"

#include "core/Nombres.h"
#include "outils/Catalogue.h"
#include "outils/ImprimanteNotee.h"

namespace {

class TablesRapport : public AvecCatalogue {
protected:
    ImprimanteNotee imprimante;
    Tirage tirage{imprimante};

    static TableTexte Table(int lignes) {
        return {{{"Galet", "", [](int i) { return "n° " + std::to_string(i + 1); }, Cote::Gauche, 8},
                 ColonneNombres(
                     "Position\nx", "mm", [](int i) { return 1000.0 * i; }, "000.000", 10),
                 ColonneNombres("Vide", "m/sec", nullptr, "", 8),
                 {"Remarque", "", [](int) { return "é²"; }, Cote::Gauche}},
                lignes};
    }

    std::vector<std::string> Textes(std::size_t page) const { return imprimante.pages[page].Textes(); }
};

} // namespace

TEST_F(TablesRapport, ColumnsStandBelowTheirHeadingsOnTheirSides) {
    ImprimeTable(tirage, Table(2), 3);
    EXPECT_EQ(Textes(0), (std::vector<std::string>{
                             "   Galet     Position    Vide Remarque",
                             "                    x                 ",
                             "                   mm   m/sec         ",
                             "",
                             "   n° 1       000.000 é²      ",
                             "   n° 2      1000.000 é²      ",
                         }));
}

TEST_F(TablesRapport, ACellTooLongWidensItsColumnHeadingAndAll) {
    ImprimeTable(tirage, Table(1002));
    // "1001000.000" in eleven characters and a blank.
    EXPECT_EQ(Textes(0)[0], "Galet       Position    Vide Remarque");
    EXPECT_EQ(Textes(0)[4], "n° 1         000.000 é²      ");
    const auto derniere = imprimante.pages.back().Textes();
    EXPECT_EQ(derniere.back(), "n° 1002  1001000.000 é²      ");
    EXPECT_EQ(derniere[0], Textes(0)[0]) << "every page has the heading";
}

TEST_F(TablesRapport, EveryRowIsPrintedOnceAndThePagesAreCounted) {
    // The first page has room for 55 rows below two headings of six and four lines, the others for 61.
    for (const auto& [rangees, pages] : {std::pair{1, 1}, {54, 1}, {55, 2}, {56, 2}, {115, 2}, {116, 3}, {177, 4}}) {
        imprimante = ImprimanteNotee();
        ImprimeRapportTable(tirage, "Essai", "Titre", Table(rangees));
        tirage.FinDocument();
        ASSERT_EQ(imprimante.pages.size(), static_cast<std::size_t>(pages)) << rangees;
        int vues = 0;
        for (std::size_t p = 0; p < imprimante.pages.size(); ++p) {
            for (const std::string& ligne : Textes(p))
                if (ligne.starts_with("n° ")) {
                    ++vues;
                    EXPECT_TRUE(ligne.starts_with("n° " + std::to_string(vues) + " ")) << ligne;
                }
            EXPECT_EQ(Textes(p).back(), Espaces(40) + "Page " + std::to_string(p + 1) + " / " + std::to_string(pages));
        }
        EXPECT_EQ(vues, rangees);
    }
    tirage.Ligne("suite");
    EXPECT_EQ(tirage.NumeroLigne(), 1) << "the next report begins its own page";
}
