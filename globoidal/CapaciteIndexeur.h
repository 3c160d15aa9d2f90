// The capacity of a globoidal indexer: its rollers run through the thread of the cam, position by position, and the
// worst contact rates roller, cam and input shaft.
//
// A cam with more stops than rollers is of the second kind: it takes Type turns for one pitch, each of its turns
// indexing by less than a pitch.
#pragma once

#include "core/Etude.h"
#include "globoidal/ResultatGlobique.h"
#include "indexers/FauteSaisie.h"

#include <optional>

/// The first entry that keeps the indexer from being calculated; none when all will do.
/// @throws ErreurExecution overflow for a number of stops that is no 16-bit integer
std::optional<FauteSaisie> ChercheFauteIndexeur(const DonneesIndexeur& donnees);

/// Rates an indexer that `ChercheFauteIndexeur` lets through.
/// @param catalogue the laws of the table `Lois`
/// @throws ErreurExecution division by zero or incorrect call at the limits of the geometry; subscript out of range for
///         an unknown law, casing code or roller code; overflow for passes or turns beyond 16 bits; whatever keeps a
///         law file from being read; input past its end; invalid content for one without an end line
ResultatGlobique CalculeCapaciteIndexador(const DonneesIndexeur& donnees, const Tableau<Loi>& catalogue);
