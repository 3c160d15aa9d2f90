// The stages of the calculation, top to bottom. Angles of cam and turret are in radians, the indexing angle beta in
// degrees, lengths in inches.
#include "globoidal/CapaciteIndexeur.h"

#include "data/Textes.h"
#include "globoidal/LoisGlobiques.h"
#include "globoidal/TextesGlobiques.h"
#include "globoidal/UnitesGlobiques.h"

#include <algorithm>
#include <cmath>

namespace {

/// Passes and turns of a walk are counted in 16 bits.
constexpr int CompteMax = 32767;
/// A law file is searched for its end line so far, and its maxima are taken over a quarter of a turn more than half.
constexpr std::size_t LignesCherchees = 721, LignesMaxima = 361;

struct LoiIndexeur {
    int pas = PasLoiNommee;
    double S = 0.5;
    double Amax = 0, Vmax = 0;
    std::vector<PointLoi> points;        ///< of steps 1..`pas`
    std::optional<FichierDeLoi> fichier; ///< read on through the whole walk
};

struct CalculIndexeur {
    const DonneesIndexeur& donnees;
    CameGlobique came;
    double beta = 0; ///< indexing angle in use, degrees
    double stops = 0, galets = 0;
    double type = 1, passages = 1;
    int genre = 1;
    LoiIndexeur loi{};
    FacteursCouple facteurs{};
    ParcoursGalet parcours{};
    MinimaGlobiques minima{};
    ResultatGlobique resultat{};

    int tour = 0;               ///< turns of the cam in this pass
    double anglePrecedent = 0;  ///< cam angle of the last loaded position
    std::size_t lignesLues = 0; ///< of the law file in the walk
};

/// Cam and rib in the dwell, in mm.
void CalculeEnveloppe(CalculIndexeur& calcul) {
    const DonneesIndexeur& d = calcul.donnees;
    const double demiGalet = d.DiametreGalet / 2.0, demiHauteur = d.HauteurGalet / 2.0;
    const double pas = 2.0 * Pi / calcul.galets;
    const auto coin = [&](double r, double& rho) {
        rho = std::sqrt(demiGalet * demiGalet + r * r);
        return std::atan(Divise(demiGalet, r));
    };
    double rho = 0;
    double phi = coin(d.RayonTourelle - demiHauteur, rho);
    calcul.resultat.CameDiametre = 2.0 * (d.Entraxe - rho * std::cos(pas - phi));
    phi = coin(d.RayonTourelle + demiHauteur, rho);
    calcul.resultat.CameLargeur = 2.0 * rho * std::sin(pas - phi);
    const auto nervure = [&](double r) { return 2.0 * (std::sin(pas / 2.0) * r - std::cos(pas / 2.0) * demiGalet); };
    calcul.resultat.EpaisseurRepos = {nervure(d.RayonTourelle - demiHauteur), nervure(d.RayonTourelle),
                                      nervure(d.RayonTourelle + demiHauteur)};
}

/// Kind of cam, turns for a pitch, passes; the indexing angle of a cam of the second kind is that of one turn.
void DisposeTourelle(CalculIndexeur& calcul) {
    if (calcul.stops > calcul.galets) {
        calcul.genre = 2;
        calcul.beta = calcul.beta * calcul.galets / calcul.stops;
        calcul.type = calcul.stops / calcul.galets;
    } else {
        calcul.passages = Divise(calcul.galets, calcul.stops);
    }
}

/// Casings whose pitch radius is not that of the roller's end: fixed pairs of casing and roller, and a window of the
/// indexing angle for some numbers of stops and rollers.
double RayonPrimitif(const CalculIndexeur& calcul) {
    const int boitier = CodeBoitier(calcul.donnees);
    const double H = calcul.came.H, beta = calcul.beta;
    const auto montage = [&](double stops, double galets) { return calcul.stops == stops && calcul.galets == galets; };
    if (boitier == 0 || boitier == 7 || boitier == 8) return calcul.came.R;
    if (boitier == BoitierParGalet && Entier16(calcul.donnees.codemi) == 13) return 4.055;
    const bool fenetre = (montage(8, 8) && beta > 120 && beta < 210) || (montage(10, 10) && beta > 120 && beta < 240) ||
                         (montage(12, 12) && beta > 90) || (montage(16, 8) && (beta < 150 || beta > 210)) ||
                         (montage(20, 10) && beta > 150);
    if (boitier == 13 && fenetre) return 7.5 + H / 2.0;
    return calcul.came.R + H / 2.0;
}

/// A law file: its end line gives the indexing angle in use.
void PrepareFichier(CalculIndexeur& calcul) {
    LoiIndexeur& loi = calcul.loi;
    loi.fichier.emplace(calcul.donnees.FichierLoi);
    const auto estFin = [&](std::size_t ligne) {
        const PointLoi& p = loi.fichier->Ligne(ligne);
        return p.Course == 1.0 && p.Vitesse == 0.0 && p.Accel == 0.0;
    };
    std::size_t fin = 1;
    while (fin <= LignesCherchees && !estFin(fin)) ++fin;
    if (fin > LignesCherchees)
        throw ErreurExecution(NumeroErreur::ContenuInvalide, loi.fichier->Chemin() + " : " + Texte(TexteSansLigneFin));
    calcul.beta = static_cast<double>(fin - 1) / 2.0;
    loi.pas = PasLoiFichier;
    for (std::size_t ligne = 1; ligne <= LignesMaxima; ++ligne) {
        loi.Vmax = std::max(loi.Vmax, loi.fichier->Ligne(ligne).Vitesse);
        loi.Amax = std::max(loi.Amax, loi.fichier->Ligne(ligne).Accel);
    }
    for (std::size_t ligne = 1; ligne <= PasLoiFichier; ++ligne) loi.points.push_back(loi.fichier->Ligne(ligne));
}

void PrepareLoiIndexeur(CalculIndexeur& calcul, const Tableau<Loi>& catalogue) {
    const DonneesIndexeur& d = calcul.donnees;
    if (d.NomLoi == NomLoiFichier) {
        PrepareFichier(calcul);
        return;
    }
    LoiIndexeur& loi = calcul.loi;
    const LoiCinqSegments segments = PrepareCinqSegments(
        d.NomLoi == NomLoiSpe ? CompleteParts(d.CoefA, d.CoefB, d.CoefC) : PartsLoiNommee(d.NomLoi, catalogue));
    if (d.CoefSymetrie > 0.0) loi.S = d.CoefSymetrie;
    loi.Amax = segments.Amax;
    loi.Vmax = segments.Vmax;
    for (int i = 1; i <= loi.pas; ++i)
        loi.points.push_back(Evalue(segments, static_cast<double>(i) / loi.pas, loi.S, JointsIndexeur));
}

/// The largest cam torque of each share of inertia, per unit of output torque. The symmetry goes by the position here.
void CalculeFacteurs(CalculIndexeur& calcul) {
    const LoiIndexeur& loi = calcul.loi;
    calcul.facteurs[0] = loi.Vmax;
    for (int i = 1; i <= loi.pas; ++i) {
        const PointLoi& p = loi.points[static_cast<std::size_t>(i - 1)];
        const double cote = i < loi.S * loi.pas ? loi.S : 1.0 - loi.S;
        const double inertie = Divise(p.Accel * cote, loi.Amax) * 2.0;
        for (std::size_t j = 1; j < NombreParts; ++j) {
            const double part = static_cast<double>(j) / 4.0;
            calcul.facteurs[j] = std::max(calcul.facteurs[j], p.Vitesse * (part * inertie + 1.0 - part));
        }
    }
}

void PrepareParcours(CalculIndexeur& calcul) {
    CameGlobique& came = calcul.came;
    const double galet = Divise(came.D, came.Rp);
    came.L = calcul.genre == 1 ? came.pas / 2.0 + 0.25 * galet : 1.001 * came.pas - 0.5 * galet;
    if (calcul.genre == 2) {
        calcul.tour = 1;
        calcul.anglePrecedent = calcul.beta / RadDeg;
    }
}

/// The law at a step; a file is read on from turn to turn and from pass to pass.
PointLoi LoiAuPas(CalculIndexeur& calcul, int i) {
    if (i == 0) return {};
    if (calcul.loi.fichier) return calcul.loi.fichier->Ligne(++calcul.lignesLues);
    return calcul.loi.points[static_cast<std::size_t>(i - 1)];
}

double AngleCame(const CalculIndexeur& calcul, int i) {
    double angle = 2.0 * Pi * calcul.tour + calcul.beta / RadDeg * i / calcul.loi.pas;
    if (calcul.type > 1.0) angle += 2.0 * Pi * calcul.tour * (1.0 / calcul.type - 1.0);
    return angle;
}

/// The torque on the scale of 100. The symmetry goes by the share of inertia here, and not by the position: kept on
/// purpose, as the published ratings were made.
double Couple(const LoiIndexeur& loi, double accel, double inertie) {
    const double constante = CoupleReference - inertie;
    if (loi.S == 0.5) return inertie * accel / loi.Amax + constante;
    const double cote = inertie < 200.0 * (1.0 - loi.S) ? loi.S : 1.0 - loi.S;
    return 2.0 * inertie * accel * cote / loi.Amax + constante;
}

/// Which flanks the cam offers to the studied roller. A cam of the second kind (Type is above 1 then) has one flank at
/// a time: first the lower one is missing, then the upper one.
Flancs FlancsOfferts(const CalculIndexeur& calcul, const ContactGalet& contact, int i) {
    const CameGlobique& came = calcul.came;
    Flancs flancs;
    if (calcul.type != 1.0) {
        const double tour = calcul.tour;
        if (tour > calcul.type) flancs.superieur = false;
        if (tour <= calcul.type || (tour == calcul.type + 1.0 && i == 0)) flancs.inferieur = false;
    }
    if (contact.entre > -came.L + came.pas) flancs.superieur = false;
    if (contact.sort < came.L - came.pas) flancs.inferieur = false;
    return flancs;
}

/// On turn 2 a cam of the second kind, whose walk begins with turn 1, has no curvature at the root: what each position
/// begins with stands.
constexpr double CourbureRacineAbsente = 1e-6;

/// Loads the studied roller at one position. @return false once it has left the cam
bool ParcourtPosition(CalculIndexeur& calcul, double depart, int passe, int i) {
    const CameGlobique& came = calcul.came;
    const PointLoi p = LoiAuPas(calcul, i);
    const double angleCame = AngleCame(calcul, i), beta = calcul.beta / RadDeg, parStop = 2.0 * Pi / calcul.stops;
    const PositionGalet galet{depart + (p.Course + calcul.tour) * parStop, Divise(p.Vitesse * parStop, beta),
                              Divise(p.Accel * parStop, beta * beta)};
    PointParcours point;
    // The rib is measured at every position, engaged or not.
    MesureNervure(came, galet, calcul.minima, &point.epaisseur);
    const ContactGalet contact = CalculeContact(came, galet);
    if (contact.entre < -came.L) return true;
    if (contact.sort > came.L) return false;
    calcul.minima.alpha = std::max(calcul.minima.alpha, contact.alpha);
    const double kappaRacine =
        calcul.genre == 2 && calcul.tour == 2 ? CourbureRacineAbsente : CourbureRacine(came, galet);
    const double tours = Divise(contact.B * (angleCame - calcul.anglePrecedent), came.D * Pi) / contact.cosAlpha;
    const Flancs flancs = FlancsOfferts(calcul, contact, i);
    for (std::size_t k = 0; k < NombreParts; ++k) {
        const double couple = CoupleNet(Couple(calcul.loi, p.Accel, PartInertie(k)), came.precontrainte);
        point.force[k] = NewtonParLivre * ChargeContact(came, contact, kappaRacine,
                                                        PartageCharge(couple, came.precontrainte, flancs), tours, {},
                                                        calcul.parcours[k], calcul.minima);
    }
    calcul.anglePrecedent = angleCame;
    NoteParcours({passe, calcul.tour * (calcul.loi.pas + 1) + i, angleCame * RadDeg, galet.phi * RadDeg,
                  contact.alpha * RadDeg, point.epaisseur * MmParPouce, point.force},
                 calcul.resultat);
    return true;
}

/// Where the studied roller stands when a pass begins.
double AngleDepart(const CalculIndexeur& calcul, int passe) {
    const double pas = calcul.came.pas;
    return calcul.type > 1.0 ? -1.5 * pas : -pas * (1.5 + calcul.passages - passe);
}

/// One run of the studied roller through the thread, as many turns of the cam as it takes.
void ParcourtPasse(CalculIndexeur& calcul, int passe) {
    calcul.parcours = {};
    const double depart = AngleDepart(calcul, passe);
    bool engage = true;
    for (; engage; ++calcul.tour) {
        if (calcul.tour > CompteMax) throw ErreurExecution(NumeroErreur::Depassement);
        for (int i = 0; engage && i <= calcul.loi.pas; ++i) engage = ParcourtPosition(calcul, depart, passe, i);
    }
    calcul.tour = 0;
    calcul.anglePrecedent = 0;
}

void ParcourtCame(CalculIndexeur& calcul) {
    if (calcul.passages > CompteMax) throw ErreurExecution(NumeroErreur::Depassement);
    const ReglesDuree regles{calcul.stops, calcul.type > 1.0 ? std::pow(2.0, ExposantCharge) : 1.0,
                             std::pow(calcul.type, ExposantCharge)};
    for (int passe = 1; passe <= calcul.passages; ++passe) {
        ParcourtPasse(calcul, passe);
        AjouteParcours(calcul.came, calcul.parcours, regles, calcul.resultat.Resultats);
    }
    RangeMinima(calcul.came, calcul.minima, calcul.resultat);
}

/// The torque that the input shaft lets through.
void LimiteParArbre(CalculIndexeur& calcul) {
    const double arbre = calcul.donnees.CapaciteArbreEntree * LivrePouceParNm;
    for (std::size_t k = 0; k < NombreParts; ++k)
        calcul.resultat.Resultats[LimiteArbre][k] =
            Divise(0.9 * calcul.beta / 360.0 * calcul.stops, calcul.facteurs[k]) * arbre;
}

} // namespace

ResultatGlobique CalculeCapaciteIndexador(const DonneesIndexeur& donnees, const Tableau<Loi>& catalogue) {
    CalculIndexeur calcul{donnees, LitCame(donnees), donnees.AngleIndexage, donnees.NombreStops, donnees.NombreGalets};
    calcul.came.pas = Divise(2.0 * Pi, calcul.galets);
    CalculeEnveloppe(calcul);
    DisposeTourelle(calcul);
    calcul.came.Rp = RayonPrimitif(calcul);
    PrepareLoiIndexeur(calcul, catalogue);
    CalculeFacteurs(calcul);
    PrepareParcours(calcul);
    ParcourtCame(calcul);
    LimiteParArbre(calcul);
    ResultatGlobique& resultat = calcul.resultat;
    CompleteTable(resultat.Resultats, true);
    resultat.Type = calcul.type;
    resultat.Passages = calcul.passages;
    resultat.Genre = calcul.genre;
    resultat.AngleReel = calcul.loi.fichier ? calcul.beta / calcul.type : calcul.beta;
    resultat.RayonPrimitif = calcul.came.Rp * MmParPouce;
    resultat.InertieTotale = InertieAvecGalets(calcul.came, calcul.galets, donnees.InertieTourelle);
    return std::move(resultat);
}
