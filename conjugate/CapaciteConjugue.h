// Capacity of the pair at the output shaft: cam surface, static rating of the roller, life of its bearing, and the
// table against speed. Torques in N m, pressure angles in degrees.
#pragma once

#include "conjugate/PistesConjugue.h"

#include <vector>

/// Life that the dynamic limits are rated for, hours.
inline constexpr double DureeVie = 8000;

/// At dwell.
struct ReposConjugue {
    double PAD = 0; ///< pressure angle
    double RSD = 0; ///< radius to the cam surface, mm
    double SR = 0;  ///< diameter ratio of the two that roll on each other
};

/// The limits that follow from the pressure angle of one contact.
struct LimitesContact {
    Contact contact;
    double C55 = 0, C60 = 0;       ///< cam surface
    double DynB10 = 0, DynB50 = 0; ///< life of the bearing
};

struct CapaciteConjugue {
    double Tx = 0;  ///< input angle of extreme acceleration, degrees
    double PA0 = 0; ///< at dwell
    double Fu = 0;  ///< usage factor of the rollers
    double C55d = 0, C60d = 0;
    double LimiteStatique = 0;
    LimitesContact premier;
    double phi2 = 0;       ///< of the second contact, radians
    LimitesContact second; ///< all 0 unless phi2 is below 0
};

/// A row of the table of capacities.
struct CapaciteParVitesse {
    double Ipm = 0;
    double C60x = 0, DynB10 = 0, DynB50 = 0;
    double Catalogue = 0; ///< the smaller of cam surface and B50
    double Propre = 0;    ///< taken by the mechanism's own inertia
};

/// Input angle of extreme acceleration, degrees.
double AngleAccelerationExtreme(const DonneesConjugue& d);

/// @throws ErreurExecution division by zero
ReposConjugue CalculeRepos(const DonneesConjugue& d);

/// True when the rollers turn too fast at the speed asked for.
bool VitesseLimiteAtteinte(const DonneesConjugue& d, const ReposConjugue& repos);

/// @throws ErreurExecution division by zero; a power or a root without a real value; a result that is no number
CapaciteConjugue CalculeCapacite(const DonneesConjugue& d, const ReposConjugue& repos, std::vector<std::string>& ecran);

/// Usage factor of the rollers. @param A index angle, degrees
double Fu(double M, double N, double A);

/// The capacities at a speed. @param Ipm indexes a minute
CapaciteParVitesse CalculeLigne(const DonneesConjugue& d, const ReposConjugue& repos, const CapaciteConjugue& capacite,
                                double Ipm);

/// The speeds of the table, indexes a minute: slower for large centre distances.
std::vector<double> VitessesTable(double Q);
