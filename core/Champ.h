// A scalar of a record, said once: its name in files and in JSON, the field it is typed into, its caption, its unit,
// the mask it is written with, and what it must not be. Entry panels, files, limits, printed data and the batch
// companion walk tables of these rows. A row binds to any plain record.
#pragma once

#include <span>
#include <string>
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
    const char* nom;      ///< in data files and JSON: the name of the record's member
    const char* controle; ///< name of its field; none where no screen asks for it
    int texte;            ///< text number of its caption
    int unite;            ///< text number of its unit, 0 for none
    std::variant<double Fiche::*, std::string Fiche::*> membre;
    const char* masque = nullptr;              ///< in study files and printed data
    bool (*interdit)(double valeur) = nullptr; ///< true for a number that cannot be calculated with
    int texteFaute = 0;                        ///< text number of what is then said
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

/// Binds the rows of a table to a record, which must outlive the result.
template <class Fiche> std::vector<ChampLie> LieChamps(std::span<const Champ<Fiche>> champs, Fiche& fiche) {
    std::vector<ChampLie> lies;
    for (const auto& champ : champs) {
        ChampLie lie{champ.nom, champ.controle, champ.texte, champ.unite, champ.masque, {}};
        std::visit([&](auto membre) { lie.valeur = &(fiche.*membre); }, champ.membre);
        lies.push_back(lie);
    }
    return lies;
}

/// The first row whose number is what it must not be; none when all will do.
template <class Fiche> const Champ<Fiche>* ChercheInterdit(std::span<const Champ<Fiche>> champs, const Fiche& fiche) {
    for (const auto& champ : champs)
        if (const auto* membre = std::get_if<double Fiche::*>(&champ.membre))
            if (champ.interdit != nullptr && champ.interdit(fiche.**membre)) return &champ;
    return nullptr;
}
