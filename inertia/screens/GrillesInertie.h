// The two grids of the inertia screen: the list of solids with their pictures, and the totals.
#pragma once

#include "inertia/Assemblage.h"

class Grille;

/// Makes a grid show the list: pictures in its first column, the values in full precision in the tips of its rows.
/// @param assemblage must outlive the grid
void PrepareListe(Grille& grille, const Assemblage& assemblage);
void RemplitListe(Grille& grille, const Assemblage& assemblage);

/// The totals stand in column 0, in full precision in column 1; the names of the quantities are shown in front of them.
void RemplitTotaux(Grille& grille, const Assemblage& assemblage);
