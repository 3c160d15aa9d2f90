// The pages are laid out by counting characters of a fixed-pitch font behind a margin of ten of them.
#include "inertia/ImprimeInerties.h"

#include "core/Nombres.h"
#include "data/Textes.h"
#include "drawing/FiguresSolides.h"
#include "drawing/PlanDessin.h"
#include "inertia/TablesInertie.h"
#include "inertia/TextesInertie.h"
#include "reports/TableRapport.h"

#include <algorithm>

namespace {

constexpr int LignesPage = 66, ColonnesPage = 78, Marge = 10;

// Figures. A row of them takes so many lines, so that a page holds as many pairs as fit.
constexpr int LignesFigure = 15;
constexpr double LargeurCadre = 80, EcartCadres = 5, RayonCadre = 5, BasFigure = 11; // mm
constexpr double UniteFigure = 0.28; ///< mm, of the strokes and letters of a figure

constexpr int TexteDate = 383, TextePage = 413;
constexpr const char* UnitesTotaux[] = {" kg", " kgm²", " Nm", " Nm"};

/// A kind used, with the letter of its figure.
struct GenreUtilise {
    int TypeSolide;
    std::string lettre;
};

/// The kinds in the order of their first use; letters from "A".
std::vector<GenreUtilise> GenresUtilises(const Assemblage& assemblage) {
    std::vector<GenreUtilise> genres;
    for (const LigneAssemblage& ligne : assemblage.lignes) {
        const int code = ligne.saisie.TypeSolide;
        if (std::none_of(genres.begin(), genres.end(), [=](const GenreUtilise& g) { return g.TypeSolide == code; }))
            genres.push_back({code, std::string(1, static_cast<char>('A' + genres.size()))});
    }
    return genres;
}

// ---- lines, behind the left margin

void DebutPageInerties(Tirage& tirage) {
    Imprimante& imprimante = tirage.Appareil();
    imprimante.Gras(true);
    imprimante.Ecrit(Espaces(Marge) + Texte(TexteCalculInerties));
    imprimante.Gras(false);
    tirage.Ligne(Espaces(5) + Texte(TexteDate) + DateDuJour() + Espaces(5) + Texte(TextePage) +
                 std::to_string(imprimante.Page()));
    tirage.Ligne();
}

void LigneGrasse(Tirage& tirage, const std::string& texte) {
    tirage.Ligne(Espaces(Marge) + texte, true);
}
void LigneSoulignee(Tirage& tirage, const std::string& texte) {
    tirage.EntamePage();
    tirage.Appareil().Ecrit(Espaces(Marge));
    tirage.Ligne(texte, true, true);
}
void LignePlaine(Tirage& tirage, const std::string& texte) {
    tirage.Ligne(Espaces(Marge) + texte);
}

// ---- figures

/// A rectangle with round corners.
std::vector<PointDessin> CadreRond(double largeur, double hauteur, double rayon) {
    std::vector<PointDessin> points;
    const PointDessin centres[] = {
        {largeur - rayon, hauteur - rayon}, {rayon, hauteur - rayon}, {rayon, rayon}, {largeur - rayon, rayon}};
    for (int coin = 0; coin < 4; ++coin)
        for (const PointDessin& p : Arc(centres[coin], rayon, coin * 90, coin * 90 + 90)) points.push_back(p);
    points.push_back(points.front());
    return points;
}

/// The frame with the box of the figure's letter in its lower middle.
void ImprimeCadre(Imprimante& imprimante, PointDessin coin, double hauteur, const std::string& nom) {
    constexpr Trait trait{Couleur::Axe, 1.2};
    constexpr double boite = 20, hauteurBoite = 7, basBoite = 2, lettre = 4; // mm
    const auto cadre = imprimante.Feuille(coin, LargeurCadre, hauteur, UniteFigure);
    cadre->Polyligne(CadreRond(cadre->Largeur(), cadre->Hauteur(), RayonCadre / UniteFigure), trait);
    const double milieu = cadre->Largeur() / 2, demi = boite / 2 / UniteFigure;
    const double bas = cadre->Hauteur() - basBoite / UniteFigure, haut = bas - hauteurBoite / UniteFigure;
    cadre->Polyligne(std::vector<PointDessin>{{milieu - demi, haut},
                                              {milieu + demi, haut},
                                              {milieu + demi, bas},
                                              {milieu - demi, bas},
                                              {milieu - demi, haut}},
                     trait);
    cadre->Texte({milieu, (haut + bas) / 2}, nom, Ancrage::Centre, lettre / UniteFigure);
}

void ImprimeFigure(Imprimante& imprimante, PointDessin coin, double hauteur, const GenreUtilise& genre) {
    ImprimeCadre(imprimante, coin, hauteur, Texte(TexteFig) + " " + genre.lettre);
    const auto figure =
        imprimante.Feuille({coin.x + 1, coin.y + 1}, LargeurCadre - 2, hauteur - BasFigure, UniteFigure);
    DessineSolide(*figure, genre.TypeSolide);
}

void ImprimeFigures(Tirage& tirage, const std::vector<GenreUtilise>& genres) {
    Imprimante& imprimante = tirage.Appareil();
    const double gauche = (imprimante.Largeur() - 2 * LargeurCadre - EcartCadres) / 2;
    for (std::size_t i = 0; i < genres.size(); i += 2) {
        tirage.Reserve(LignesFigure + 1);
        tirage.EntamePage();
        const double depart = imprimante.Tete();
        tirage.Ligne();
        const double haut = imprimante.Tete(), hauteur = LignesFigure * (haut - depart);
        ImprimeFigure(imprimante, {gauche, haut}, hauteur, genres[i]);
        if (i + 1 < genres.size())
            ImprimeFigure(imprimante, {gauche + LargeurCadre + EcartCadres, haut}, hauteur, genres[i + 1]);
        for (int ligne = 0; ligne < LignesFigure; ++ligne) tirage.Ligne();
    }
}

// ---- tables and totals

void ImprimeTableGenre(Tirage& tirage, const Assemblage& assemblage, const GenreUtilise& genre) {
    constexpr int lignesAvant = 6; // the title and the first row stay together
    tirage.Reserve(lignesAvant);
    LignePlaine(tirage, {});
    LigneGrasse(tirage, Texte(TexteFigure) + " " + genre.lettre);
    ImprimeTable(tirage, TableGenre(assemblage, genre.TypeSolide), Marge);
}

/// The totals of the list, a torque only when it is not zero, and what must be known of them.
std::vector<std::string> LignesTotaux(const Assemblage& assemblage) {
    constexpr int largeurNom = 20;
    std::vector<std::string> lignes;
    for (std::size_t i = 0; i < assemblage.totaux.size(); ++i)
        if (i < 2 || assemblage.totaux[i] != 0)
            lignes.push_back(CadreAGauche(Texte(LesGrandeurs()[i].texte), largeurNom) + " =  " +
                             Format(assemblage.totaux[i], "####.00") + UnitesTotaux[i]);
    for (const std::string& note : NotesTotaux(assemblage))
        for (const std::string& ligne : CoupeEnLignes(note, ColonnesPage - Marge)) lignes.push_back(ligne);
    return lignes;
}

/// The totals in full precision, on one line as long as they fit.
std::vector<std::string> LignesExacts(const Assemblage& assemblage) {
    const Grandeurs exacts = TotauxExacts(assemblage);
    std::vector<std::string> lignes{Texte(TexteExact) + " :"};
    for (std::size_t i = 0; i < exacts.size(); ++i) {
        if (i >= 2 && exacts[i] == 0) continue;
        const std::string valeur = "  " + StrTrim(exacts[i]) + UnitesTotaux[i];
        if (NombreCaracteres(lignes.back() + valeur) > ColonnesPage - Marge)
            lignes.push_back(Espaces(NombreCaracteres(Texte(TexteExact)) + 2));
        lignes.back() += valeur;
    }
    return lignes;
}

/// The totals stand together, on the next page when this one has no room for them.
void ImprimeTotaux(Tirage& tirage, const Assemblage& assemblage) {
    const std::vector<std::string> totaux = LignesTotaux(assemblage), exacts = LignesExacts(assemblage);
    constexpr std::size_t titreEtBlancs = 3;
    tirage.Reserve(static_cast<int>(totaux.size() + exacts.size() + titreEtBlancs));
    LignePlaine(tirage, {});
    LigneSoulignee(tirage, Texte(TexteTotaux));
    for (const std::string& ligne : totaux) LignePlaine(tirage, ligne);
    LignePlaine(tirage, {});
    for (const std::string& ligne : exacts) LignePlaine(tirage, ligne);
}

/// Characters of the widest line: the text is reduced for values longer than usual.
int ColonnesUtiles(const Assemblage& assemblage, const std::vector<GenreUtilise>& genres) {
    int colonnes = ColonnesPage;
    for (const GenreUtilise& genre : genres)
        colonnes = std::max(colonnes, Marge + LargeurTable(TableGenre(assemblage, genre.TypeSolide)));
    return colonnes;
}

} // namespace

void ImprimeInerties(Imprimante& imprimante, const Assemblage& assemblage) {
    const std::vector<GenreUtilise> genres = GenresUtilises(assemblage);
    Tirage tirage(imprimante, {.lignes = LignesPage,
                               .colonnes = ColonnesUtiles(assemblage, genres),
                               .pied = false,
                               .enTete = DebutPageInerties});
    if (!genres.empty()) {
        tirage.DebutRapport();
        ImprimeFigures(tirage, genres);
        for (const GenreUtilise& genre : genres) ImprimeTableGenre(tirage, assemblage, genre);
        ImprimeTotaux(tirage, assemblage);
        tirage.FinRapport(false);
    }
    tirage.FinDocument();
}
