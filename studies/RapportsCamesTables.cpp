// The point-to-point tables. They are laid out by counting characters: a unit stands below the right end of its
// column. A value too long for its column widens it, heading and all, so that no digit and no sign is ever cut.
#include "core/Etude.h"
#include "cylindrical/DonneesCyl.h"
#include "data/Textes.h"
#include "reports/CadrePages.h"
#include "studies/RapportsCames.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <vector>

namespace {

constexpr const char* MasqueMouvement = "###.00";

struct ColonneRapport {
    int titre;                    ///< text number
    const char* unite;            ///< as it stands on the page, the same in every language
    double (*valeur)(long point); ///< none for a column that has only its heading
    const char* masque;
    int largeur; ///< characters, the blank before the value included
};

struct TableRapport {
    std::string_view type; ///< `TypeCame`
    std::span<const ColonneRapport> colonnes;
};

template <double Point::*membre> double DuPoint(long i) {
    return etude.Points[i].*membre;
}
template <double PointLoi::*membre> double DuMouvement(long i) {
    return etude.Mouvement[i].*membre;
}

constexpr int Angle = 706, Rayon = 247, Vitesse = 790, Accel = 707, Bras = 217, Force = 251, Couple = 252;

constexpr ColonneRapport colonneAngle{Angle, "", DuPoint<&Point::Angle>, MasqueMouvement, 6};
constexpr ColonneRapport colonneRayon{Rayon, "mm", DuPoint<&Point::Rayon>, MasqueMouvement, 7};
constexpr ColonneRapport colonneVitesse{Vitesse, "m/sec", DuPoint<&Point::VitesseRayon>, MasqueMouvement, 9};
constexpr ColonneRapport colonneAccel{Accel, "m/sec²", DuPoint<&Point::AccelRayon>, MasqueMouvement, 9};

constexpr ColonneRapport colonnesAngulaire[] = {
    colonneAngle,
    colonneRayon,
    colonneVitesse,
    colonneAccel,
    {Bras, "", DuMouvement<&PointLoi::Course>, MasqueMouvement, 8},
    {Vitesse, "rad/sec", DuMouvement<&PointLoi::Vitesse>, MasqueMouvement, 8},
    {Accel, "rad/sec²", DuMouvement<&PointLoi::Accel>, MasqueMouvement, 10},
};
constexpr ColonneRapport colonnesLineaire[] = {
    colonneAngle,
    colonneRayon,
    {Vitesse, "m/sec", DuPoint<&Point::VitesseRayon>, MasqueMouvement, 11},
    {Accel, "m/sec²", DuPoint<&Point::AccelRayon>, MasqueMouvement, 11},
};
constexpr ColonneRapport colonneHauteur{TexteHauteurCourte, "mm", DuPoint<&Point::Rayon>, MasqueMouvement, 7};
constexpr ColonneRapport colonnesCylindrique[] = {colonneAngle, colonneHauteur, colonneVitesse, colonneAccel};
// Kept on purpose: the heading names the arm, the rows end before it.
constexpr ColonneRapport colonnesOscillation[] = {
    colonneAngle,
    colonneHauteur,
    colonneVitesse,
    colonneAccel,
    {Bras, "", nullptr, "", 8},
    {Vitesse, "rad/sec", nullptr, "", 8},
    {Accel, "rad/sec²", nullptr, "", 10},
};
constexpr ColonneRapport colonnesForces[] = {
    colonneAngle,
    {Force, "N", DuPoint<&Point::ForceGalet>, "#####.00", 10},
    {Couple, "Nm", DuPoint<&Point::Couple>, "####.00", 11},
};

constexpr TableRapport tablesMouvement[] = {
    {"Angulaire", colonnesAngulaire},
    {"Lineaire", colonnesLineaire},
    {"Cylindrique", colonnesCylindrique},
    {"Oscillation", colonnesOscillation},
};
constexpr TableRapport tableForces{"", colonnesForces};

const TableRapport& TableMouvement() {
    const auto table = std::find_if(std::begin(tablesMouvement), std::end(tablesMouvement),
                                    [](const TableRapport& t) { return t.type == etude.TypeCame; });
    if (table == std::end(tablesMouvement)) throw ErreurExecution(NumeroErreur::AppelIncorrect, etude.TypeCame);
    return *table;
}

/// Blanks that keep a column apart from the one before it.
int Blancs(std::size_t colonne) {
    return colonne == 0 ? 0 : 1;
}

/// A column's own width, or that of its longest value behind so many blanks; only its extremes can be the longest.
int LargeurColonne(const ColonneRapport& colonne, int blancs) {
    if (colonne.valeur == nullptr) return colonne.largeur;
    double mini = 0, maxi = 0;
    for (long i = 0; i <= etude.NombrePoints; ++i) {
        mini = std::min(mini, colonne.valeur(i));
        maxi = std::max(maxi, colonne.valeur(i));
    }
    const auto largeur = [&](double valeur) { return NombreCaracteres(Format(valeur, colonne.masque)) + blancs; };
    return std::max({colonne.largeur, largeur(mini), largeur(maxi)});
}

std::vector<int> LargeursColonnes(const TableRapport& table) {
    std::vector<int> largeurs;
    for (const ColonneRapport& colonne : table.colonnes)
        largeurs.push_back(LargeurColonne(colonne, Blancs(largeurs.size())));
    return largeurs;
}

void ImprimeEnTete(const TableRapport& table) {
    const std::vector<int> largeurs = LargeursColonnes(table);
    std::string titres, unites;
    for (std::size_t c = 0; c < table.colonnes.size(); ++c) {
        const int place = largeurs[c] - Blancs(c);
        titres += CadreADroite(DebutTexte(Texte(table.colonnes[c].titre), place), largeurs[c]);
        unites += CadreADroite(table.colonnes[c].unite, largeurs[c]);
    }
    ImprimeLigneCames(titres, true);
    ImprimeLigneCames(unites, true);
    ImprimeLigneCames({});
}

void ImprimeLigneTable(const TableRapport& table, const std::vector<int>& largeurs, long point) {
    std::string ligne;
    for (std::size_t c = 0; c < table.colonnes.size(); ++c) {
        const ColonneRapport& colonne = table.colonnes[c];
        if (colonne.valeur != nullptr)
            ligne += CadreADroite(Format(colonne.valeur(point), colonne.masque), largeurs[c]);
    }
    ImprimeLigneCames(ligne);
}

void ImprimeTable(const TableRapport& table, EnTete enTete, int titre) {
    impression.TypeEnTete = enTete;
    impression.NumeroLigne = 0;
    impression.NumeroPage = 0;
    DebutPageCames(Texte(titre));
    ImprimeLigneCames({});
    ImprimeLigneCames({});
    // Kept on purpose: a plain truncation, so that the last page may bear a number above the total.
    impression.NombrePages = Entier16(Int((etude.NombrePoints + 8) / 61.0));
    ImprimeEnTete(table);
    const std::vector<int> largeurs = LargeursColonnes(table);
    for (long i = 0; i <= etude.NombrePoints; ++i) ImprimeLigneTable(table, largeurs, i);
    impression.TypeEnTete = SansEnTete;
    ImprimePiedDePage(Entier16(impression.NumeroPage + 1));
    ImprimanteEnCours().NouvellePage();
}

} // namespace

void EnTeteMouvement() {
    ImprimeEnTete(TableMouvement());
}

void EnTeteForces() {
    ImprimeEnTete(tableForces);
}

void ImprimePointsMouvement() {
    ImprimeTable(TableMouvement(), EnTeteDuMouvement, TitrePointsMouvement);
}

void ImprimePointsForces() {
    ImprimeTable(tableForces, EnTeteDesForces, TitrePointsForces);
}
