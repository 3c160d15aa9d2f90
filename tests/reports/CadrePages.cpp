#include "reports/CadrePages.h"

#include "outils/Catalogue.h"
#include "outils/ImprimanteNotee.h"

namespace {

void EnTeteEssai() {
    ImprimeLigneCames("ENTETE");
}

class PagesCames : public AvecCatalogue {
protected:
    ImprimanteNotee imprimante;
    TirageCames tirage{imprimante, {nullptr, EnTeteEssai, nullptr}};

    PagesCames() { etude.donnees.NomFichier = "Essai.Ang"; }
    ~PagesCames() override {
        LangueTravail = "Français";
        ChargeTextes(LaBase);
    }

    static void Imprime(int lignes) {
        for (int i = 1; i <= lignes; ++i) ImprimeLigneCames("ligne " + std::to_string(i));
    }
};

} // namespace

TEST_F(PagesCames, TheSixtyFifthLineTurnsThePage) {
    Imprime(64);
    EXPECT_EQ(imprimante.Page(), 1);
    EXPECT_EQ(impression.NumeroLigne, 64);
    impression.NombrePages = 7;
    Imprime(1);
    EXPECT_EQ(imprimante.Page(), 2);
    EXPECT_EQ(impression.NumeroLigne, 0);
    EXPECT_EQ(impression.NumeroPage, 1);
    const auto page = imprimante.pages[0].Textes();
    ASSERT_EQ(page.size(), 67U);
    EXPECT_EQ(page[64], "ligne 1");
    EXPECT_EQ(page[65], "");
    EXPECT_EQ(page[66], std::string(40, ' ') + "Page 1 / 7");
    EXPECT_TRUE(imprimante.pages[1].Vide());
}

TEST_F(PagesCames, TheColumnHeadingIsRepeatedAndCounted) {
    impression.TypeEnTete = EnTeteDuMouvement;
    Imprime(65 + 64);
    ASSERT_EQ(imprimante.Page(), 3);
    EXPECT_EQ(imprimante.pages[1].Textes().front(), "ENTETE");
    EXPECT_EQ(imprimante.pages[1].Textes().size(), 67U);
    EXPECT_EQ(impression.NumeroLigne, 1) << "only the heading of the third page";
    impression.TypeEnTete = SansEnTete;
    Imprime(64);
    EXPECT_TRUE(imprimante.pages.back().Vide());
}

TEST_F(PagesCames, CountersThatOverflowAreAFailure) {
    impression.NumeroLigne = 64;
    impression.NumeroPage = 32767;
    EXPECT_THROW(ImprimeLigneCames("x"), ErreurExecution);
}

TEST_F(PagesCames, HeadingHasNameDateAndTitle) {
    DebutPageCames("Titre");
    EXPECT_EQ(impression.NumeroLigne, 4);
    const auto& lignes = imprimante.pages[0].lignes;
    ASSERT_EQ(lignes.size(), 5U);
    const auto& morceaux = lignes[1].morceaux;
    EXPECT_EQ(lignes[1].Texte().substr(0, 30 + 9 + 5 + 2 + 3), std::string(30, ' ') + "Essai.Ang" + "       Le ");
    for (const auto& morceau : morceaux) {
        EXPECT_EQ(morceau.souligne, morceau.texte == "Essai.Ang");
        EXPECT_EQ(morceau.taille, 12);
    }
    EXPECT_TRUE(morceaux[1].gras);
    EXPECT_FALSE(morceaux.back().gras);
    EXPECT_EQ(lignes[3].Texte(), "Titre" + std::string(20, ' '));
    EXPECT_TRUE(lignes[3].morceaux[0].gras);
    ImprimeLigneCames("suite");
    EXPECT_EQ(lignes[4].morceaux[0].taille, 11);
    EXPECT_FALSE(lignes[4].morceaux[0].gras);
    EXPECT_EQ(imprimante.police, "Courier New");
}

TEST_F(PagesCames, MonthsAreInTheWorkingLanguage) {
    EXPECT_EQ(DateLongue(5, 2, 2027), "05 février 2027");
    EXPECT_EQ(DateLongue(31, 12, 2027), "31 décembre 2027");
    LangueTravail = "Español";
    ChargeTextes(LaBase);
    EXPECT_EQ(DateLongue(1, 1, 2027), "01 enero 2027");
    LangueTravail = "English";
    ChargeTextes(LaBase);
    EXPECT_EQ(DateLongue(15, 8, 2027), "15 August 2027");
}

TEST_F(PagesCames, ALongNameStaysOnThePage) {
    for (const char* nom : {"Une came de tête au nom long.Ang",
                            "Une came de distribution à l'entraînement d'un transfert, version très définitive.Ang"}) {
        etude.donnees.NomFichier = nom;
        DebutPageCames("Titre");
        const std::string ligne = imprimante.pages[0].lignes[imprimante.pages[0].lignes.size() - 4].Texte();
        imprimante.Taille(12);
        EXPECT_LE(imprimante.LargeurTexte(ligne), imprimante.Largeur()) << ligne;
        EXPECT_NE(ligne.find(".Ang       Le "), std::string::npos) << ligne;
    }
}

TEST_F(PagesCames, AReportOfLinesNumbersItsPages) {
    const std::vector<LigneRapport> lignes(130, LigneRapport{"valeur"});
    ImprimeRapportLignes("Titre", lignes);
    imprimante.FinDocument();
    ASSERT_EQ(imprimante.pages.size(), 3U);
    EXPECT_EQ(imprimante.pages[0].Textes().back(), std::string(40, ' ') + "Page 1 / 3");
    EXPECT_EQ(imprimante.pages[2].Textes().back(), std::string(40, ' ') + "Page 3 / 3");
}

TEST(Cadrage, CutsOnTheLeftAndCountsCharacters) {
    EXPECT_EQ(CadreADroite("m/sec²", 8), "  m/sec²");
    EXPECT_EQ(CadreADroite("-123.45", 5), "23.45");
    EXPECT_EQ(CadreADroite("é²é²", 2), "é²");
    EXPECT_EQ(DebutTexte("Ángulo", 3), "Áng");
}
