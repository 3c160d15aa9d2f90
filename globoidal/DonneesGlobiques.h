// What is entered for a globoidal cam: casing, roller, motion. Lengths in mm, capacities in N and Nm, angles in
// degrees.
#pragma once

#include "core/Champ.h"
#include "indexers/SourceLoi.h"

/// Largest share at constant speed of a law whose shares are typed.
inline constexpr double PartVitesseMax = 0.99;

/// What indexer and oscillator ask for alike.
struct MecanismeGlobique {
    std::string Modele;             ///< of the casing
    double Boitier = 0;             ///< code of the casing, 0..16: some have a pitch radius of their own
    double Entraxe = 0;             ///< camshaft to turret axis, mm
    double RayonTourelle = 0;       ///< mm
    double InertieTourelle = 0;     ///< kgm²
    double CapaciteArbreEntree = 0; ///< Nm
    double CameMaxDiam = 0;         ///< largest cam that the casing takes, mm; 0 for no limit
    double CameMaxLong = 0;
    double NombreGalets = 0;
    double Precontrainte = 0; ///< on the scale of the reference torque, 100
    std::string ReferenceGalet;
    double codemi = 0;                          ///< code of the roller, 0..20
    double DiametreGalet = 0, HauteurGalet = 0; ///< mm
    double CapaciteB10 = 0, CapaciteLimite = 0; ///< N
    std::string FichierLoi;                     ///< path of the law file, with the law "Fichier"
};

struct DonneesIndexeur : MecanismeGlobique {
    double AngleIndexage = 0; ///< of the cam, for one stop
    double NombreStops = 0;
    std::string NomLoi; ///< a row of the catalogue, "MS_Spe" with the shares below, or "Fichier"
    double CoefA = 0, CoefB = 0, CoefC = 0;
    double CoefSymetrie = 0.5;
};

struct DonneesOscillateur : MecanismeGlobique {
    double AngleEntreGalets = 0;
    double AngleSortie = 0;                ///< of the output, to and fro
    double AngleZoneA = 0, AngleZoneB = 0; ///< cam angles: forward, dwell,
    double AngleZoneC = 0, AngleZoneD = 0; ///< back, dwell
    std::string LoiZoneA;
    double SymetrieA = 0.5;
    double CoefA1 = 0, CoefB1 = 0, CoefC1 = 0;
    double CodeLoiA = -1; ///< -1: as the name of the law says
    std::string LoiZoneC;
    double SymetrieC = 0.5;
    double CoefA2 = 0, CoefB2 = 0, CoefC2 = 0;
    double CodeLoiC = -1;
};

/// The rows of the two records, in the order of the screens.
std::span<const Champ<DonneesIndexeur>> ChampsIndexeur();
std::span<const Champ<DonneesOscillateur>> ChampsOscillateur();
