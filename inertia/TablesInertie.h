// The printed tables of the list: what stands in the columns of each kind.
#pragma once

#include "inertia/Assemblage.h"

/// The rows of one kind as a table, from the quantity to the inertia. Some kinds share the table of another, which
/// names a dimension more or fewer than they have, on purpose; what it does not name stands behind the row ("d = 80").
/// @param assemblage must outlive it
TableTexte TableGenre(const Assemblage& assemblage, int TypeSolide);
