// The page framework of the cam reports: lines, page turns with foot line and repeated column heading, page heading.
#pragma once

#include "platform/Imprimante.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>

/// Lines of a page before it turns: the next one still prints, then the foot line.
inline constexpr std::int16_t LignesPage = 64;

/// Which column heading is repeated after a page turn.
enum EnTete : std::int16_t { SansEnTete = 0, EnTeteDuMouvement = 1, EnTeteDesForces = 2 };

/// The state of a print run.
struct Impression {
    std::int16_t NumeroLigne = 0; ///< lines printed on the present page
    std::int16_t NumeroPage = 0;  ///< pages finished in the present report
    std::int16_t NombrePages = 0; ///< page total of the present report, for its foot line
    std::int16_t TypeEnTete = SansEnTete;
};

extern Impression impression;

/// Prints one column heading through `ImprimeLigneCames`.
using ProcedureEnTete = void (*)();

/// A print run on a printer, for the life of this object: the run's state is cleared, the reports print on
/// `ImprimanteEnCours()`, and page turns repeat the headings given (none, motion, forces). The pages are laid out for
/// `LignesPage` lines of "Courier New" 11.
class TirageCames {
public:
    TirageCames(Imprimante& imprimante, std::array<ProcedureEnTete, 3> enTetes);
    ~TirageCames();
    TirageCames(const TirageCames&) = delete;
    TirageCames& operator=(const TirageCames&) = delete;
};

/// @throws ErreurExecution incorrect call outside a print run.
Imprimante& ImprimanteEnCours();

/// Prints one line. The 65th line of a page is followed by the foot line, turns the page and repeats the heading.
void ImprimeLigneCames(const std::string& texte, bool gras = false);

/// Prints the page heading: the name of what is reported, the date of the day, and `titre`. The reports of the cams
/// bear the study's name.
void DebutPage(const std::string& nom, const std::string& titre);
void DebutPageCames(const std::string& titre);

/// A line of a report that is a list of lines.
struct LigneRapport {
    std::string texte;
    bool gras = false;
};

/// Prints a whole report of lines: heading, lines, and its pages numbered when they are more than one.
void ImprimeRapportLignes(const std::string& titre, std::span<const LigneRapport> lignes);

/// Prints an empty line and the foot line with this page number and `NombrePages`.
void ImprimePiedDePage(int numeroPage);

/// A date as "dd mmmm yyyy", the month in the working language. @param mois 1..12
std::string DateLongue(int jour, int mois, int annee);

/// `nombre` blanks.
inline std::string Espaces(int nombre) {
    return std::string(static_cast<std::size_t>(nombre > 0 ? nombre : 0), ' ');
}

/// `largeur` characters from the right of a field of blanks that ends in `texte`: what is longer loses its head.
std::string CadreADroite(const std::string& texte, int largeur);

/// Characters of a text, which may take several bytes each.
int NombreCaracteres(const std::string& texte);

/// The first `caracteres` characters of a text.
std::string DebutTexte(const std::string& texte, int caracteres);
