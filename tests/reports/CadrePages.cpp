#include "reports/CadrePages.h"

#include "outils/Catalogue.h"
#include "outils/ImprimanteNotee.h"

namespace {

class PagesCames : public AvecCatalogue {
protected:
    ImprimanteNotee imprimante;
    Tirage tirage{imprimante};

    ~PagesCames() override {
        LangueTravail = "Français";
        ChargeTextes(LaBase);
    }

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

TEST_F(PagesCames, HeadingHasNameDateAndTitle) {
    tirage.Titre("Essai.Ang", "Titre");
    const auto& lignes = imprimante.pages[0].lignes;
    ASSERT_EQ(lignes.size(), 5U);
    EXPECT_TRUE(lignes[1].Texte().starts_with(std::string(30, ' ') + "Essai.Ang       Le ")) << lignes[1].Texte();

    tirage.Titre("Une came de distribution à l'entraînement d'un transfert, version très définitive.Ang", "Titre");
    const std::string longue = lignes[lignes.size() - 4].Texte();
    imprimante.Taille(12);
    EXPECT_LE(imprimante.LargeurTexte(longue), imprimante.Largeur()) << longue;
    EXPECT_NE(longue.find(".Ang       Le "), std::string::npos) << longue;
}

TEST_F(PagesCames, MonthsAreInTheWorkingLanguage) {
    for (const auto& [langue, jour, mois, date] : {std::tuple{"Français", 5, 12, "05 décembre 2027"},
                                                   {"Español", 1, 1, "01 enero 2027"},
                                                   {"English", 15, 8, "15 August 2027"}}) {
        LangueTravail = langue;
        ChargeTextes(LaBase);
        EXPECT_EQ(DateLongue(jour, mois, 2027), date);
    }
}

TEST_F(PagesCames, AReportOfLinesNumbersItsPages) {
    // The heading takes six lines of the first page.
    for (const auto& [nombre, pages] : {std::pair{130, 3}, {59, 1}, {60, 2}, {124, 2}, {125, 3}}) {
        imprimante = ImprimanteNotee();
        const std::vector<LigneRapport> lignes(static_cast<std::size_t>(nombre), LigneRapport{"valeur"});
        ImprimeRapportLignes(tirage, "Essai", "Titre", lignes);
        tirage.FinDocument();
        ASSERT_EQ(imprimante.pages.size(), static_cast<std::size_t>(pages)) << nombre;
        const std::string total = " / " + std::to_string(pages);
        for (int p = 0; p < pages; ++p) {
            const auto textes = imprimante.pages[static_cast<std::size_t>(p)].Textes();
            EXPECT_EQ(textes.back(), std::string(40, ' ') + "Page " + std::to_string(p + 1) + total) << nombre;
        }
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
    EXPECT_EQ(autre.PagesJusqua(17), 1);
    EXPECT_EQ(autre.PagesJusqua(18), 2) << "the second one is begun";
    for (int i = 1; i <= 18; ++i) autre.Ligne("ligne");
    EXPECT_EQ(imprimante.Page(), 2);
    EXPECT_TRUE(imprimante.pages[1].Vide()) << "no page for a heading alone";
    EXPECT_EQ(imprimante.pages[0].Textes().size(), 20U) << "and no foot";
    autre.Ligne("suite");
    const auto& lignes = imprimante.pages[1].lignes;
    EXPECT_EQ(lignes[0].Texte(), "TITRE 2");
    EXPECT_EQ(lignes[2].Texte(), "suite");
    autre.Reserve(17);
    EXPECT_EQ(imprimante.Page(), 2) << "seventeen lines are left";
    autre.Reserve(18);
    autre.EntamePage();
    EXPECT_EQ(imprimante.pages.back().lignes[0].Texte(), "TITRE 3") << "before what is drawn";
}

TEST(Cadrage, CutsOnTheLeftAndCountsCharacters) {
    EXPECT_EQ(CadreADroite("-123.45", 5), "23.45");
    EXPECT_EQ(DebutTexte("Ángulo", 3), "Áng");
    EXPECT_EQ(CadreAGauche("Ángulo", 3), "Áng");
}
