// The list of solids of one assembly and its running totals. The list works on the result labels, which round: its
// values and totals are those of the labels, on purpose. Beside them every row keeps its values in full precision.
#pragma once

#include "core/TableTexte.h"
#include "inertia/Solides.h"

#include <vector>

struct LigneAssemblage {
    SaisieSolide saisie;
    Grandeurs liste{};   ///< what its result labels read
    Grandeurs exactes{}; ///< what was calculated
};

struct Assemblage {
    std::vector<LigneAssemblage> lignes;
    Grandeurs totaux{};
};

enum class Ajout {
    Fait,
    SansEffet, ///< all four labels read 0
    Refuse,    ///< the product of the new totals is below zero
};

/// Adds a solid to the list. What is not `Fait` changes nothing.
/// @param etiquettes its result labels as they stand; a blank one reads 0
/// @param exactes what they were made from
/// @param Signe factor of the four values
Ajout AjouteSolide(Assemblage& assemblage, const SaisieSolide& saisie, const Etiquettes& etiquettes,
                   const Grandeurs& exactes, double Signe = 1);

/// Puts back a solid that was in the list before, whatever the sign of the totals.
void RestitueSolide(Assemblage& assemblage, const SaisieSolide& saisie, const Etiquettes& etiquettes,
                    const Grandeurs& exactes);

/// What a box says of a refused solid.
std::string MessageRefus();

/// Takes a row out of the list and gives what was typed for it.
/// @param rang from 0
/// @return none, and nothing happens, outside the list and for a row of zeros
std::optional<SaisieSolide> EnleveSolide(Assemblage& assemblage, std::size_t rang);

/// The sums of the rows in full precision.
Grandeurs TotauxExacts(const Assemblage& assemblage);

/// True when a total of the list is off its exact value by more than one percent.
bool TotauxTrompeurs(const Assemblage& assemblage);

/// What is said beside the totals of the list where they mislead.
std::vector<std::string> NotesTotaux(const Assemblage& assemblage);

/// The list as a table. Column 0 is that of the pictures, 1 to 4 hold the values, 5 to 14 what was typed, those behind
/// them the values in full precision. @param assemblage must outlive it
TableTexte TableListe(const Assemblage& assemblage);

/// True for a column that is not shown, and kept in copies of the list.
bool ColonneCachee(int colonne);

/// The totals as a table: as the list has them, in full precision, names, units. @param assemblage must outlive it
TableTexte TableTotaux(const Assemblage& assemblage);

/// A value as the list shows it.
std::string TexteListe(double valeur, const GrandeurInertie& grandeur);

/// Cells of a line: a member as it was typed, a quantity as the list shows it.
template <std::string SaisieSolide::*membre> std::string CelluleSaisie(const LigneAssemblage& ligne) {
    return ligne.saisie.*membre;
}
template <std::size_t rang> std::string CelluleListe(const LigneAssemblage& ligne) {
    return TexteListe(ligne.liste[rang], LesGrandeurs()[rang]);
}
