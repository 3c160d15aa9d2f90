// The list of solids in a text file (.Ine): a heading line, then one solid a line, cut at ";":
//
//     TypeSolide;Text1;Text2;MasseTotal;Text3;Text5;Text6;Text7;Text8
//     1;1;1;False;7850;;500;;20
//
// kind 1 to 20, quantity, ratio, "True" for a mass or "False" for a density, that number, and the dimensions R, D, d, H
// as typed (blank where the kind has none). UTF-8; lines end with CR LF and are read with LF too; empty lines are
// passed over. The values of the list are not in the file: they are calculated again.
#pragma once

#include "inertia/Assemblage.h"

#include <filesystem>
#include <string_view>

inline constexpr const char* ExtensionInerties = ".Ine";

std::string ComposeInerties(const Assemblage& assemblage);

/// Makes the list that a file holds, in its order. The refusal of negative totals belongs to adding by hand: a list
/// that was kept comes back whole.
/// @throws ErreurExecution invalid content, with the number of the line, for a line that is no solid or one that cannot
/// be calculated.
Assemblage AnalyseInerties(std::string_view contenu);

/// @throws ErreurExecution disk full; access refused; no such folder; input/output.
void EcritInerties(const std::filesystem::path& chemin, const Assemblage& assemblage);
/// @throws ErreurExecution file not found; access refused; input/output; what `AnalyseInerties` throws, with the name
/// of the file.
Assemblage LitInerties(const std::filesystem::path& chemin);
