// What a designer looks at: the section of the cam with its turret, what happens to each roller over the cam angle, and
// the capacities as bars with the part that limits them.
#pragma once

#include "globoidal/ResultatGlobique.h"
#include "platform/Dessin.h"

/// The cam in the plane of the turret, its rollers as they stand in the dwell, and the room in the casing: true
/// proportions, mm.
void DessineSectionIndexeur(Dessin& dessin, const DonneesIndexeur& donnees, const ResultatGlobique& resultat);
/// At one end of the stroke, the other end dashed.
void DessineSectionOscillateur(Dessin& dessin, const DonneesOscillateur& donnees, const ResultatGlobique& resultat);

/// Pressure angle, rib thickness and roller load over the cam angle, a curve for each run of a roller.
/// @param part which share of inertia the load is shown for, 0..4
void DessineParcours(Dessin& dessin, const MecanismeGlobique& donnees, const ResultatGlobique& resultat,
                     std::size_t part);

/// Limit torques and life ratings of the five shares of inertia, hardened and nitrided.
void DessineCapacites(Dessin& dessin, const ResultatGlobique& resultat);
