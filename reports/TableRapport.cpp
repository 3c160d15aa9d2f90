#include "reports/TableRapport.h"

#include "core/Etude.h"
#include "data/Textes.h"

#include <algorithm>
#include <vector>

namespace {

/// Blanks that keep a column apart from the one before it.
int Blancs(std::size_t colonne) {
    return colonne == 0 ? 0 : 1;
}

/// A column's own width, or that of its longest value behind so many blanks; only its extremes can be the longest.
int LargeurColonne(const ColonneRapport& colonne, int blancs) {
    if (colonne.valeur == nullptr) return colonne.largeur;
    double mini = 0, maxi = 0;
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        mini = std::min(mini, colonne.valeur(i));
        maxi = std::max(maxi, colonne.valeur(i));
    }
    const auto largeur = [&](double valeur) { return NombreCaracteres(Format(valeur, colonne.masque)) + blancs; };
    return std::max({colonne.largeur, largeur(mini), largeur(maxi)});
}

std::vector<int> LargeursColonnes(std::span<const ColonneRapport> colonnes) {
    std::vector<int> largeurs;
    for (const ColonneRapport& colonne : colonnes) largeurs.push_back(LargeurColonne(colonne, Blancs(largeurs.size())));
    return largeurs;
}

void ImprimeLigneTable(std::span<const ColonneRapport> colonnes, const std::vector<int>& largeurs, long point) {
    std::string ligne;
    for (std::size_t c = 0; c < colonnes.size(); ++c) {
        const ColonneRapport& colonne = colonnes[c];
        if (colonne.valeur != nullptr)
            ligne += CadreADroite(Format(colonne.valeur(point), colonne.masque), largeurs[c]);
    }
    ImprimeLigneCames(ligne);
}

} // namespace

void ImprimeEnTete(std::span<const ColonneRapport> colonnes) {
    const std::vector<int> largeurs = LargeursColonnes(colonnes);
    std::string titres, unites;
    for (std::size_t c = 0; c < colonnes.size(); ++c) {
        const int place = largeurs[c] - Blancs(c);
        titres += CadreADroite(DebutTexte(Texte(colonnes[c].titre), place), largeurs[c]);
        unites += CadreADroite(colonnes[c].unite, largeurs[c]);
    }
    ImprimeLigneCames(titres, true);
    ImprimeLigneCames(unites, true);
    ImprimeLigneCames({});
}

void ImprimeTable(std::span<const ColonneRapport> colonnes, EnTete enTete, const std::string& nom,
                  const std::string& titre, std::int16_t pages) {
    impression.TypeEnTete = enTete;
    impression.NumeroLigne = 0;
    impression.NumeroPage = 0;
    DebutPage(nom, titre);
    ImprimeLigneCames({});
    ImprimeLigneCames({});
    impression.NombrePages = pages;
    ImprimeEnTete(colonnes);
    const std::vector<int> largeurs = LargeursColonnes(colonnes);
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) ImprimeLigneTable(colonnes, largeurs, i);
    impression.TypeEnTete = SansEnTete;
    ImprimePiedDePage(Entier16(impression.NumeroPage + 1));
    ImprimanteEnCours().NouvellePage();
}

std::int16_t NombrePagesTable() {
    // Page heading, two empty lines and column heading; a page that is turned begins with its column heading.
    constexpr int premiere = LignesPage + 1 - 4 - 2 - 3, autres = LignesPage + 1 - 3;
    const int lignes = etude.resultats.NombrePoints + 1;
    return static_cast<std::int16_t>(lignes < premiere ? 1 : 2 + (lignes - premiere) / autres);
}
