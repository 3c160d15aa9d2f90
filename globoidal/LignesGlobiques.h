// The results of a globoidal cam as screen, paper and JSON show them: the block of the geometry, and the capacities,
// five to a row, one for each share of inertia in the load.
#pragma once

#include "globoidal/ResultatGlobique.h"
#include "indexers/LigneResultat.h"

/// A value beyond its limit is red, and its note says which; a capacity of a roller that carries nothing has a note and
/// stands at what its row began with.
/// The groups and their lines stand in the order of the report.
std::vector<GroupeResultats> GeometrieIndexeur(const DonneesIndexeur& donnees, const ResultatGlobique& resultat);
std::vector<TableResultats> CapacitesIndexeur(const ResultatGlobique& resultat);

std::vector<GroupeResultats> GeometrieOscillateur(const DonneesOscillateur& donnees, const ResultatGlobique& resultat);
std::vector<TableResultats> CapacitesOscillateur(const ResultatGlobique& resultat);

/// True for a capacity that no load was measured for: the screen shows a dash in its place.
bool SansCharge(const ResultatGlobique& resultat, RangCapacite ligne, std::size_t part);

/// What screen and page show in place of a value that has none.
inline constexpr const char* Tiret = "\u2013";

/// The tables with a dash in place of each value that has none; why stands in its note.
std::vector<TableResultats> PourAffichage(std::vector<TableResultats> tables);

/// What the results do not say by themselves.
std::vector<std::string> NotesIndexeur(const DonneesIndexeur& donnees, const ResultatGlobique& resultat);
std::vector<std::string> NotesOscillateur(const DonneesOscillateur& donnees, const ResultatGlobique& resultat);
