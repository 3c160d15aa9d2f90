#include "cylindrical/RapportIndexeurCyl.h"

#include "cylindrical/DessinIndexeurCyl.h"
#include "data/Textes.h"
#include "reports/Cadrage.h"
#include "reports/CadrePages.h"

namespace {

constexpr int MargeTable = 5, LargeurColonne = 20, MargeTitre = 10; ///< characters
constexpr int LignesPortrait = 102, LignesPaysage = 71;
constexpr std::int16_t GaletsPaysage = 7;            ///< from so many rollers on the table lies across
constexpr double TailleDessin = 12, TailleTable = 7; ///< points

constexpr double HauteurTexteMm = 3.2, TraitMm = 0.25;
constexpr int TexteDate = 383, TextePositions = 421;

/// The designation, and the date of the day.
std::string Designation(const std::string& designation) {
    return Espaces(MargeTitre) + designation + "   " + Texte(TexteDate) + DateDuJour();
}

std::string Rangee(const std::vector<std::string>& cellules) {
    std::string rangee = Espaces(MargeTable);
    for (const std::string& cellule : cellules) rangee += cellule + Espaces(LargeurColonne - NombreCaracteres(cellule));
    return rangee;
}

/// The head of a page of the table: seven lines.
void EnteteTable(Tirage& tirage, const std::string& designation, const ResultatIndexeurCylindrique& resultat) {
    tirage.Ligne();
    tirage.Ligne(Designation(designation), true);
    tirage.Ligne();
    tirage.Ligne(Espaces(MargeTitre) + Texte(TextePositions), true);
    tirage.Ligne();
    tirage.Ligne(Rangee(resultat.Grille[0]), true);
    tirage.Ligne();
}

void ImprimeDessin(Imprimante& imprimante, const IndexeurCylindrique& donnees,
                   const ResultatIndexeurCylindrique& resultat, const std::string& designation) {
    FormatPage format;
    format.taille = TailleDessin;
    format.orientation = OrientationPage::Paysage;
    format.pied = false;
    Tirage tirage(imprimante, format);
    tirage.DebutRapport();
    tirage.Ligne(Designation(designation), true);
    tirage.Ligne();
    const double tete = imprimante.Tete();
    const auto feuille = imprimante.Feuille({0, tete}, imprimante.Largeur(), imprimante.Hauteur() - tete);
    DessineDeveloppee(*feuille, donnees, resultat, HauteurTexteMm, TraitMm);
    tirage.FinRapport(false);
}

void ImprimeTablePositions(Imprimante& imprimante, const ResultatIndexeurCylindrique& resultat,
                           const std::string& designation) {
    const bool paysage = resultat.GaletsUtilises >= GaletsPaysage;
    FormatPage format;
    format.taille = TailleTable;
    format.lignes = paysage ? LignesPaysage : LignesPortrait;
    format.colonnes = MargeTable + LargeurColonne * (resultat.GaletsUtilises + 2);
    format.orientation = paysage ? OrientationPage::Paysage : OrientationPage::Portrait;
    format.pied = false;
    format.enTete = [&](Tirage& tirage) { EnteteTable(tirage, designation, resultat); };
    Tirage tirage(imprimante, format);
    tirage.DebutRapport();
    for (long i = 1; static_cast<double>(i) <= resultat.AngleIndexage + 1.0; ++i)
        tirage.Ligne(Rangee(resultat.Grille[i]));
    tirage.Ligne();
    for (const std::string& note : resultat.notes)
        for (const std::string& ligne : CoupeEnLignes(note, format.colonnes - MargeTable))
            tirage.Ligne(Espaces(MargeTable) + ligne);
    tirage.FinRapport(false);
}

} // namespace

void ImprimeIndexeurCylindrique(Imprimante& imprimante, const IndexeurCylindrique& donnees,
                                const ResultatIndexeurCylindrique& resultat, const std::string& designation,
                                bool avecTable) {
    ImprimeDessin(imprimante, donnees, resultat, designation);
    if (avecTable) ImprimeTablePositions(imprimante, resultat, designation);
    imprimante.FinDocument();
}
