// The table of results of a globoidal cam: eighteen rows, one column for each share of inertia in the load. Torques are
// in pound-force inches, forces in pounds-force.
#pragma once

#include "globoidal/ContactGlobique.h"

#include <array>

enum RangCapacite : std::size_t {
    FigureContact,     ///< largest F/(H rho)
    ForceGalet,        ///< largest roller force under the reference torque
    ToursGalet,        ///< roller revolutions in one run
    ChargeEquivalente, ///< the load of constant size that costs the roller as much life
    FigureProfondeur,  ///< largest F rho/H
    B10Galet,          ///< life ratings
    B10Trempee,
    B10Nitruree,
    LimiteGalet, ///< limit torques
    LimiteTrempee,
    LimiteNitruree,
    LimiteProfondeur,
    Inertie,        ///< the share of inertia itself, %
    B10CameTrempee, ///< overall
    B10CameNitruree,
    LimiteCameTrempee,
    LimiteCameNitruree,
    LimiteArbre,
    NombreLignes
};

using TableCapacites = std::array<std::array<double, NombreParts>, NombreLignes>;

/// Rows of maxima at 0, rows of minima at a number that any real figure undercuts.
TableCapacites TableVide();

/// One run of a roller through the cam, all shares of inertia.
using ParcoursGalet = std::array<ColonneParcours, NombreParts>;

/// What sets the ratings of an indexer and of an oscillator apart.
struct ReglesDuree {
    double parTour = 1; ///< the life sum counts for so many stops
    double facteurGalet = 1, facteurCame = 1;
    bool toursDuPire = true; ///< revolutions and equivalent load are those of the run with the shortest life;
                             ///< otherwise the largest of all runs
};

/// Closes a run: its figures, worse ones taking the place of those in the table.
/// @throws ErreurExecution incorrect call where a power has no real value
void AjouteParcours(const CameGlobique& came, const ParcoursGalet& parcours, const ReglesDuree& regles,
                    TableCapacites& table);

/// The overall rows, from those of roller, cam and shaft. @param arbreNulIllimite a shaft limit of 0 limits nothing
/// @throws ErreurExecution not a finite number somewhere in the table
void CompleteTable(TableCapacites& table, bool arbreNulIllimite);

/// The row that an overall row takes its value from: the part that gives out first.
/// @param globale one of the four overall rows of the cam
RangCapacite LigneQuiLimite(const TableCapacites& table, RangCapacite globale, std::size_t part);

/// The largest factors of the cam torque, by share of inertia.
using FacteursCouple = std::array<double, NombreParts>;
