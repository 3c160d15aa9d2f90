// The printed reports of the cam studies. Each reads the study record, prints on the printer of the present run and
// ends its own last page.
#pragma once

#include "platform/Imprimante.h"

#include <array>

/// The check marks of the print menu, in its order, which is also that of the configuration file.
enum class MarqueImpression {
    Profil,
    Donnees,
    GraphiqueForces,
    GraphiqueMouvement,
    PointsForces,
    PointsMouvement,
    PointsRemarquables
};

inline constexpr std::size_t NombreMarques = 7;
using MarquesImpression = std::array<bool, NombreMarques>;

/// Prints the reports that are marked and that the present `TypeCame` has, in the order of the print run, and ends the
/// document. Nothing is printed when no mark is set.
/// @throws ErreurExecution input/output when the printer fails; overflow.
void ImprimeRapportsCames(Imprimante& imprimante, const MarquesImpression& marques);

/// Text numbers of the report titles.
enum TitreRapport {
    TitreDonnees = 384,
    TitreRemarquables = 216,
    TitreProfil = 292,
    TitreGraphiques = 134,
    TitrePointsMouvement = 466,
    TitrePointsForces = 465
};

void ImprimeDonneesAngulaire();
void ImprimeDonneesLineaire();
void ImprimeDonneesCylindrique();
void ImprimeDonneesOscillation();

void ImprimePointsRemarquables();

/// Both profiles and the pitch curve of a plane cam, at the largest round scale that fits the page; the last line
/// states the scale, in paper millimetres a millimetre of the cam.
void ImprimeProfilPlat();

/// The same of a cylindrical cam's developed surface, with cam angles, lengths of arc and heights along its edges.
void ImprimeProfilCylindre();

void ImprimeGraphiqueLineaire(); ///< radius, speed and acceleration of the roller centre
void ImprimeGraphiqueBras();     ///< angle, speed and acceleration of the arm
void ImprimeGraphiqueForces();   ///< roller force and cam torque

void ImprimePointsMouvement();
void ImprimePointsForces();

/// Column headings of the two tables, printed again after each page turn.
void EnTeteMouvement();
void EnTeteForces();
