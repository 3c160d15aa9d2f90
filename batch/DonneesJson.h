// The data files of the batch companion: one JSON object, whose faults are told in the working language.
#pragma once

#include <nlohmann/json.hpp>

#include <stdexcept>
#include <string>

/// The members of a data file, in order of their names: finding one takes no walk over all.
using Donnees = nlohmann::json;

/// Data that make no sense, told in one line.
class DonneesIncorrectes : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// @throws ErreurExecution when the file cannot be read; DonneesIncorrectes when it is no JSON object, with the line
///         and the column at fault, when a member stands twice, or when a number exceeds a double.
Donnees LitDonneesJson(const std::string& fichier);

/// "member: expected ..., found ...": what stands there is shortened to a few words.
DonneesIncorrectes MembreIncorrect(const std::string& nom, const std::string& attendu, const Donnees& trouve);

/// What is expected of a member that is read as it would be typed.
std::string TexteOuNombre();

/// @throws DonneesIncorrectes when there is no such member, or when it is no number
double LitNombre(const Donnees& donnees, const char* nom);
