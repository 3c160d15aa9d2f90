// Printed tables. They are laid out by counting characters: a unit stands below the right end of its column. A value
// too long for its column widens it, heading and all, so that no digit and no sign is ever cut.
#pragma once

#include "reports/CadrePages.h"

#include <span>
#include <string>

struct ColonneRapport {
    int titre;                    ///< text number
    const char* unite;            ///< as it stands on the page
    double (*valeur)(long point); ///< none for a column that has only its heading
    const char* masque;
    int largeur; ///< characters, the blank before the value included
};

/// Prints the two lines of a table's column heading and an empty one.
void ImprimeEnTete(std::span<const ColonneRapport> colonnes);

/// Prints a whole report that is a table of the points 0..`NombrePoints`: page heading, column heading repeated after
/// each page turn as `enTete`, rows, page numbers.
/// @param nom name of the study in the page heading
/// @param pages page total of the foot lines
void ImprimeTable(std::span<const ColonneRapport> colonnes, EnTete enTete, const std::string& nom,
                  const std::string& titre, std::int16_t pages);

/// Pages of such a report.
std::int16_t NombrePagesTable();
