// The drum cam of an indexer: a cylinder with a ribbed track drives a turret of rollers on a circle, and each cam turn
// advances the turret by one stop. From the mechanism, the roller and the law: the size of the cam, where each roller
// centre stands on the developed cam at every degree of cam angle, and how thick the rib is there.
//
// Symbols: R turret radius, h half the pitch of the rollers, alpha angle of a roller on the turret, X along the
// circumference, Y along the axis of the developed cam. Lengths mm, angles degrees unless a comment says radians.
#pragma once

#include "core/Champ.h"
#include "core/Tableau.h"
#include "indexers/Catalogue.h"
#include "indexers/FauteSaisie.h"
#include "indexers/LigneResultat.h"
#include "indexers/SourceLoi.h"
#include "platform/Dessin.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

struct IndexeurCylindrique : SourceLoi {
    std::string Modele; ///< of the casing
    double Entraxe = 0, RayonTourelle = 0;
    double InertieTourelle = 0; ///< kgm²
    double CapaciteArbre = 0;   ///< of the input shaft, Nm
    double CameDiam = 0;
    double CameMaxLarg = 0;   ///< widest cam that the casing takes
    double NombreStops = 0;   ///< of the turret in one turn
    double NombreGalets = 0;  ///< on the turret; a 16-bit integer, rounded halves to even
    double AngleIndexage = 0; ///< of the cam; a law file brings its own
    double Sens = 1;          ///< cam to the right, below 0 to the left
    std::string ReferenceGalet;
    double DiametreGalet = 0, HauteurGalet = 0;
    double CapaciteB10 = 0, CapaciteLimite = 0; ///< of the roller, N
    double Boitier = 0, codemi = 0;             ///< codes of casing and roller in their catalogues
};

/// The inputs, in the order in which they are checked: casing, sizes of the motion, law, roller.
std::span<const Champ<IndexeurCylindrique>> ChampsIndexeurCylindrique();

/// The table of a result as it is shown: rows from 0, the heading, and cells of text.
using GrilleTextes = Tableau<std::vector<std::string>>;

struct ResultatIndexeurCylindrique {
    double PasGalets = 0; ///< pitch of the rollers on the turret
    double AngleStop = 0; ///< turn of the turret by one index
    double AngleIndexage = 0;
    double NombreEntrees = 0;         ///< starts of the track; whole
    std::int16_t GaletsUtilises = 0;  ///< rollers in engagement
    double LargeurCameAffichee = 0;   ///< width by the pitch of the rollers, to 3 decimals
    double LargeurCame = 0;           ///< width that the roller centres use: twice `MaxY`
    double EpaisseurStationnaire = 0; ///< of the rib in the dwell
    double MaxX = 0, MaxY = 0;        ///< largest magnitudes of the roller centres during the motion
    Tableau<double> LoiUnitaire;      ///< lift 0 to 1 at every cam degree of the motion; row 0 is 0
    /// Rows 1..361 are the cam degrees 0..360; column 0 the degree, 1..`GaletsUtilises` the roller centres "X , Y", the
    /// last one the thickness of the rib. A roller out of engagement has no text.
    GrilleTextes Grille;
    std::vector<std::string> notes; ///< what the figures do not say
};

/// Rows of the table of positions below its heading.
inline constexpr long DegresGrille = 361;

/// The catalogues of its casings and of its rollers.
const Catalogue& CatalogueMecanismesCylindriques();
const Catalogue& CatalogueGalets();

/// The first fault of the entries; none when all will do. A law file without a path has no text of its own.
/// @throws ErreurExecution overflow for a number of rollers or of starts beyond 16 bits.
std::optional<FauteSaisie> ChercheFauteIndexeurCylindrique(const IndexeurCylindrique& donnees);

/// Calculates what `ChercheFauteIndexeurCylindrique` lets through.
/// @param lois rows 1.. of the catalogue
/// @throws ErreurExecution an unknown law; a share c of 0; a law file that is too long or cannot be read.
ResultatIndexeurCylindrique CalculeIndexeurCylindrique(const IndexeurCylindrique& donnees, const Tableau<Loi>& lois);

/// The sizes of the cam, in the order of its screen. A width that the casing does not take and a rib that is none are
/// beyond their limit.
GroupeResultats DimensionsIndexeurCylindrique(const IndexeurCylindrique& donnees,
                                              const ResultatIndexeurCylindrique& resultat);

/// The roller centre that a cell of the table tells; none for an empty cell and for a thickness.
std::optional<PointDessin> LitPosition(const std::string& cellule);
