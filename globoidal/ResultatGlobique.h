// What a globoidal calculation gives, in the units of the screens, but for the table of capacities. Nothing is rounded.
#pragma once

#include "globoidal/CapacitesGlobiques.h"

#include <optional>
#include <string>
#include <vector>

/// Along the height of the roller: at the tip of the rib, halfway, at its root.
struct EpaisseursNervure {
    double Tete = 0, Centre = 0, Racine = 0;
};

/// One position of an engaged roller, for the drawings.
struct PointParcours {
    int galet = 0;                           ///< which run: pass of an indexer, roller of an oscillator, from 1
    int position = 0;                        ///< in that run; a gap says that the roller was not in contact
    double angleCame = 0;                    ///< degrees
    double angleGalet = 0;                   ///< of the roller from the line of centres, degrees
    double anglePression = 0;                ///< degrees
    double epaisseur = 0;                    ///< of the rib at the pitch radius, mm
    std::array<double, NombreParts> force{}; ///< under the reference torque, N
};

struct ResultatGlobique {
    // Of an indexer.
    double Type = 0, Passages = 0;
    int Genre = 0;
    double AngleReel = 0;                            ///< degrees
    std::optional<EpaisseursNervure> EpaisseurRepos; ///< in the dwell, mm
    // Of an oscillator.
    double DiametreRogne = 0, LargeurRognee = 0;                    ///< of the cam with its edges trimmed, mm
    double AngleFlanc1 = 0, AngleFlanc2 = 0, AngleFlancTravail = 0; ///< degrees
    std::array<double, 4> Zones{};                                  ///< cam angles in use, degrees
    std::vector<std::string> Sauts; ///< joints of zones at which the acceleration jumps ("A-B")

    double RayonPrimitif = 0;                      ///< in use, mm
    double CameDiametre = 0, CameLargeur = 0;      ///< mm
    EpaisseursNervure EpaisseurMin;                ///< mm
    double AnglePressionMaxi = 0;                  ///< degrees
    double CourbureCentre = 0, CourbureRacine = 0; ///< smallest radius of curvature less that of the roller, mm
    double InertieTotale = 0;                      ///< kgm²
    TableCapacites Resultats = TableVide();
    std::vector<PointParcours> Parcours;
};

/// Takes the figures of the walk into the result.
void RangeMinima(const CameGlobique& came, const MinimaGlobiques& minima, ResultatGlobique& resultat);

/// Keeps a position for the drawings. A walk of extreme length is kept in part.
void NoteParcours(const PointParcours& point, ResultatGlobique& resultat);
