// The stages of the calculation, top to bottom. Lengths in inches, angles in radians where nothing else is said.
#include "globoidal/CapaciteOscillateur.h"

#include "globoidal/UnitesGlobiques.h"
#include "globoidal/ZonesOscillateur.h"

#include <algorithm>
#include <cmath>

namespace {

/// Room beyond the working flank before a roller counts as engaged, and past it before it counts as gone, radians.
constexpr double JeuEngagement = 0.01, JeuSortie = 0.005;
/// The working flank lies so many roller diameters beyond half the pitch.
constexpr double DebordFlanc = 0.75;

struct CalculOscillateur {
    const DonneesOscillateur& donnees;
    CameGlobique came;
    int galets = 0;
    double sortie = 0; ///< output angle
    AnglesFlancs flancs{};
    MouvementOscillateur mouvement{};
    ParcoursGalet parcours{};
    MinimaGlobiques minima{};
    ResultatGlobique resultat{};
    double anglePrecedent = 0; ///< cam angle of the last loaded position
};

/// The pitch radius: that of the roller's end, but for the first casing.
double RayonPrimitif(const DonneesOscillateur& donnees, const CameGlobique& came) {
    return CodeBoitier(donnees) == 0 ? came.R : came.R + came.H / 2.0;
}

/// The cam between its flanks, in mm.
void CalculeEnveloppe(CalculOscillateur& calcul) {
    const CameGlobique& came = calcul.came;
    const double fa = calcul.flancs.travail / RadDeg, cosFa = std::cos(fa), sinFa = std::sin(fa);
    const double rogne = came.H / 2.0 - ChanfreinOscillateur;
    ResultatGlobique& r = calcul.resultat;
    r.CameDiametre = 2.0 * came.C - (2.0 * came.Rp - came.H + ChanfreinOscillateur) * cosFa - came.D * sinFa;
    r.DiametreRogne = r.CameDiametre - rogne * cosFa;
    r.CameLargeur = (2.0 * came.Rp + came.H - ChanfreinOscillateur) * sinFa - came.D * cosFa;
    r.LargeurRognee = r.CameLargeur - rogne * sinFa;
    for (double* cote : {&r.CameDiametre, &r.DiametreRogne, &r.CameLargeur, &r.LargeurRognee}) *cote *= MmParPouce;
}

/// The torque on the scale of 100: the constant share turns with the direction of the motion.
double Couple(const ZoneOscillateur& zone, double accel, double inertie) {
    return inertie * accel / zone.Amax + (CoupleReference - inertie) * zone.sens;
}

/// Which flanks the cam offers to a roller: the outermost rollers have but one.
Flancs FlancsOfferts(const CalculOscillateur& calcul, const ContactGalet& contact, int galet) {
    const CameGlobique& came = calcul.came;
    Flancs flancs{galet != calcul.galets, galet != 1};
    if (contact.entre > -came.L + came.pas) flancs.superieur = false;
    if (contact.sort < came.L - came.pas) flancs.inferieur = false;
    return flancs;
}

/// The rib beside a roller, where there is one: the pressure angle counts there too.
void MesureNervureVoisine(CalculOscillateur& calcul, const PositionGalet& position, PointParcours& point) {
    if (position.phi + calcul.came.pas / 2.0 > calcul.came.L) return;
    const double alpha = MesureNervure(calcul.came, position, calcul.minima, &point.epaisseur);
    calcul.minima.alpha = std::max(calcul.minima.alpha, std::abs(alpha));
}

/// Loads a roller at one position of a zone. A position without contact leaves the previous cam angle as it is.
void ParcourtPosition(CalculOscillateur& calcul, const ZoneOscillateur& zone, int galet, double depart, std::size_t i) {
    const CameGlobique& came = calcul.came;
    const PointLoi& p = zone.points[i];
    const double angle = zone.angle / RadDeg;
    const double pas = static_cast<double>(i) / static_cast<double>(zone.points.size() - 1);
    const double angleCame = (zone.debut + zone.angle * pas) / RadDeg;
    const PositionGalet position{depart + p.Course * calcul.sortie, Divise(p.Vitesse * calcul.sortie, angle),
                                 Divise(p.Accel * calcul.sortie, angle * angle)};
    if (position.phi + came.pas / 2.0 < -came.L) return;
    PointParcours point{galet};
    const bool retour = &zone == &calcul.mouvement.retour;
    point.position = static_cast<int>(i + (retour ? calcul.mouvement.aller.points.size() : 0));
    MesureNervureVoisine(calcul, position, point);
    const ContactGalet contact = CalculeContact(came, position);
    if (calcul.galets != 2 && (contact.entre < -came.L || contact.sort > came.L + JeuSortie)) return;
    calcul.minima.alpha = std::max(calcul.minima.alpha, std::abs(contact.alpha));
    const Flancs flancs = FlancsOfferts(calcul, contact, galet);
    if (flancs.Aucun()) return;

    const double kappaRacine = CourbureRacine(came, position);
    const double tours = Divise(contact.B * (angleCame - calcul.anglePrecedent), came.D * Pi) / contact.cosAlpha;
    const RegleCourbure regle{false, flancs.Deux()};
    for (std::size_t k = 0; k < NombreParts; ++k) {
        const double couple = CoupleNet(Couple(zone, p.Accel, PartInertie(k)), came.precontrainte);
        point.force[k] = NewtonParLivre * ChargeContact(came, contact, kappaRacine,
                                                        PartageCharge(couple, came.precontrainte, flancs), tours, regle,
                                                        calcul.parcours[k], calcul.minima);
    }
    calcul.anglePrecedent = angleCame;
    point.angleCame = angleCame * RadDeg;
    point.angleGalet = position.phi * RadDeg;
    point.anglePression = contact.alpha * RadDeg;
    point.epaisseur *= MmParPouce;
    NoteParcours(point, calcul.resultat);
}

/// Every roller, forward and back.
void ParcourtGalets(CalculOscillateur& calcul) {
    const ReglesDuree regles{1, 1, 1, false};
    for (int galet = 1; galet <= calcul.galets; ++galet) {
        calcul.parcours = {};
        calcul.anglePrecedent = 0;
        const double depart = -calcul.came.pas * (calcul.galets / 2.0 + 0.5 - galet) - calcul.sortie / 2.0;
        for (const ZoneOscillateur* zone : {&calcul.mouvement.aller, &calcul.mouvement.retour})
            for (std::size_t i = 0; i < zone->points.size(); ++i) ParcourtPosition(calcul, *zone, galet, depart, i);
        AjouteParcours(calcul.came, calcul.parcours, regles, calcul.resultat.Resultats);
    }
    RangeMinima(calcul.came, calcul.minima, calcul.resultat);
}

/// The torque that the input shaft lets through, of the zone that loads it more; a zone that does not load it at all
/// is left out.
void LimiteParArbre(CalculOscillateur& calcul) {
    const double arbre = calcul.donnees.CapaciteArbreEntree / NmParLivrePouce;
    for (std::size_t k = 0; k < NombreParts; ++k) {
        double part = GrandNombre;
        for (const ZoneOscillateur* zone : {&calcul.mouvement.aller, &calcul.mouvement.retour})
            if (zone->facteurs[k] != 0.0)
                part = std::min(part, 0.9 * zone->angle / (calcul.sortie * RadDeg) / zone->facteurs[k]);
        calcul.resultat.Resultats[LimiteArbre][k] = arbre * part;
    }
}

} // namespace

AnglesFlancs CalculeAnglesFlancs(const DonneesOscillateur& donnees) {
    const CameGlobique came = LitCame(donnees);
    const double delta = Arrondi(donnees.AngleEntreGalets), sortie = Arrondi(donnees.AngleSortie);
    AnglesFlancs angles;
    angles.flanc1 = delta * (3.0 - donnees.NombreGalets) / 2.0 + sortie / 2.0;
    angles.flanc2 = delta - angles.flanc1;
    if (donnees.NombreGalets > 2.0)
        angles.travail = delta / 2.0 + Divise(DebordFlanc * came.D, RayonPrimitif(donnees, came)) * RadDeg;
    // On the half degree above.
    angles.travail = std::max({Int(2.0 * angles.travail + 1.0) / 2.0, angles.flanc2, angles.flanc1});
    return angles;
}

ResultatGlobique CalculeCapaciteOscillateur(const DonneesOscillateur& donnees, const Tableau<Loi>& catalogue) {
    const double sortie = Arrondi(donnees.AngleSortie); // whole degrees
    CalculOscillateur calcul{donnees, LitCame(donnees), Entier16(donnees.NombreGalets), sortie / RadDeg};
    CameGlobique& came = calcul.came;
    came.Rp = RayonPrimitif(donnees, came);
    came.pas = Arrondi(donnees.AngleEntreGalets) / RadDeg;
    calcul.flancs = CalculeAnglesFlancs(donnees);
    came.L = calcul.flancs.travail / RadDeg - Divise(came.D, came.Rp) / 2.0 + JeuEngagement;
    CalculeEnveloppe(calcul);
    calcul.mouvement = PrepareMouvement(donnees, sortie, catalogue);
    ParcourtGalets(calcul);
    LimiteParArbre(calcul);
    ResultatGlobique& resultat = calcul.resultat;
    CompleteTable(resultat.Resultats, false);
    resultat.AngleFlanc1 = calcul.flancs.flanc1;
    resultat.AngleFlanc2 = calcul.flancs.flanc2;
    resultat.AngleFlancTravail = calcul.flancs.travail;
    resultat.Zones = calcul.mouvement.zones;
    // The signs of a law file are lost, and with them what its joints are like.
    if (!LoiParFichier(donnees)) resultat.Sauts = RaccordsRompus(calcul.mouvement);
    resultat.RayonPrimitif = came.Rp * MmParPouce;
    resultat.InertieTotale = InertieAvecGalets(came, donnees.NombreGalets, donnees.InertieTourelle);
    return std::move(resultat);
}
