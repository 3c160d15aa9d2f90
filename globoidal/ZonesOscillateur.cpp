#include "globoidal/ZonesOscillateur.h"

#include "globoidal/CapaciteOscillateur.h"
#include "globoidal/LoisGlobiques.h"
#include "globoidal/UnitesGlobiques.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

/// Codes of laws: up to 8 the first family, above it the second.
enum CodeLoi { CodeSpe = 0, CodeNomme = 1, CodeFamille1Max = 8, CodePremierMsh = 9, CodeMax = 12 };
constexpr const char* loisMsh[] = {"MSH", "MSHC20", "MSHC33", "MSHC50"};

int TrouveCode(const std::string& nomLoi, double code) {
    if (nomLoi == NomLoiSpe) return CodeSpe;
    if (code >= 0.0) {
        const int entier = Entier16(code);
        if (entier > CodeMax) throw ErreurExecution(NumeroErreur::IndiceHorsLimites, nomLoi);
        return entier;
    }
    const auto* msh = std::find(std::begin(loisMsh), std::end(loisMsh), nomLoi);
    if (msh == std::end(loisMsh)) return CodeNomme;
    return CodePremierMsh + static_cast<int>(msh - std::begin(loisMsh));
}

struct LoiZone {
    std::string nom;
    PartsLoi parts;
    double symetrie = 0.5;
    double code = 0;
};

/// The unit law of a zone at its 61 positions. @param miroir a law of the second family that ends where no dwell
/// follows is run backwards
void EvalueZone(const LoiZone& loi, bool miroir, ZoneOscillateur& zone) {
    const auto remplit = [&](auto evalue) {
        for (int i = 0; i <= PasLoiNommee; ++i) zone.points.push_back(evalue(static_cast<double>(i) / PasLoiNommee));
    };
    if (TrouveCode(loi.nom, loi.code) <= CodeFamille1Max) {
        const LoiCinqSegments segments = PrepareCinqSegments(loi.parts);
        zone.Amax = segments.Amax;
        zone.Vmax = segments.Vmax;
        const double S = loi.symetrie > 0.0 ? loi.symetrie : 0.5;
        remplit([&](double u) { return Evalue(segments, u, S, JointsOscillateur); });
    } else {
        const LoiDissymetrique dissymetrique = PrepareDissymetrique(loi.parts);
        zone.Amax = dissymetrique.Ap;
        zone.Vmax = dissymetrique.Vmax;
        remplit([&](double u) { return miroir ? Retourne(Evalue(dissymetrique, 1.0 - u)) : Evalue(dissymetrique, u); });
    }
}

/// The largest cam torque of each share of inertia, per unit of output torque. On the way back speed and acceleration
/// are negative and the constant share is not: kept on purpose.
void CalculeFacteurs(ZoneOscillateur& zone) {
    zone.facteurs[0] = zone.Vmax;
    for (const PointLoi& p : zone.points)
        for (std::size_t j = 1; j < NombreParts; ++j) {
            const double part = static_cast<double>(j) / 4.0;
            zone.facteurs[j] = std::max(zone.facteurs[j], p.Vitesse * (Divise(part * p.Accel, zone.Amax) + 1.0 - part));
        }
}

LoiZone LoiDeZone(const std::string& nom, double symetrie, double code, const PartsLoi& tapees,
                  const Tableau<Loi>& catalogue) {
    return {nom, nom == NomLoiSpe ? tapees : PartsLoiNommee(nom, catalogue), symetrie, code};
}

void PrepareLoisNommees(const DonneesOscillateur& d, const Tableau<Loi>& catalogue, MouvementOscillateur& mouvement) {
    mouvement.zones = {d.AngleZoneA, d.AngleZoneB, d.AngleZoneC, d.AngleZoneD};
    EvalueZone(LoiDeZone(d.LoiZoneA, d.SymetrieA, d.CodeLoiA, CompleteParts(d.CoefA1, d.CoefB1, d.CoefC1), catalogue),
               d.AngleZoneD == 0.0, mouvement.aller);
    EvalueZone(LoiDeZone(d.LoiZoneC, d.SymetrieC, d.CodeLoiC, CompleteParts(d.CoefA2, d.CoefB2, d.CoefC2), catalogue),
               d.AngleZoneB == 0.0, mouvement.retour);
    // Back from the end of the stroke.
    for (PointLoi& p : mouvement.retour.points) p = {1.0 - p.Course, -p.Vitesse, -p.Accel};
}

/// Rows of a law file as the zones are sought in: half degrees from row 1, row 721 at rest.
constexpr long RangeesFichier = 721, LignesFichier = 720;

Tableau<PointLoi> LitRangees(const std::string& chemin, double sortie) {
    const FichierDeLoi fichier(chemin);
    Tableau<PointLoi> rangees;
    rangees.Redimensionne(RangeesFichier);
    for (long i = 1; i <= LignesFichier; ++i) {
        rangees[i] = fichier.Ligne(static_cast<std::size_t>(i));
        rangees[i].Course *= sortie;
    }
    return rangees;
}

/// Where the motions of a law file lie: cam angles of the four zones, whole degrees.
std::array<double, 4> CherchePlages(const Tableau<PointLoi>& rangees) {
    long i = RangeesFichier;
    while (rangees[i].Course == 0.0 && rangees[i].Accel == 0.0) i -= 2;
    const double fin = Int(static_cast<double>(i) / 2.0 + 0.8);
    const long derniere = std::min(RangeesFichier, 2 * static_cast<long>(fin) + 1);

    long sommet = 1;
    for (long j = 2; j <= derniere; ++j)
        if (rangees[j].Course > rangees[sommet].Course) sommet = j;
    const double aller = Int(static_cast<double>(sommet) / 2.0 + 0.3);

    long depart = sommet;
    while (rangees[depart].Course >= rangees[sommet].Course && rangees[depart].Vitesse == 0.0 &&
           rangees[depart].Accel == 0.0)
        ++depart;
    // One less than the end of the way forward says that there is no dwell.
    const double arret = std::max(0.0, Int(static_cast<double>(depart) / 2.0 - 0.8) - aller);
    return {aller, arret, fin - aller - arret, 360.0 - fin};
}

/// The whole degrees of a zone. @param r share of the motion that the zone takes: the file's derivatives are by the
/// whole
void RemplitDepuisFichier(const Tableau<PointLoi>& rangees, double sortie, double r, ZoneOscillateur& zone) {
    const long premiere = static_cast<long>(zone.debut), derniere = premiere + static_cast<long>(zone.angle);
    for (long degre = premiere; degre <= derniere; ++degre) {
        const PointLoi& p = rangees[2 * degre + 1];
        zone.points.push_back({p.Course / sortie, zone.sens * p.Vitesse * r, zone.sens * p.Accel * r * r});
        zone.Vmax = std::max(zone.Vmax, p.Vitesse * r);
        zone.Amax = std::max(zone.Amax, p.Accel * r * r);
    }
}

void PrepareFichier(const DonneesOscillateur& d, double sortie, MouvementOscillateur& mouvement) {
    const Tableau<PointLoi> rangees = LitRangees(d.FichierLoi, sortie);
    mouvement.zones = CherchePlages(rangees);
    const auto& [a, b, c, repos] = mouvement.zones;
    mouvement.aller.angle = a;
    mouvement.retour.debut = a + b;
    mouvement.retour.angle = c;
    for (ZoneOscillateur* zone : {&mouvement.aller, &mouvement.retour})
        RemplitDepuisFichier(rangees, sortie, Divise(zone->angle, a + b + c), *zone);
}

} // namespace

bool LoiParFichier(const DonneesOscillateur& donnees) {
    return donnees.LoiZoneA == NomLoiFichier || donnees.LoiZoneC == NomLoiFichier;
}

std::array<double, 4> ZonesDuFichier(const std::string& chemin) {
    return CherchePlages(LitRangees(chemin, 1));
}

MouvementOscillateur PrepareMouvement(const DonneesOscillateur& donnees, double sortie, const Tableau<Loi>& catalogue) {
    MouvementOscillateur mouvement;
    mouvement.retour.sens = -1;
    if (LoiParFichier(donnees))
        PrepareFichier(donnees, sortie, mouvement);
    else
        PrepareLoisNommees(donnees, catalogue, mouvement);
    mouvement.aller.angle = mouvement.zones[0];
    mouvement.retour.angle = mouvement.zones[2];
    mouvement.retour.debut = mouvement.zones[0] + mouvement.zones[1];
    CalculeFacteurs(mouvement.aller);
    CalculeFacteurs(mouvement.retour);
    return mouvement;
}

std::vector<std::string> RaccordsRompus(const MouvementOscillateur& mouvement) {
    // A rounding at the end of a law is no jump.
    constexpr double arrondi = 1e-6;
    struct Bouts {
        char nom;
        double debut = 0, fin = 0; ///< accelerations per unit of cam angle
    };
    std::vector<Bouts> suite;
    double sommet = 0;
    const auto ajoute = [&](char nom, const ZoneOscillateur& zone) {
        const double parAngle = 1.0 / (zone.angle * zone.angle);
        suite.push_back({nom, zone.points.front().Accel * parAngle, zone.points.back().Accel * parAngle});
        for (const PointLoi& p : zone.points) sommet = std::max(sommet, std::abs(p.Accel) * parAngle);
    };
    ajoute('A', mouvement.aller);
    if (mouvement.zones[1] != 0.0) suite.push_back({'B'});
    ajoute('C', mouvement.retour);
    if (mouvement.zones[3] != 0.0) suite.push_back({'D'});
    std::vector<std::string> rompus;
    for (std::size_t i = 0; i < suite.size(); ++i) {
        const Bouts &avant = suite[i], &apres = suite[(i + 1) % suite.size()];
        if (std::abs(avant.fin - apres.debut) > arrondi * sommet)
            rompus.push_back(std::string{avant.nom, '-', apres.nom});
    }
    return rompus;
}
