// A scalar of a record, said once: its name in files and in JSON, the field it is typed into, its caption, its unit,
// the mask it is written with, and what it must not be. Entry panels, files, limits, printed data and the batch
// companion walk tables of these rows. A row binds to any plain record.
#pragma once

#include <iterator>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

/// What a number must not be.
inline bool Nul(double valeur) {
    return valeur == 0.0;
}
inline bool NulOuNegatif(double valeur) {
    return !(valeur > 0.0);
}

template <class Fiche> struct Champ {
    using Membre = std::variant<double Fiche::*, std::string Fiche::*>;

    const char* nom;      ///< in data files and JSON: the name of the record's member
    const char* controle; ///< name of its field; none where no screen asks for it
    int texte;            ///< text number of its caption
    int unite;            ///< text number of its unit, 0 for none
    Membre membre;
    const char* masque = nullptr;              ///< in study files and printed data
    bool (*interdit)(double valeur) = nullptr; ///< true for a number that cannot be calculated with
    int texteFaute = 0;                        ///< text number of what is then said
    int rangFaute = 0;                         ///< of several numbers at fault the lowest rank is told first

    /// The number of this row in a record.
    /// @throws std::bad_variant_access when the row is a text.
    double& Nombre(Fiche& fiche) const { return fiche.*std::get<double Fiche::*>(membre); }
    double Nombre(const Fiche& fiche) const { return fiche.*std::get<double Fiche::*>(membre); }
};

/// A row bound to one record: what a screen, which knows no type of record, needs.
struct ChampLie {
    const char* nom;
    const char* controle;
    int texte;
    int unite;
    const char* masque;
    std::variant<double*, std::string*> valeur;
};

/// Binds a row to a record, which must outlive the result.
template <class Fiche> ChampLie LieChamp(const Champ<Fiche>& champ, Fiche& fiche) {
    ChampLie lie{champ.nom, champ.controle, champ.texte, champ.unite, champ.masque, {}};
    std::visit([&](auto membre) { lie.valeur = &(fiche.*membre); }, champ.membre);
    return lie;
}

/// The same for the rows of a table.
template <class Fiche>
std::vector<ChampLie> LieChamps(std::span<const Champ<std::type_identity_t<Fiche>>> champs, Fiche& fiche) {
    std::vector<ChampLie> lies;
    for (const auto& champ : champs) lies.push_back(LieChamp(champ, fiche));
    return lies;
}

/// The row of that name in a table, bound or not; none when it has none.
template <class Table> auto TrouveChamp(const Table& champs, std::string_view nom) -> decltype(&*std::begin(champs)) {
    for (auto& champ : champs)
        if (nom == champ.nom) return &champ;
    return nullptr;
}

/// The row of that name, which the table has.
/// @throws std::logic_error when it has not.
template <class Table> const auto& ChampNomme(const Table& champs, std::string_view nom) {
    if (const auto* champ = TrouveChamp(champs, nom)) return *champ;
    throw std::logic_error("no row " + std::string(nom));
}

/// The row whose number is what it must not be: of several the one of the lowest rank, then the first. None when all
/// will do.
template <class Fiche>
const Champ<Fiche>* ChercheInterdit(std::span<const Champ<std::type_identity_t<Fiche>>> champs, const Fiche& fiche) {
    const Champ<Fiche>* faute = nullptr;
    for (const auto& champ : champs)
        if (const auto* membre = std::get_if<double Fiche::*>(&champ.membre))
            if (champ.interdit != nullptr && champ.interdit(fiche.**membre))
                if (faute == nullptr || champ.rangFaute < faute->rangFaute) faute = &champ;
    return faute;
}
