#include "conjugate/CapaciteConjugue.h"

#include "conjugate/InertiePropre.h"
#include "core/Etude.h"
#include "core/Nombres.h"

#include <algorithm>
#include <cmath>

namespace {

/// Surface stress of 2200 pounds per square inch, taken as 2200 / 2.2046 kilograms, N/m².
constexpr double ContrainteSurface = 2200 / 2.2046 * 9.81 / (25.4 * 25.4) / 1e-6;

/// Cam surface of 60 HRC against 55.
constexpr double FacteurRC60 = 1.25;

/// Hours that the basic dynamic capacity is rated for.
constexpr double HeuresBase = 500;

/// A fourth of the life, in capacity.
const double FacteurB50 = std::pow(4.0, 0.3);

double CosDegres(double angle) {
    return std::cos(angle * Pi / 180);
}

/// Torque of the cam surface at a pressure angle of 0.
double CoupleSurface(const DonneesConjugue& d) {
    return ContrainteSurface * d.D / 1000 * d.F / 1000 * d.R / 1000;
}

/// Turns of the roller that its life counts, in powers of a hundred thirds.
double ToursGalet(double SR, double vitesseArbre) {
    return SR * vitesseArbre * 3 / 100;
}

/// @param E speed factor
double LimiteDynamique(const DonneesConjugue& d, double fu, double E, double PA) {
    const double G = std::pow(DureeVie / HeuresBase, 0.3);
    return Divise(d.B10 * fu / G, E) * d.R * CosDegres(PA) * 1e-3;
}

LimitesContact CalculeLimites(const DonneesConjugue& d, const Contact& contact, double dyn) {
    const double surface = CoupleSurface(d) * CosDegres(contact.PA);
    return {contact, surface, FacteurRC60 * surface, dyn, dyn * FacteurB50};
}

void VerifieFini(std::initializer_list<double> valeurs) {
    if (!std::all_of(valeurs.begin(), valeurs.end(), [](double v) { return std::isfinite(v); }))
        throw ErreurExecution(NumeroErreur::ResultatNonFini);
}

} // namespace

double AngleAccelerationExtreme(const DonneesConjugue& d) {
    return 0.125 * (1 - d.loi.W) * d.loi.A;
}

ReposConjugue CalculeRepos(const DonneesConjugue& d) {
    ReposConjugue repos;
    const double tangente = Divise(d.Q * std::cos(d.h) - d.R, d.Q * std::sin(d.h));
    repos.PAD = 180 / Pi * std::atan(tangente);
    repos.RSD = Racine(d.Q * d.Q + d.R * d.R - 2 * d.Q * d.R * std::cos(d.h)) - 0.5 * d.D;
    repos.SR = Divise(2 * repos.RSD, d.D);
    VerifieFini({repos.PAD, repos.RSD, repos.SR});
    return repos;
}

bool VitesseLimiteAtteinte(const DonneesConjugue& d, const ReposConjugue& repos) {
    return repos.SR * d.VitesseArbre >= d.VMax;
}

double Fu(double M, double N, double A) {
    const double N1 = N <= 5 ? N : N / 2, A1 = N <= 5 ? A : 2 * A;
    const double t1 = Divise(A1 / 2, 360 * N1);
    const double t2 = Divise(360 - A1 / 2 + Divise(360, M), 360 * N1);
    return Puissance(t1 + std::pow(0.5, 10.0 / 3.0) * t2, -0.3);
}

CapaciteConjugue CalculeCapacite(const DonneesConjugue& d, const ReposConjugue& repos,
                                 std::vector<std::string>& ecran) {
    CapaciteConjugue c;
    c.Tx = AngleAccelerationExtreme(d);
    const MouvementIndex m = Fqq(d.loi, c.Tx, 1, ecran);
    const double omega = m.omega * d.loi.TPdeg / d.loi.TP;
    c.phi2 = d.h - m.theta;
    const Contact premier = Sss(d.Q, d.R, omega, m.theta + d.h);
    c.PA0 = Sss(d.Q, d.R, 0, d.h).PA;
    c.C55d = CoupleSurface(d) * CosDegres(c.PA0);
    c.C60d = FacteurRC60 * c.C55d;
    c.LimiteStatique = d.CLim * d.R / 1000 * CosDegres(c.PA0);
    c.Fu = Fu(d.M, d.N, d.loi.A);
    // The exponent here is -3 and that of the table 0.3: kept on purpose.
    const double E = Puissance(ToursGalet(repos.SR, d.VitesseArbre), -3);
    const double dyn = LimiteDynamique(d, c.Fu, E, premier.PA);
    c.premier = CalculeLimites(d, premier, dyn);
    if (c.phi2 < 0) {
        const Contact second = Sss(d.Q, d.R, omega, c.phi2);
        c.second = CalculeLimites(d, second, Divise(dyn * CosDegres(second.PA), CosDegres(premier.PA)));
    }
    VerifieFini({c.PA0, c.Fu, c.C60d, c.LimiteStatique, c.premier.contact.RCF, c.premier.contact.PA, c.premier.C60,
                 c.premier.DynB50, c.second.contact.RCF, c.second.contact.PA, c.second.C60, c.second.DynB50});
    return c;
}

CapaciteParVitesse CalculeLigne(const DonneesConjugue& d, const ReposConjugue& repos, const CapaciteConjugue& capacite,
                                double Ipm) {
    const double E = Puissance(ToursGalet(repos.SR, VitesseArbre(d.N, Ipm)), 0.3);
    CapaciteParVitesse ligne;
    ligne.Ipm = Ipm;
    ligne.C60x = capacite.premier.C60;
    ligne.DynB10 = LimiteDynamique(d, capacite.Fu, E, capacite.premier.contact.PA);
    ligne.DynB50 = ligne.DynB10 * FacteurB50;
    ligne.Catalogue = ligne.C60x <= ligne.DynB50 ? ligne.C60x : ligne.DynB50;
    ligne.Propre = Eig_mom(d.M, d.R, d.N, d.Q, d.loi.A, Ipm);
    VerifieFini({ligne.DynB10, ligne.DynB50, ligne.Propre});
    return ligne;
}

std::vector<double> VitessesTable(double Q) {
    if (Q < 160) return {50, 100, 200, 300, 400, 500};
    return {25, 50, 100, 150, 200, 250, 300};
}
