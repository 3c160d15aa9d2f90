// The capacity of a globoidal oscillator: the cam swings its output forward through zone A, holds it in zone B, swings
// it back through zone C and holds it in zone D. Every roller of the output is run through zones A and C.
#pragma once

#include "core/Etude.h"
#include "globoidal/ResultatGlobique.h"
#include "indexers/FauteSaisie.h"

#include <optional>

/// Where the flanks of the cam stand, degrees.
struct AnglesFlancs {
    double flanc1 = 0, flanc2 = 0;
    double travail = 0; ///< the working flank
};
/// @throws ErreurExecution division by zero for a pitch radius of 0
AnglesFlancs CalculeAnglesFlancs(const DonneesOscillateur& donnees);

/// True when both zones move by the law file: "Fichier" on one list is "Fichier" on both.
bool LoiParFichier(const DonneesOscillateur& donnees);

/// The shares a, b, c of a typed law, which must leave some for d.
std::optional<FauteSaisie> VerifiePartsLoi(double a, double b, double c, const char* champ);

/// The first entry that keeps the oscillator from being calculated, flanks that stand too far apart being the last;
/// none when all will do.
std::optional<FauteSaisie> ChercheFauteOscillateur(const DonneesOscillateur& donnees);

/// Rates an oscillator that `ChercheFauteOscillateur` lets through.
/// @param catalogue the laws of the table `Lois`
/// @throws ErreurExecution division by zero or incorrect call at the limits of the geometry; subscript out of range for
///         an unknown law, a law code outside 0..12, a casing or roller code, and for a law file that never moves;
///         whatever keeps a law file from being read; input past its end
ResultatGlobique CalculeCapaciteOscillateur(const DonneesOscillateur& donnees, const Tableau<Loi>& catalogue);
