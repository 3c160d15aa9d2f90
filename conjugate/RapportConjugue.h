// The report of the conjugate pair, line by line as it stands in the grid and on paper: French and English as it always
// was, in every working language. Each procedure appends the lines of one block.
#pragma once

#include "conjugate/CapaciteConjugue.h"

/// The entries, and the extreme radii of curvature.
void EcritDonnees(const DonneesConjugue& d, const Courbures& courbures, std::vector<std::string>& lignes);
/// What the symbols of the results mean.
void EcritExplications(std::vector<std::string>& lignes);
/// Pressure angles, radii and limits.
void EcritCapacite(const DonneesConjugue& d, const Courbures& courbures, const ReposConjugue& repos,
                   const CapaciteConjugue& capacite, std::vector<std::string>& lignes);
void EcritTeteTableau(std::vector<std::string>& lignes);
void EcritLigneTableau(const LigneVitesse& ligne, std::vector<std::string>& lignes);
