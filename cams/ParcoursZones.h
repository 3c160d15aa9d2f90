// The walk over the zones that fills the point tables: the unit law of each zone laid over its stroke, from where the
// zone before ended, with the extreme values. What differs from one kind of cam to another is said by a description
// and by what is calculated at each point.
#pragma once

#include "cams/CompleteZones.h"
#include "cams/ResultatsFinis.h"
#include "core/Etude.h"
#include "laws/CalculLois.h"

#include <cmath>
#include <vector>

/// What a zone gives to each of its points.
struct Parcours {
    double course;  ///< signed travel, degrees or mm
    double radians; ///< that of an arm
    double vitesse; ///< travel / 1000 over the duration: of one in mm the mean speed, m/s
    double accel;   ///< that over the duration
    double depart;  ///< value at its start: the end of the zone before
    double T;       ///< duration, s
};

/// Where a point stands in the tables.
struct Lieu {
    long k;        ///< subscript, 0..`NombrePoints`
    double repere; ///< what an extreme value keeps of its place: the cam angle, or the subscript
};

/// Follows the largest magnitude, and the place at which it stands, as a whole number.
inline void SuitMaximum(double valeur, double repere, double& maximum, std::int16_t& repereMaximum) {
    if (std::abs(valeur) > maximum) {
        maximum = std::abs(valeur);
        repereMaximum = Entier16(repere);
    }
}

/// The unit law of each zone. One motion may drive several cams.
using LoisZones = std::vector<Tableau<PointLoi>>;

/// How a kind of cam walks its zones.
struct MarcheZones {
    double Zone::*valeurDepart;
    double Zone::*valeurFinale;
    bool loiDeFichier;   ///< the unit law stands already: none is evaluated
    bool coursesSuivies; ///< the stroke of a zone is taken from the end of the zone before, not from its own start
    bool reperesIndices; ///< the extreme values keep the subscript of their point, not its cam angle in whole degrees
    LoisZones* lois = nullptr; ///< unit laws of the zones, which the first walk fills and further walks are given
};

/// The unit law of a zone, from 1.
inline const Tableau<PointLoi>& UniteZone(const MarcheZones& marche, int z) {
    const auto rang = static_cast<std::size_t>(z);
    if (marche.lois != nullptr && rang <= marche.lois->size()) return (*marche.lois)[rang - 1];
    if (!marche.loiDeFichier) AppliqueLoi(static_cast<std::int16_t>(z));
    return marche.lois == nullptr ? etude.lois.LoiUnite : marche.lois->emplace_back(etude.lois.LoiUnite);
}

/// Clears the extreme values of the radius and their places, which every walk starts with.
inline void RemetExtremes() {
    etude.resultats.RayonMax = 0;
    etude.resultats.RayonMin = 1e18;
    etude.resultats.VitesseRayonMax = etude.resultats.AccelRayonMax = 0;
    etude.resultats.VitesseRayonMaxAngle = etude.resultats.AccelRayonMaxAngle = 0;
}

inline void SuitExtremes(const Point& p, double repere) {
    if (p.Rayon > etude.resultats.RayonMax) etude.resultats.RayonMax = p.Rayon;
    if (p.Rayon < etude.resultats.RayonMin) etude.resultats.RayonMin = p.Rayon;
    SuitMaximum(p.VitesseRayon, repere, etude.resultats.VitesseRayonMax, etude.resultats.VitesseRayonMaxAngle);
    SuitMaximum(p.AccelRayon, repere, etude.resultats.AccelRayonMax, etude.resultats.AccelRayonMaxAngle);
    if (p.VitesseGalet > etude.durables.VitesseGaletMax) etude.durables.VitesseGaletMax = p.VitesseGalet;
}

inline void CalculeVitesseGaletMoyenne() {
    double somme = 0;
    for (long k = 1; k <= etude.resultats.NombrePoints; ++k) somme += etude.resultats.Points[k].VitesseGalet;
    etude.resultats.VitesseGaletMoyenne = Int(Divise(somme, etude.resultats.NombrePoints));
}

/// Walks the zones and calculates each point.
/// @param calcule called with the place of the point, its row of the unit law and its zone; it sets radius, speed,
///        acceleration and roller speed of the point
/// @throws ErreurExecution division by zero for a zone without duration; a result that is no number; points that no
///         zone reaches.
template <class Calcule> void DerouleZones(const MarcheZones& marche, Calcule calcule) {
    RemetExtremes();
    std::int16_t decalage = 0;
    long atteint = 0;
    for (int z = 1; z <= etude.donnees.NombreZones; ++z) {
        const Tableau<PointLoi>& unite = UniteZone(marche, z);
        const Zone& zone = etude.donnees.Zones[z];
        if (z == 1) etude.donnees.Zones[0].*marche.valeurFinale = zone.*marche.valeurDepart;
        const double depart = etude.donnees.Zones[z - 1].*marche.valeurFinale;
        const double origine = marche.coursesSuivies ? depart : zone.*marche.valeurDepart;
        const double course = CourseSignee(origine, zone.*marche.valeurFinale);
        if (zone.Temps == 0.0) throw ErreurExecution(NumeroErreur::DivisionParZero);
        const double vitesse = (course / 1000.0) / zone.Temps;
        const Parcours parcours{course, course * Pi / 180.0, vitesse, vitesse / zone.Temps, depart, zone.Temps};
        // The last point of a zone is written again by the first of the next.
        for (long j = 0; static_cast<double>(j) <= zone.AngleCame; ++j) {
            const long k = decalage + j;
            Point& p = etude.resultats.Points[k];
            p.Angle = static_cast<double>(k) / etude.donnees.PointsParDegre;
            const Lieu lieu{k, marche.reperesIndices ? static_cast<double>(k) : p.Angle};
            calcule(lieu, unite[j], parcours);
            if (!std::isfinite(p.Rayon) || !std::isfinite(p.AccelRayon)) ExigePointFini(k);
            SuitExtremes(p, lieu.repere);
            atteint = k;
        }
        decalage = Entier16(decalage + zone.AngleCame);
    }
    // Rounding may have made room for a point that no zone reached.
    if (atteint != etude.resultats.NombrePoints) throw ErreurExecution(NumeroErreur::PointsIncomplets);
    CalculeVitesseGaletMoyenne();
}
