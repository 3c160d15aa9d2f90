// A labelled value of a report: caption, unit with its separator, value; the separators stand below each other.
#pragma once

#include "data/Textes.h"
#include "reports/CadrePages.h"
#include "studies/TypesEtude.h"

#include <algorithm>
#include <string>

inline constexpr int RetraitLigne = 5;
inline constexpr const char* SansUnite = " : ";

/// "(mm) : " of a unit's text number.
inline std::string UniteTexte(int unite) {
    return "(" + Texte(unite) + ") : ";
}

inline std::string LigneValeur(const std::string& libelle, const std::string& unite, const std::string& valeur) {
    constexpr int colonneValeur = 54; // the longest caption of the delivered languages and the longest unit
    const std::string debut = Espaces(RetraitLigne) + libelle + " ";
    return debut + CadreADroite(unite, std::max(NombreCaracteres(unite), colonneValeur - NombreCaracteres(debut))) +
           valeur;
}
