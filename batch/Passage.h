// What every command does alike: it starts from a fresh record, collects the boxes, catches what stops the calculation,
// and prints one object whose head is the same for all.
#pragma once

#include "batch/JsonEtude.h"
#include "batch/LigneCommande.h"

#include <functional>
#include <iosfwd>
#include <span>
#include <string>

/// One calculation of a command.
struct Calcul {
    Json tete; ///< members before `Erreur`; may be null for none
    /// Calculates from the fresh record. @return why there is no result; empty when there is one
    std::function<std::string(const DialoguesCollecte& dialogues)> execute;
    /// The members behind `messages` and `echec`. @param reussi false when there is no result
    std::function<Json(bool reussi)> resultats;
};

/// The record as if the program had just been started: neither maxima nor overwritten law rows go from one calculation
/// to the next.
void RemetEtude();

/// Runs a calculation on the record as it stands, and prints its object on one line of `sortie`: the head, `Erreur`,
/// `messages`, `echec` when there is one, the results. A run-time failure is an `echec` with its meaning.
/// @return 0 calculated, 1 refused or failed
int LanceCalcul(const Calcul& calcul, const LigneCommande& ligne, std::ostream& sortie);

/// One line on `erreurs`: the file and what is wrong with it, in the working language.
void EcritFaute(std::ostream& erreurs, const std::string& fichier, const std::exception& faute);

/// Runs `traite` on each file with a fresh record. A file that cannot be opened or makes no sense, told by any
/// exception that leaves `traite`, is one line on `erreurs` and status 2; the others are calculated all the same.
/// @return the worst status
int ParcourtFichiers(std::span<const std::string> fichiers, std::ostream& erreurs,
                     const std::function<int(const std::string& fichier)>& traite);
