#include "reports/TableRapport.h"

#include <algorithm>
#include <vector>

namespace {

/// The lines of a text.
std::vector<std::string> Lignes(const std::string& texte) {
    std::vector<std::string> lignes;
    std::size_t debut = 0;
    for (std::size_t fin; (fin = texte.find('\n', debut)) != std::string::npos; debut = fin + 1)
        lignes.push_back(texte.substr(debut, fin - debut));
    lignes.push_back(texte.substr(debut));
    return lignes;
}

/// A table on paper: the widths of its columns and the lines of its heading.
class TablePapier {
public:
    TablePapier(const TableTexte& table, int marge) : table_(table), marge_(marge) {
        for (std::size_t c = 0; c < table.colonnes.size(); ++c) largeurs_.push_back(Largeur(c));
        ComposeEnTete();
    }

    const std::vector<std::string>& EnTete() const { return enTete_; }

    std::string Rangee(int ligne) const {
        std::string rangee = Espaces(marge_);
        for (std::size_t c = 0; c < largeurs_.size(); ++c) {
            const ColonneTexte& colonne = table_.colonnes[c];
            if (colonne.cellule) rangee += Cadre(c, colonne.cellule(ligne));
        }
        return rangee;
    }

private:
    /// Blanks that keep a column apart from the one before it.
    static int Blancs(std::size_t c) { return c == 0 ? 0 : 1; }

    /// The width that a column asks for, or that of its longest cell with its blank; a column without one of its own
    /// has room for its heading too.
    int Largeur(std::size_t c) const {
        const ColonneTexte& colonne = table_.colonnes[c];
        int longueur = 0;
        const auto mesure = [&](const std::string& texte) { longueur = std::max(longueur, NombreCaracteres(texte)); };
        if (colonne.largeur == 0)
            for (const std::string& ligne : Lignes(table_.EnTete(static_cast<int>(c)))) mesure(ligne);
        for (int ligne = 0; colonne.cellule && ligne < table_.lignes; ++ligne) mesure(colonne.cellule(ligne));
        return std::max(colonne.largeur, longueur + Blancs(c));
    }

    std::string Cadre(std::size_t c, const std::string& texte) const {
        return table_.colonnes[c].cote == Cote::Gauche
                   ? Espaces(Blancs(c)) + CadreAGauche(texte, largeurs_[c] - Blancs(c))
                   : CadreADroite(texte, largeurs_[c]);
    }

    /// Adds a line of the heading to which each column gives a text, cut to its width.
    template <typename Morceau> void AjouteEnTete(Morceau morceau) {
        std::string ligne = Espaces(marge_);
        for (std::size_t c = 0; c < largeurs_.size(); ++c)
            ligne += Cadre(c, DebutTexte(morceau(table_.colonnes[c]), largeurs_[c] - Blancs(c)));
        enTete_.push_back(ligne);
    }

    void ComposeEnTete() {
        std::size_t titres = 1;
        bool unites = false;
        for (const ColonneTexte& colonne : table_.colonnes) {
            titres = std::max(titres, Lignes(colonne.titre).size());
            unites = unites || !colonne.unite.empty();
        }
        for (std::size_t rang = 0; rang < titres; ++rang)
            AjouteEnTete([rang](const ColonneTexte& colonne) {
                const std::vector<std::string> lignes = Lignes(colonne.titre);
                return rang < lignes.size() ? lignes[rang] : std::string();
            });
        if (unites) AjouteEnTete([](const ColonneTexte& colonne) { return colonne.unite; });
    }

    const TableTexte& table_;
    int marge_;
    std::vector<int> largeurs_;
    std::vector<std::string> enTete_;
};

void ImprimeEnTete(Tirage& tirage, const TablePapier& papier) {
    for (const std::string& ligne : papier.EnTete()) tirage.Ligne(ligne, true);
    tirage.Ligne();
}

void ImprimePapier(Tirage& tirage, const TablePapier& papier, int lignes) {
    tirage.RepeteEnTete([&] { ImprimeEnTete(tirage, papier); });
    ImprimeEnTete(tirage, papier);
    for (int ligne = 0; ligne < lignes; ++ligne) tirage.Ligne(papier.Rangee(ligne));
    tirage.RepeteEnTete(nullptr);
}

} // namespace

int LargeurTable(const TableTexte& table) {
    return NombreCaracteres(TablePapier(table, 0).EnTete().front());
}

void ImprimeNote(Tirage& tirage, const std::string& note) {
    constexpr int colonnes = 72;
    tirage.Ligne();
    for (const std::string& ligne : CoupeEnLignes(note, colonnes)) tirage.Ligne(ligne);
}

void ImprimeTable(Tirage& tirage, const TableTexte& table, int marge) {
    ImprimePapier(tirage, TablePapier(table, marge), table.lignes);
}

void ImprimeRapportTable(Tirage& tirage, const std::string& nom, const std::string& titre, const TableTexte& table,
                         std::optional<int> pages, const std::string& note) {
    const TablePapier papier(table, 0);
    tirage.DebutRapport();
    tirage.Titre(nom, titre);
    tirage.Ligne();
    tirage.Ligne();
    const int tete = static_cast<int>(papier.EnTete().size()) + 1;
    tirage.AnnoncePages(pages ? *pages : tirage.PagesJusqua(tete + table.lignes, tete));
    ImprimePapier(tirage, papier, table.lignes);
    if (!note.empty()) ImprimeNote(tirage, note);
    tirage.FinRapport(true);
}
