// The inputs of the present cam study as a text that gives them back to the last digit, finished or not: what is kept
// of a study that was given up without saving. A study file is rounded to its masks and holds finished studies only.
#pragma once

#include <string>
#include <string_view>

/// What was entered for the present study; empty when its kind is none of the table.
std::string ComposeReprise();

/// Fills the emptied study record from such a text. A law that came from a law file is the one of the catalogue
/// afterwards, as it was.
/// @throws ErreurExecution when it is damaged.
void LitReprise(std::string_view contenu);
