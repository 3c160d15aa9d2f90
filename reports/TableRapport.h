// Printed tables. They are laid out by counting characters: a unit stands below the heading of its column. A cell too
// long for its column widens it, heading and all, so that no digit and no sign is ever cut.
#pragma once

#include "core/TableTexte.h"
#include "reports/CadrePages.h"

#include <optional>
#include <string>

/// Characters that a table takes on paper.
int LargeurTable(const TableTexte& table);

/// Prints a table from the present line on: its heading, bold and followed by an empty line, which every page that
/// turns repeats, then its rows.
/// @param marge blanks before its first column
void ImprimeTable(Tirage& tirage, const TableTexte& table, int marge = 0);

/// Prints an empty line and a note of any length.
void ImprimeNote(Tirage& tirage, const std::string& note);

/// Prints a whole report that is one table: report heading, table, page numbers.
/// @param nom of the study in the report heading
/// @param pages page total of the foot lines; none: counted
/// @param note printed below the table
void ImprimeRapportTable(Tirage& tirage, const std::string& nom, const std::string& titre, const TableTexte& table,
                         std::optional<int> pages = std::nullopt, const std::string& note = {});
