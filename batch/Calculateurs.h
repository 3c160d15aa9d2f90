// What the commands of the capacity calculators share: data members that are numbers or texts as typed, one object a
// data file, refusals told as the screens tell them.
#pragma once

#include "batch/DonneesJson.h"
#include "batch/JsonEtude.h"
#include "batch/LigneCommande.h"
#include "core/Champ.h"
#include "indexers/FauteSaisie.h"

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

/// The inputs out of data: a number, or the text that would be typed. What is missing or null is an empty field.
/// @param champs the members, bound to the record that they are read into
/// @throws ErreurExecution overflow for a number beyond a double; type mismatch for a member that is neither.
void LitDonneesCalculateur(const Donnees& donnees, const std::vector<ChampLie>& champs);

/// The path of a law file: as given, or beside the data file where there is none as given.
std::string TrouveFichierLoi(const std::string& donne, const std::filesystem::path& donnees);

/// What became of one data file.
struct IssueCalculateur {
    Json resultats = Json::object(); ///< the members behind `messages` and `echec`
    std::string echec;               ///< why there is no result; empty when there is
};

/// Shows the fault and makes it the reason. A fault without a text of its own is not shown.
void RefuseSaisie(const FauteSaisie& faute, IssueCalculateur& issue);

/// The members of a result that does not stand: no number, empty tables.
Json SansValeurs(Json resultats);

struct Calculateur {
    const char* commande;
    std::vector<std::string> membres; ///< names of the data
    /// Reads and calculates; a run-time failure leaves what `resultats` holds by then.
    void (*calcule)(const Donnees& donnees, const std::filesystem::path& fichier, IssueCalculateur& issue);
};

/// One JSON object on `sortie` for each data file, each as if the program had just been started.
/// @return 0 calculated, 1 refused or failed, 2 for a file that cannot be opened or that makes no sense
/// @throws UsageIncorrect without a file
int DerouleCalculateur(const Calculateur& calculateur, const LigneCommande& ligne, std::ostream& sortie,
                       std::ostream& erreurs);
