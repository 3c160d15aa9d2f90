// The groups of inputs of a globoidal screen, made from the rows of its record.
#pragma once

#include "core/Champ.h"

#include <array>
#include <initializer_list>
#include <span>
#include <vector>

class PanneauLoi;
class PanneauSaisie;

/// Names of the members of the motion, in the order of entry.
inline constexpr const char* MouvementIndexeur[] = {"Precontrainte", "AngleIndexage", "NombreGalets", "NombreStops"};
inline constexpr const char* MouvementOscillateurSaisi[] = {"Precontrainte", "NombreGalets", "AngleEntreGalets",
                                                            "AngleSortie",   "AngleZoneA",   "AngleZoneB",
                                                            "AngleZoneC",    "AngleZoneD"};

class PanneauxGlobiques {
public:
    explicit PanneauxGlobiques(std::vector<ChampLie> champs) : champs_(std::move(champs)) {}

    PanneauSaisie* FaitBoitier() const;
    PanneauSaisie* FaitMouvement(std::span<const char* const> membres) const;
    PanneauSaisie* FaitGalet() const;

    /// @param membres law, symmetry, and the shares a, b, c
    /// @param retour laws of rise and return that are offered behind those that rise only and before "Fichier"
    PanneauLoi* FaitLoi(const char* nom, int titre, const std::array<const char*, 5>& membres, const char* panneau,
                        const char* ok, std::initializer_list<const char*> retour) const;

private:
    std::vector<ChampLie> Choisis(std::span<const char* const> membres) const;

    std::vector<ChampLie> champs_;
};
