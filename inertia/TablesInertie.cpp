#include "inertia/TablesInertie.h"

#include "core/Nombres.h"
#include "data/Textes.h"
#include "data/Unites.h"
#include "inertia/TextesInertie.h"
#include "reports/Cadrage.h"

#include <algorithm>

namespace {

using S = SaisieSolide;

/// One column. Heading and unit are as wide as the column is at least, the blanks behind them included.
struct ColonneTable {
    int texte;         ///< text number of its heading; 0 for the letters in `titre`
    const char* titre; ///< as it stands on the page; for a numbered text only its width counts
    const char* unite;
    int texteUnite; ///< text number of a unit that has one; 0 otherwise
    std::string (*cellule)(const LigneAssemblage& ligne);
};

constexpr ColonneTable Quantite{TexteQte, "    ", "    ", 0, CelluleSaisie<&S::Text1>};
constexpr ColonneTable Rapport{TexteRapportColonne, "       ", "       ", 0, CelluleSaisie<&S::Text2>};
constexpr ColonneTable Masse{TexteMasse, "      ", "kg    ", 0, CelluleListe<0>};
constexpr ColonneTable ColonneR{0, "R      ", "mm     ", 0, CelluleSaisie<&S::Text5>};
constexpr ColonneTable ColonneD{0, "D      ", "mm     ", 0, CelluleSaisie<&S::Text6>};
constexpr ColonneTable ColonnePetitD{0, "d      ", "mm     ", 0, CelluleSaisie<&S::Text7>};
constexpr ColonneTable ColonneH{0, "H    ", "mm     ", 0, CelluleSaisie<&S::Text8>};
constexpr ColonneTable Inertie{TexteInertie, "", "kgm²", 0, CelluleListe<1>};

struct TableGenres {
    std::vector<int> genres;
    std::vector<ColonneTable> colonnes; ///< behind quantity and ratio
};

const std::vector<TableGenres>& LesTables() {
    static const std::vector<TableGenres> tables = {
        {{1, 2, 3}, {Masse, ColonneD, ColonneH, Inertie}},
        {{4, 5, 6, 7}, {Masse, ColonneD, ColonnePetitD, ColonneH, Inertie}},
        {{8}, {Masse, ColonneD, ColonneH, {0, "  N   ", "      ", 0, CelluleSaisie<&S::Text5>}, Inertie}},
        {{9}, {Masse, ColonneD, Inertie}},
        {{10, 11, 12}, {Masse, ColonneR, ColonneD, ColonneH, Inertie}},
        {{13, 14}, {Masse, ColonneR, ColonneD, Inertie}},
        {{15}, {Masse, ColonneR, ColonneD, ColonnePetitD, ColonneH, Inertie}},
        {{16}, {Masse, ColonneR, Inertie}},
        {{17},
         {{TexteMasse, "        ", "kg      ", 0, CelluleListe<0>},
          {TexteInertie, "         ", "kgm²     ", 0, CelluleListe<1>},
          {TexteTravailCourt, "          ", "Nm        ", 0, CelluleListe<2>},
          {TexteFrictionCourt, "", "Nm", 0, CelluleListe<3>}}},
        {{18},
         {{0, "M.Trans   ", "kg       ", 0, CelluleSaisie<&S::Text3>},
          {0, "M.Rot   ", "kg     ", 0, CelluleSaisie<&S::Text7>},
          {0, "f      ", "      ", 0, CelluleSaisie<&S::Text8>},
          {0, "D     ", "mm      ", 0, CelluleSaisie<&S::Text6>},
          Inertie}},
        {{19}, {Masse, ColonneR, {0, "ß    ", "    ", UniteDegres, CelluleSaisie<&S::Text8>}, Inertie}},
        {{20}, {Masse, ColonneD, ColonnePetitD, Inertie}},
    };
    return tables;
}

const TableGenres& TrouveTable(int TypeSolide) {
    for (const TableGenres& table : LesTables())
        if (std::find(table.genres.begin(), table.genres.end(), TypeSolide) != table.genres.end()) return table;
    throw ErreurExecution(NumeroErreur::IndiceHorsLimites, "TypeSolide " + std::to_string(TypeSolide));
}

/// The dimensions of a row that its table does not name.
std::string CotesEnPlus(const LigneAssemblage& ligne) {
    const int TypeSolide = ligne.saisie.TypeSolide;
    const std::vector<ColonneTable>& colonnes = TrouveTable(TypeSolide).colonnes;
    std::string texte;
    for (const ChampSolide& champ : TrouveSolide(TypeSolide)->champs) {
        if (champ.unite != UniteMm) continue;
        const std::string& lettre = Texte(champ.texte);
        const bool nommee = std::any_of(colonnes.begin(), colonnes.end(),
                                        [&](const ColonneTable& colonne) { return Trim(colonne.titre) == lettre; });
        if (nommee) continue;
        texte += (texte.empty() ? "" : "  ") + lettre + " = " + ligne.saisie.*std::get<std::string S::*>(champ.membre);
    }
    return texte;
}

} // namespace

TableTexte TableGenre(const Assemblage& assemblage, int TypeSolide) {
    std::vector<const LigneAssemblage*> lignes;
    for (const LigneAssemblage& ligne : assemblage.lignes)
        if (ligne.saisie.TypeSolide == TypeSolide) lignes.push_back(&ligne);
    TableTexte table{{}, static_cast<int>(lignes.size())};
    const auto ajoute = [&](const ColonneTable& colonne) {
        const std::string titre = colonne.texte == 0 ? Trim(colonne.titre) : Texte(colonne.texte);
        const std::string unite = colonne.texteUnite == 0 ? Trim(colonne.unite) : Texte(colonne.texteUnite);
        const int largeur = std::max({NombreCaracteres(colonne.titre), NombreCaracteres(colonne.unite),
                                      NombreCaracteres(titre) + 1, NombreCaracteres(unite) + 1});
        table.colonnes.push_back({titre, unite,
                                  [lignes, cellule = colonne.cellule](int ligne) {
                                      return cellule(*lignes[static_cast<std::size_t>(ligne)]);
                                  },
                                  Cote::Gauche, largeur});
    };
    ajoute(Quantite);
    ajoute(Rapport);
    for (const ColonneTable& colonne : TrouveTable(TypeSolide).colonnes) ajoute(colonne);
    ajoute({0, "", "", 0, CotesEnPlus});
    return table;
}
