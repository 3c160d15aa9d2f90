// What a designer looks at beside the report of the pair: pressure angle and radius of curvature over the index,
// capacity against speed, with their limits drawn in.
#pragma once

#include "conjugate/IndexeurConjugue.h"
#include "drawing/Graphe.h"

/// Pressure angles of the two contacts that the report rates, as far as the index goes.
Graphe GraphePression(const DonneesConjugue& d, const std::optional<CapaciteConjugue>& capacite);

/// Radii of curvature of the tracks as they were walked, against what the roller needs.
Graphe GrapheCourbure(const DonneesConjugue& d, const Courbures& courbures);

/// Capacities against the speed, up to where the rollers turn too fast.
Graphe GrapheCapacite(const DonneesConjugue& d, const ReposConjugue& repos, const CapaciteConjugue& capacite);

/// The graphs that the calculation came far enough for.
std::vector<Graphe> GraphesConjugue(const ResultatConjugue& resultat);
