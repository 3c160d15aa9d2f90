// The two motions of a globoidal oscillator: forward in zone A, back in zone C, by laws of the catalogue or by a law
// file in which the zones are found.
#pragma once

#include "core/Etude.h"
#include "globoidal/CapacitesGlobiques.h"

#include <string>
#include <vector>

/// Forward or back, as the walk needs it. `course` is the output's lift from where the motion of zone A begins, in
/// shares of the output angle; speed and acceleration are those of the unit law, signed by the direction.
struct ZoneOscillateur {
    double debut = 0, angle = 0; ///< cam angle where it begins, and how much it takes, degrees
    double sens = 1;             ///< of the constant share of the load: 1 forward, -1 back
    double Amax = 0, Vmax = 0;
    std::vector<PointLoi> points; ///< first position to last, evenly spaced
    FacteursCouple facteurs{};
};

struct MouvementOscillateur {
    std::array<double, 4> zones{}; ///< cam angles of zones A to D in use, degrees
    ZoneOscillateur aller, retour;
};

/// The zones of a law file: cam angles of A to D, whole degrees.
/// @throws ErreurExecution as `CalculeCapaciteOscillateur`
std::array<double, 4> ZonesDuFichier(const std::string& chemin);

/// @param sortie output angle, degrees
/// @throws ErreurExecution as `CalculeCapaciteOscillateur`
MouvementOscillateur PrepareMouvement(const DonneesOscillateur& donnees, double sortie, const Tableau<Loi>& catalogue);

/// The joints of zones at which the acceleration of the output jumps, as "A-B": what a law ends with is not what the
/// dwell or the motion behind it begins with. A zone of no angle is left out.
std::vector<std::string> RaccordsRompus(const MouvementOscillateur& mouvement);
