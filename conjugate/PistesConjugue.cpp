#include "conjugate/PistesConjugue.h"

#include "conjugate/TextesConjugue.h"
#include "core/Etude.h"
#include "core/Nombres.h"
#include "data/Textes.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int CourbeUnique = 1;

/// The letter of a track, 1 to 5.
std::string LettrePiste(double rang) {
    static constexpr std::array lettres{'B', 'C', 'D', 'E', 'A'};
    const int i = Entier16(rang);
    if (i < 1 || i > static_cast<int>(lettres.size()))
        throw ErreurExecution(NumeroErreur::IndiceHorsLimites, Texte(TextePisteSansLettre));
    return {lettres[static_cast<std::size_t>(i - 1)]};
}

double DepartPiste(const DonneesConjugue& d, int k) {
    return (2 * k - 1) * d.h;
}

std::string MessageLooping(const DonneesConjugue& d, int k) {
    return Texte(TexteLooping) + (k > 5 ? Texte(TexteAutrePiste) : LettrePiste(k)) + Texte(TexteDansLaPosition) +
           TexteCourt(d.Pistes) + "\n\r" + Texte(TexteDiminuerVitesse);
}

std::string MessageSurusinage(const DonneesConjugue& d, int k) {
    double p = 1;
    int part = 1;
    if (d.Pistes > 1) {
        part = k <= d.Pistes / 2 ? 1 : 2;
        p = part == 1 ? k : d.Pistes + 1 - k;
    }
    return "Sur Usinage dans la piste " + LettrePiste(p) + " part " + std::to_string(part) + " dans la position " +
           TexteCourt(d.Pistes);
}

/// True when track k loops.
bool PisteEnBoucle(const DonneesConjugue& d, int k, std::vector<std::string>& ecran) {
    double omega2 = 0; // is only ever scaled
    for (double T = 0; T <= d.loi.A; ++T) {
        const MouvementIndex m = Fqq(d.loi, T, CourbeUnique, ecran);
        const double phi = DepartPiste(d, k) - m.theta;
        const double a = m.alpha <= 0 ? 0.02 : 0.1, b = m.alpha <= 0 ? 0.1 : 0.2;
        if (phi > 0.1 || phi > a) continue;
        if (phi <= -b) return false;
        omega2 = omega2 * d.loi.TPdeg / d.loi.TP;
        const double c = d.Q * d.R * std::cos(phi);
        if ((d.Q * d.Q - c) + (d.R * d.R - c) * (1 + omega2) <= 0) return true;
    }
    return false;
}

/// Walks track k. @return false when it is undercut
bool ParcourtPiste(const DonneesConjugue& d, int k, Courbures& courbures, std::vector<std::string>& ecran) {
    auto& points = courbures.pistes.emplace_back();
    for (double T = 0; T <= d.loi.A; ++T) {
        const MouvementIndex m = Fqq(d.loi, T, CourbeUnique, ecran);
        const double phi = DepartPiste(d, k) - m.theta;
        if (phi <= 0) break;
        const double rho = RayonCourbureConjugue(d, m, phi);
        points.push_back({T, phi, rho});
        courbures.RayonMini = std::min(courbures.RayonMini, rho);
        courbures.RayonMaxi = std::max(courbures.RayonMaxi, rho);
        if (rho < 0) break;
        courbures.PMin = std::min(courbures.PMin, rho);
        if (rho > d.Q + d.R) break;
        if (rho - 0.5 * d.D <= JeuUsinage) return false;
    }
    return true;
}

} // namespace

Contact Sss(double Q, double R, double omega, double phi) {
    const double RCF = Racine(Q * Q + R * R - 2 * Q * R * std::cos(phi));
    const double tangente = Divise(Q * std::cos(phi) - (1 + omega) * R, Q * std::sin(phi));
    return {RCF, 180 / Pi * std::atan(tangente)};
}

double RayonCourbureConjugue(const DonneesConjugue& d, const MouvementIndex& mouvement, double phi) {
    const double Q = d.Q, R = d.R;
    const double w = mouvement.omega * d.loi.C[32], a2 = mouvement.alpha * d.loi.C[33];
    const double c = Q * R * std::cos(phi), s = std::sin(phi);
    const double d2 = Q * Q + R * R - 2 * c, distance = Racine(d2);
    const double u = Q - R * std::cos(phi), v = Q * std::cos(phi) - R;
    const double n = d2 + (R * R - c) * w;
    const double r1 = Divise(-distance * Q * R * s * w, n);
    // The term of the third power of w hangs on a work variable that is never set: 0, on purpose.
    const double e1 = d2 * d2 * s * a2 - d2 * u * v * w * w;
    const double r2 = Divise(-distance * Q * R * e1, n * n * n);
    const double rho = Divise(Puissance(d2 + Carre(r1), 1.5), d2 + 2 * Carre(r1) - r2 * distance);
    if (!std::isfinite(rho)) throw ErreurExecution(NumeroErreur::ResultatNonFini);
    return rho;
}

std::optional<std::string> ChercheLooping(const DonneesConjugue& d, std::vector<std::string>& ecran) {
    for (int k = 1; k <= d.Pistes; ++k)
        if (PisteEnBoucle(d, k, ecran)) return MessageLooping(d, k);
    return {};
}

std::optional<std::string> CalculeCourbures(const DonneesConjugue& d, Courbures& courbures,
                                            std::vector<std::string>& ecran) {
    courbures = {};
    courbures.PMin = d.Q + d.R;
    for (int k = 1; k <= d.Pistes; ++k)
        if (!ParcourtPiste(d, k, courbures, ecran)) return MessageSurusinage(d, k);
    return {};
}
