#include "reports/CadrePages.h"

#include "outils/Catalogue.h"
#include "outils/ImprimanteNotee.h"

namespace {

class PagesCames : public AvecCatalogue {
protected:
    ImprimanteNotee imprimante;
    Tirage tirage{imprimante};

    void Imprime(int lignes) {
        for (int i = 1; i <= lignes; ++i) tirage.Ligne("ligne " + std::to_string(i));
    }
};

} // namespace

TEST_F(PagesCames, TheSixtyFifthLineTurnsThePage) {
    Imprime(64);
    EXPECT_EQ(imprimante.Page(), 1);
    EXPECT_EQ(tirage.NumeroLigne(), 64);
    tirage.AnnoncePages(7);
    Imprime(1);
    ASSERT_EQ(imprimante.Page(), 2);
    EXPECT_EQ(tirage.NumeroLigne(), 0);
    const auto page = imprimante.pages[0].Textes();
    ASSERT_EQ(page.size(), 67U);
    EXPECT_EQ(page[64], "ligne 1");
    EXPECT_EQ(page[66], std::string(40, ' ') + "Page 1 / 7");
    EXPECT_TRUE(imprimante.pages[1].Vide());
}

TEST_F(PagesCames, AHeadingTooLongForItsLineKeepsTheEndOfTheNameAndTheDate) {
    tirage.Titre("Une came de distribution à l'entraînement d'un transfert, version très définitive.Ang", "Titre");
    const std::string longue = imprimante.pages[0].lignes[1].Texte();
    imprimante.Taille(12);
    EXPECT_LE(imprimante.LargeurTexte(longue), imprimante.Largeur()) << longue;
    EXPECT_NE(longue.find(".Ang       Le "), std::string::npos) << longue;
    EXPECT_EQ(DateLongue(5, 12, 2027), "05 décembre 2027");
}

TEST_F(PagesCames, AReportOfLinesNumbersItsPages) {
    // The heading takes six lines of the first page.
    for (const auto& [nombre, pages] : {std::pair{130, 3}, {59, 1}, {60, 2}, {124, 2}, {125, 3}}) {
        imprimante = ImprimanteNotee();
        const std::vector<LigneRapport> lignes(static_cast<std::size_t>(nombre), LigneRapport{"valeur"});
        ImprimeRapportLignes(tirage, "Essai", "Titre", lignes);
        tirage.FinDocument();
        ASSERT_EQ(imprimante.pages.size(), static_cast<std::size_t>(pages)) << nombre;
        const std::string nombrePages = std::to_string(pages);
        EXPECT_EQ(imprimante.pages.back().Textes().back(), Espaces(40) + "Page " + nombrePages + " / " + nombrePages);
    }
    imprimante = ImprimanteNotee();
    ImprimeRapportLignes(tirage, "Essai", "Titre", std::vector<LigneRapport>(58));
    EXPECT_EQ(imprimante.pages[0].Textes().size(), 64U) << "a report of one page that is not full bears no number";
}

TEST_F(PagesCames, AnotherFormatHasItsOwnLengthAndHeadsEveryPage) {
    FormatPage format;
    format.taille = 7;
    format.lignes = 20;
    format.pied = false;
    format.enTete = [](Tirage& t) {
        t.Ligne("TITRE " + std::to_string(t.NumeroPage() + 1), true, true);
        t.Ligne();
    };
    Tirage autre(imprimante, format);
    autre.DebutRapport();
    EXPECT_EQ(autre.PagesJusqua(18), 2) << "the second one is begun";
    for (int i = 1; i <= 18; ++i) autre.Ligne("ligne");
    EXPECT_EQ(imprimante.Page(), 2);
    EXPECT_TRUE(imprimante.pages[1].Vide()) << "no page for a heading alone";
    EXPECT_EQ(imprimante.pages[0].Textes().size(), 20U) << "and no foot";
    autre.Ligne("suite");
    EXPECT_EQ(imprimante.pages[1].lignes[0].Texte(), "TITRE 2");
    autre.Reserve(18);
    autre.EntamePage();
    EXPECT_EQ(imprimante.pages.back().lignes[0].Texte(), "TITRE 3") << "before what is drawn";
}
