// One run of the batch companion inside the test: its status, the objects that it printed and its error lines.
#pragma once

#include "batch/Commandes.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <sstream>

struct Passe {
    int statut = 0;
    std::vector<nlohmann::ordered_json> objets;
    std::string sortie;
    std::string erreurs;

    const nlohmann::ordered_json& Objet() const {
        if (objets.size() != 1) throw std::runtime_error("not one object: " + sortie + erreurs);
        return objets.front();
    }
    long LignesErreur() const { return std::count(erreurs.begin(), erreurs.end(), '\n'); }
};

inline Passe LancePasse(std::vector<std::string> mots, const std::string& langue = "Français") {
    mots.insert(mots.end(), {"--base", VELORIN_DOSSIER "/BaseDatos.Mdb", "--langue", langue});
    std::ostringstream sortie, erreurs;
    Passe passe;
    passe.statut = LanceCommande(mots, sortie, erreurs);
    passe.sortie = sortie.str();
    passe.erreurs = erreurs.str();
    std::istringstream lignes(passe.sortie);
    for (std::string ligne; std::getline(lignes, ligne);) passe.objets.push_back(nlohmann::ordered_json::parse(ligne));
    return passe;
}

/// The numbers of an array; what is null becomes NaN.
inline std::vector<double> Nombres(const nlohmann::ordered_json& tableau) {
    std::vector<double> nombres;
    for (const auto& n : tableau) nombres.push_back(n.is_null() ? std::nan("") : n.get<double>());
    return nombres;
}

inline double PlusGrand(const nlohmann::ordered_json& tableau) {
    double maximum = 0;
    for (const double n : Nombres(tableau)) maximum = std::max(maximum, std::abs(n));
    return maximum;
}
