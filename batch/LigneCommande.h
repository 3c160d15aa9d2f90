// The command line of the batch companion: the options, from one table, and around them the command and its arguments.
#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

struct LigneCommande {
    std::string commande;                                         ///< the first word that is no option
    std::vector<std::string> arguments;                           ///< the other words
    std::string base, langue, points, symetrie, scripts, rapport; ///< values of the options; empty when not given
    bool oui = false, resume = false, aide = false;
};

struct OptionCommande {
    const char* nom;
    const char* commande; ///< the command that takes it; none when all do. A name may stand for two commands
    const char* valeur;   ///< what the value is called; none for a mark
    const char* sens;     ///< one line for the help
    std::variant<bool LigneCommande::*, std::string LigneCommande::*> membre;
};

std::span<const OptionCommande> LesOptions();

/// Wrong usage, told in one line.
class UsageIncorrect : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// @param mots the words behind the name of the program. Options stand anywhere; behind "--" every word is an argument.
/// @throws UsageIncorrect for an option that does not exist, that lacks its value, or that the command does not take.
LigneCommande AnalyseLigne(const std::vector<std::string>& mots);
