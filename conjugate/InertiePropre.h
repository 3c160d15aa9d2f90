// The torque that the mechanism's own inertia takes from the output shaft.
#pragma once

/// Coefficient of acceleration of an index of so many degrees; 0 where none is known.
double CoefficientAcceleration(double N, double A);

/// Inertia of the follower wheel, kg m²; 0 for a mechanism that is not in the table.
/// @param Q distance between the shafts, mm @param M number of rollers @param R radius of their axes, mm
double InertieRoue(double Q, double M, double R);

/// N m. @param Ipm indexes a minute
double Eig_mom(double M, double R, double N, double Q, double A, double Ipm);

/// The index angle that the torque is reckoned with: twice that of an index for 6, 8 and 10 stops.
double AngleInertie(double N, double A);
