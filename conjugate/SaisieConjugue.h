// What is entered for a conjugate pair, and the numbers that a calculation takes from it.
#pragma once

#include "conjugate/LoiConjugue.h"
#include "core/Champ.h"
#include "indexers/FauteSaisie.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>

struct SaisieConjugue {
    double Q = 0;           ///< distance between the shafts, mm
    double R = 0;           ///< radius of the roller axes on the follower wheel, mm
    double M = 0;           ///< number of rollers, rounded to a 16-bit integer by the calculation
    double N = 0;           ///< number of stops
    double A = 0;           ///< index angle, degrees of the input shaft
    double W = 0;           ///< part of it at constant velocity, 0 to below 1
    std::string Loi = "MS"; ///< "MS"; any other counts as "MT"
    double Ipm = 0;         ///< indexes a minute
    std::string ReferenceGalet;
    double D = 0;              ///< diameter of the roller, mm
    double F = 0;              ///< its height, mm
    double B10 = 0;            ///< its basic dynamic capacity, N
    double CLim = 0;           ///< its static capacity, N
    double VitesseGraisse = 0; ///< its highest speed with grease, Tr/min
};

/// The entries in the order of the report, each with its field.
std::span<const Champ<SaisieConjugue>> ChampsConjugue();

/// Nothing is checked before the calculation: entries that cannot be calculated with fail in the arithmetic. This tells
/// afterwards which entry it was, so that it can be corrected; none when no single entry is to blame.
std::optional<FauteSaisie> ChercheFauteConjugue(const SaisieConjugue& saisie);

/// The numbers of one calculation.
struct DonneesConjugue {
    double Q, R;    ///< mm
    std::int16_t M; ///< rollers
    double N, Ipm;
    double D, F;         ///< mm
    double B10, CLim;    ///< N
    double VMax;         ///< Tr/min, with oil
    double Pistes;       ///< number of tracks, not always whole
    double h;            ///< half pitch of the follower wheel, radians
    double VitesseArbre; ///< Tr/min of the input shaft
    LoiConjugue loi;
};

/// @throws ErreurExecution overflow of the number of rollers or of what there is to walk; division by zero
DonneesConjugue PrepareDonnees(const SaisieConjugue& saisie);

/// Speed of the input shaft, Tr/min: with more than five stops it turns once for two indexes.
double VitesseArbre(double N, double Ipm);
