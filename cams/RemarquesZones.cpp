#include "cams/RemarquesZones.h"

#include "cams/CompleteZones.h"
#include "data/Textes.h"
#include "data/TextesSaisie.h"
#include "laws/FichierLoi.h"

#include <algorithm>
#include <cmath>

namespace {

/// Values closer than this are the same: what is typed has a few decimals, a sum of it has rounding behind them.
constexpr double Tolerance = 1e-9;

bool Differe(double a, double b) {
    return std::abs(a - b) > Tolerance;
}

/// The value that a zone really ends with: a law out of a file may come back, or stop on its way.
double Arrivee(const DescriptionZones& zones, std::int16_t z) {
    const Zone& zone = etude.donnees.Zones[z];
    const double depart = zones.Depart(z), finale = zone.*zones.valeurFinale;
    const Tableau<PointLoi>& loi = etude.lois.LoiUnite;
    if (zone.NomLoi != NomLoiFichier || !etude.lois.DeFichier || loi.Vide()) return finale;
    const double points = Arrondi(zone.AngleCame * etude.donnees.PointsParDegre);
    const auto dernier = static_cast<long>(std::clamp(points, 0.0, static_cast<double>(loi.BorneHaute())));
    const double course = CourseSignee(depart, finale), atteinte = depart + course * loi[dernier].Course;
    // The last line of a file is not read: the motion stops one step of the law before its end.
    constexpr double pas = 1e-4;
    for (const double bout : {depart, finale})
        if (std::abs(atteinte - bout) <= pas * std::abs(course)) return bout;
    return atteinte;
}

std::string Valeur(double valeur, int unite) {
    return " " + StrTrim(valeur) + " " + Texte(unite);
}

/// A developed track runs round as often as it likes, any other cam once.
bool ToursEntiers(const DescriptionZones& zones, double somme) {
    const double tours = zones.plusieursTours ? std::max(1.0, std::round(somme / 360.0)) : 1.0;
    return !Differe(somme, 360.0 * tours);
}

} // namespace

double SommeAngles(std::int16_t entrees) {
    double somme = 0;
    for (std::int16_t z = 1; z <= entrees; ++z) somme += etude.donnees.Zones[z].AngleCame;
    return somme;
}

std::vector<std::string> RemarquesZones(const DescriptionZones& zones, std::int16_t entrees) {
    std::vector<std::string> remarques;
    const auto fin = [&](long z) { return etude.donnees.Zones[z].*zones.valeurFinale; };
    for (std::int16_t z = 2; z <= entrees; ++z)
        if (Differe(zones.Depart(z), fin(z - 1)))
            remarques.push_back(Texte(187) + std::to_string(z) + " " + Texte(TexteZoneCommence) +
                                Valeur(zones.Depart(z), zones.unite) + " " + Texte(TexteZonePrecedenteFinit) +
                                Valeur(fin(z - 1), zones.unite) + ".");
    if (entrees == 0 || entrees < etude.donnees.NombreZones) return remarques;
    const double somme = SommeAngles(entrees);
    if (!ToursEntiers(zones, somme)) remarques.push_back(Texte(TextePasUnTour) + Valeur(somme, UniteDegres) + ".");
    const double arrivee = Arrivee(zones, entrees);
    if (Differe(zones.Depart(1), arrivee))
        remarques.push_back(Texte(TexteCameOuverte) + Valeur(zones.Depart(1), zones.unite) + " " +
                            Texte(TexteMouvementFinit) + Valeur(arrivee, zones.unite) + ".");
    return remarques;
}
