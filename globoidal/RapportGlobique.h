// The report of a globoidal cam: the data, the geometry, the capacities, and behind them the drawings.
#pragma once

#include "globoidal/LignesGlobiques.h"
#include "platform/Imprimante.h"

#include <functional>

struct RapportGlobique {
    int titre = 0; ///< text number
    std::vector<LigneResultat> donnees;
    std::vector<GroupeResultats> geometrie;
    std::vector<TableResultats> capacites; ///< as shown: a dash where there is no value
    std::vector<std::string> notes;
    std::function<void(Dessin&)> section;
};

RapportGlobique RapportIndexeur(const DonneesIndexeur& donnees, const ResultatGlobique& resultat);
RapportGlobique RapportOscillateur(const DonneesOscillateur& donnees, const ResultatGlobique& resultat);

/// Prints the three parts one after the other, then the drawings, and ends the document. A value beyond its limit is
/// followed by "??".
void ImprimeCapacites(Imprimante& imprimante, const RapportGlobique& rapport, const MecanismeGlobique& donnees,
                      const ResultatGlobique& resultat);
