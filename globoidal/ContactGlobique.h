// One roller of the turret against the globoidal cam, at one cam angle. The turret turns the roller by phi; C is the
// centre distance, r a radius from the turret axis, both in inches:
//
//     B(r) = C - r cos phi                                   from the cam axis
//     alpha(r) = arctan(phi' r / B)                          pressure angle
//     kappa(r) = c/B (phi'' r c²/B - (sin² alpha + 1) sin phi),  c = -cos alpha
//
// where phi' and phi'' are derivatives by the cam angle in radians. Seen from the roller's path the cam has the
// curvature kappa; at the contact its radius is 1/kappa less the roller's, negative where the roller lies in a hollow.
#pragma once

#include "globoidal/DonneesGlobiques.h"

#include <cstddef>

/// Shares of inertia in the load: 0, 25, 50, 75, 100 %.
inline constexpr std::size_t NombreParts = 5;
inline constexpr double PartInertie(std::size_t k) {
    return 25.0 * static_cast<double>(k);
}

/// Casing and roller in inches and pounds-force.
struct CameGlobique {
    double C = 0;          ///< centre distance
    double R = 0;          ///< turret radius
    double Rp = 0;         ///< pitch radius
    double D = 0, H = 0;   ///< diameter and height of the roller
    double Cb = 0, Cl = 0; ///< dynamic and limit capacity of the roller
    double pas = 0;        ///< from roller to roller, radians
    double L = 0;          ///< a roller is engaged within this angle on either side, radians
    double precontrainte = 0;

    double RayonTete() const { return Rp - H / 2.0; }
    double RayonRacine() const;
};

/// Casing and roller of the entries; pitch radius, pitch and engagement are left to the kind of cam.
/// @throws ErreurExecution subscript out of range for a code that no casing, or no roller, has
CameGlobique LitCame(const MecanismeGlobique& donnees);

/// The casing whose pitch radius depends on the code of the roller.
inline constexpr int BoitierParGalet = 5;

/// The code of the casing as a whole number.
int CodeBoitier(const MecanismeGlobique& donnees);

/// Inertia of the turret with its rollers, kgm².
double InertieAvecGalets(const CameGlobique& came, double nombreGalets, double inertieTourelle);

/// Where a roller stands, and its motion by the cam angle (radians).
struct PositionGalet {
    double phi = 0;
    double vitesse = 0, accel = 0;
};

struct ContactGalet {
    double alpha = 0, cosAlpha = 1;
    double B = 0;               ///< pitch point to cam axis, inches
    double entre = 0, sort = 0; ///< angles that the roller covers: leading and trailing edge, radians
    double kappaCentre = 0;
};

/// @throws ErreurExecution division by zero where a radius reaches the cam axis
ContactGalet CalculeContact(const CameGlobique& came, const PositionGalet& galet);

/// The curvature at the root of the groove.
double CourbureRacine(const CameGlobique& came, const PositionGalet& galet);

/// Smallest figures of the walk, inches and radians.
struct MinimaGlobiques {
    double tete = 9, centre = 9, racine = 9; ///< rib thickness
    double alpha = 0;                        ///< largest pressure angle
    double convexeCentre = 100, convexeRacine = 100;
    double flancsCentre = 100, flancsRacine = 100;
};

/// Rib thickness halfway to the next roller. @return the pressure angle there, at the pitch radius
double MesureNervure(const CameGlobique& came, const PositionGalet& galet, MinimaGlobiques& minima,
                     double* epaisseurCentre = nullptr);

/// The flanks that a roller touches.
struct Flancs {
    bool superieur = true, inferieur = true;

    bool Deux() const { return superieur && inferieur; }
    bool Aucun() const { return !superieur && !inferieur; }
};

/// A torque within a rounding of no load, or of the preload, is that value, so that a rounding lifts no roller.
double CoupleNet(double couple, double precontrainte);

/// What of the torque a roller carries, and whether on the flank of reversed curvature.
struct ChargeGalet {
    double couple = 0;
    bool inverse = false;
};
/// A roller on both flanks takes the whole torque on the flank that drives; a roller on one flank carries the preload
/// less or plus the torque, and lifts off when the torque passes the preload.
ChargeGalet PartageCharge(double couple, double precontrainte, Flancs flancs);

/// How a walk picks the radii of curvature that it keeps.
struct RegleCourbure {
    bool surLaCame = true;  ///< convex is told on the cam's own surface; otherwise on the path of the roller centre
    bool deuxFlancs = true; ///< the minima over both flanks are taken here too
};

/// What one column, one share of inertia, gathers along the run of a roller.
struct ColonneParcours {
    double contact = 0;    ///< largest F/(H rho)
    double force = 0;      ///< largest F
    double tours = 0;      ///< roller revolutions
    double profondeur = 0; ///< largest F rho/H
    double vie = 0;        ///< sum of F^(10/3) n
};

/// Loads a roller at a contact and adds to its column. @param kappaRacine curvature at the root; @param tours of the
/// roller since the position before. @return the force, lbf
double ChargeContact(const CameGlobique& came, const ContactGalet& contact, double kappaRacine,
                     const ChargeGalet& charge, double tours, RegleCourbure regle, ColonneParcours& colonne,
                     MinimaGlobiques& minima);
