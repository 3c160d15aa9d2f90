// The printed reports of the cam studies. Each reads the study record, prints on the printer of the present run and
// ends its own last page.
#pragma once

#include "core/TableTexte.h"
#include "data/Configuration.h"
#include "platform/Imprimante.h"
#include "reports/CadrePages.h"

#include <array>
#include <span>
#include <string>

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

using MarquesImpression = std::array<bool, NombreImpressions>;

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

/// What the reports print on during such a run.
/// @throws ErreurExecution incorrect call outside a run.
Tirage& TirageCames();
inline Imprimante& ImprimanteEnCours() {
    return TirageCames().Appareil();
}

/// Prints one line, and turns the page behind its last one.
inline void ImprimeLigneCames(const std::string& texte, bool gras = false) {
    TirageCames().Ligne(texte, gras);
}

/// A report title, and behind it the cam that the report is printed for where a study has several.
std::string TitreCame(int titre);

/// Begins a report that has pages of its own: its heading bears the name of the study.
void DebutPageCames(const std::string& titre);

/// Prints a whole report of lines under the name of the study.
void ImprimeRapportLignes(const std::string& titre, std::span<const LigneRapport> lignes);

void ImprimeDonneesAngulaire();
void ImprimeDonneesLineaire();
void ImprimeDonneesCylindrique();
void ImprimeDonneesOscillation();
void ImprimeDonneesConjuguees();

void ImprimePointsRemarquables();

/// Both profiles and the pitch curve of a plane cam, at the largest round scale that fits the page; the last line
/// states the scale, in paper millimetres a millimetre of the cam.
void ImprimeProfilPlat();

/// The same of a cylindrical cam's developed surface, with cam angles, lengths of arc and heights along its edges.
void ImprimeProfilCylindre();

/// The inner profiles and pitch curves of several cams on one shaft, drawn in the same way.
void ImprimeProfilConjugue();

void ImprimeGraphiqueLineaire(); ///< radius, speed and acceleration of the roller centre
void ImprimeGraphiqueBras();     ///< angle, speed and acceleration of the arm
void ImprimeGraphiqueForces();   ///< roller force and cam torque

void ImprimePointsMouvement();
void ImprimePointsForces();

/// What the tables of motion hold, a row for each of the points 0..`NombrePoints`.
TableTexte PointsMouvementAngulaire();
TableTexte PointsMouvementLineaire();
TableTexte PointsMouvementCylindrique();
TableTexte PointsMouvementOscillation();
/// Motion of the arm, then the distance of each cam's roller.
TableTexte PointsConjugues();
