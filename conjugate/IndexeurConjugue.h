// The calculation of the conjugate pair, from its entries to its report.
#pragma once

#include "conjugate/CapaciteConjugue.h"
#include "core/Nombres.h"

#include <optional>

struct ResultatConjugue {
    Booleen16 Erreur = Faux;          ///< set unless the calculation came to its end
    std::vector<std::string> lignes;  ///< the report as far as it was written
    std::vector<std::string> notes;   ///< what stands beside it, each text once
    std::optional<FauteSaisie> arret; ///< the box of a calculation that stopped with one
    std::string motif;                ///< why it stopped, with a box or without; empty when it did not

    // As far as the calculation came.
    std::optional<DonneesConjugue> donnees;
    std::optional<Courbures> courbures;
    std::optional<ReposConjugue> repos;
    std::optional<CapaciteConjugue> capacite;
    std::vector<CapaciteParVitesse> tableau;
};

/// Calculates and writes the report. No entry is checked before.
/// @param resultat holds what was calculated and written so far when a run-time failure ends it
/// @throws ErreurExecution where the arithmetic gives out, with the entry to blame where there is one
void CalculeIndexeurConjugue(const SaisieConjugue& saisie, ResultatConjugue& resultat);
