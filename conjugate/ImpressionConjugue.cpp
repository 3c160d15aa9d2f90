#include "conjugate/ImpressionConjugue.h"

#include "conjugate/GraphesConjugue.h"
#include "core/Lignes.h"
#include "reports/Cadrage.h"
#include "reports/CadrePages.h"

#include <algorithm>

namespace {

constexpr int ColonnesNotes = 78;

/// Unit of length of the graphs, mm: their letters are then as high as those of the report.
constexpr double UniteGraphes = 0.25;

/// The lines of the report and of the notes.
std::vector<std::string> LignesPapier(const ResultatConjugue& resultat) {
    std::vector<std::string> lignes = resultat.lignes;
    for (const std::string& note : resultat.notes) {
        lignes.emplace_back();
        for (Lignes paragraphes(note); !paragraphes.Fin();) {
            const auto coupees = CoupeEnLignes(std::string(paragraphes.Suivante()), ColonnesNotes);
            lignes.insert(lignes.end(), coupees.begin(), coupees.end());
        }
    }
    return lignes;
}

void ImprimeGraphes(Imprimante& imprimante, const std::vector<Graphe>& graphes) {
    const double hauteur = imprimante.Hauteur() / static_cast<double>(std::max<std::size_t>(graphes.size(), 1));
    double haut = 0;
    for (const Graphe& graphe : graphes) {
        const auto feuille = imprimante.Feuille({0, haut}, imprimante.Largeur(), hauteur, UniteGraphes);
        DessineGraphe(*feuille, graphe, PlaceEntiere(*feuille, graphe));
        haut += hauteur;
    }
}

} // namespace

void ImprimeConjugue(Imprimante& imprimante, const ResultatConjugue& resultat) {
    const std::vector<std::string> lignes = LignesPapier(resultat);
    FormatPage format;
    for (const std::string& ligne : lignes) format.colonnes = std::max(format.colonnes, NombreCaracteres(ligne));
    Tirage tirage(imprimante, format);
    tirage.DebutRapport();
    const int pages = tirage.PagesJusqua(static_cast<int>(lignes.size()) - 1);
    tirage.AnnoncePages(pages);
    for (const std::string& ligne : lignes) tirage.Ligne(ligne);
    tirage.FinRapport(pages > 1 && tirage.NumeroLigne() > 0);
    ImprimeGraphes(imprimante, GraphesConjugue(resultat));
    tirage.FinDocument();
}
