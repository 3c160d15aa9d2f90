#include "laws/CalculLois.h"

#include "data/Demarrage.h"

#include <algorithm>
#include <cmath>

double LoiCourse = 0, LoiVitesse = 0, LoiAccel = 0;
double CoefSym = 0.5, CoefSymCompl = 0.5;

namespace {

/// The row being evaluated, and what its segments need at every point.
struct Segments {
    double Ca = 0, SegA = 0, K1 = 0, K2 = 0, K3 = 0, K4 = 0, K5 = 0, K6 = 0, K7 = 0;
    double finSinus = 0;    ///< A / 2
    double finParabole = 0; ///< (B + A) / 2
    double finCosinus = 0;  ///< (1 - D) / 2
    double finVitesse = 0;  ///< (D + 1) / 2
    double SegC = 0;
    double PiSurC = 0, CSurPi = 0, CSurPiCarre = 0; ///< Pi / C, C / Pi and its square
};

Segments segments;

void SegmentSinus(double x) {
    const Segments& g = segments;
    const double angle = Pi * x / g.SegA;
    const double sinus = std::sin(angle);
    LoiAccel = g.Ca * sinus;
    LoiVitesse = g.Ca * g.K1 * (1.0 - std::cos(angle));
    LoiCourse = g.Ca * (g.K1 * x - g.K1 * g.K1 * sinus);
}

void SegmentParabole(double x) {
    const Segments& g = segments;
    LoiAccel = g.Ca;
    LoiVitesse = g.Ca * (x + g.K2);
    LoiCourse = g.Ca * (x * x / 2.0 + g.K2 * x + g.K5);
}

void SegmentCosinus(double x) {
    const Segments& g = segments;
    if (g.SegC == 0.0) throw ErreurExecution(NumeroErreur::DivisionParZero);
    const double w = g.PiSurC * (x - g.finParabole);
    const double cosinus = std::cos(w);
    LoiAccel = g.Ca * cosinus;
    LoiVitesse = g.Ca * (g.K3 + g.CSurPi * std::sin(w));
    LoiCourse = g.Ca * (g.K3 * x + g.K6 - g.CSurPiCarre * cosinus);
}

void SegmentVitesseConstante(double x) {
    const Segments& g = segments;
    LoiAccel = 0.0;
    LoiVitesse = g.Ca * g.K4;
    LoiCourse = g.Ca * (g.K4 * x + g.K7);
}

} // namespace

Tableau<Loi> LitLois() {
    JeuEnregistrements lois = LaBase.OuvreTable("Lois");
    Tableau<Loi> liste;
    liste.Redimensionne(Entier16(static_cast<double>(lois.NombreEnregistrements())));
    for (long i = 1; !lois.FinFichier(); lois.VaAuSuivant(), ++i) {
        Loi& loi = liste[i];
        loi.NomLoi = EnTexte(lois.Champ("NomLoi"));
        loi.Ca = EnNombre(lois.Champ("Ca"));
        loi.Cv = EnNombre(lois.Champ("Cv"));
        loi.CoefA = EnNombre(lois.Champ("CoefA"));
        loi.CoefB = EnNombre(lois.Champ("CoefB"));
        loi.CoefC = EnNombre(lois.Champ("CoefC"));
        loi.CoefD = EnNombre(lois.Champ("CoefD"));
        loi.CoefS = EnNombre(lois.Champ("CoefS"));
    }
    return liste;
}

void ChargeLois() {
    etude.lois.ListeLois = LitLois();
    etude.lois.DeFichier = false;
    etude.lois.NombreLois = Entier16(static_cast<double>(etude.lois.ListeLois.BorneHaute()));
}

bool EstLoiSpe(const std::string& nomLoi) {
    // Found at the very front, "Spe" does not count: the first occurrence decides.
    const auto place = nomLoi.find("Spe");
    return place != std::string::npos && place > 0;
}

double PourcentageLoiSpe(const std::string& nomLoi) {
    const auto place = nomLoi.find("Spe_");
    const long p = place == std::string::npos ? 0 : static_cast<long>(place) + 1;
    if (p < 2) throw ErreurExecution(NumeroErreur::AppelIncorrect, nomLoi);
    const auto gardes = std::min(nomLoi.size(), static_cast<std::size_t>(p - 2));
    return Val(std::string_view(nomLoi).substr(nomLoi.size() - gardes));
}

std::int16_t ChercheLoi(const std::string& nomLoi) {
    for (int i = 1; i <= etude.lois.NombreLois && i <= etude.lois.ListeLois.BorneHaute(); ++i)
        if (etude.lois.ListeLois[i].NomLoi == nomLoi) return static_cast<std::int16_t>(i);
    return 0;
}

std::vector<std::string> NomsLoisZones() {
    std::vector<std::string> noms;
    const Tableau<Loi> lois = LitLois();
    for (long i = 1; i <= lois.BorneHaute(); ++i)
        if (lois[i].NomLoi.find("MSH") == std::string::npos) noms.push_back(lois[i].NomLoi);
    return noms;
}

void CalculeCoefs(Loi& loi, double pourcentage) {
    const double c = pourcentage;
    loi.CoefA = (100.0 - c) / 400.0;
    loi.CoefB = 0.0;
    loi.CoefC = 3.0 * loi.CoefA;
    loi.CoefD = c / 100.0;
    CalculeMaxima(loi);
}

void CalculeMaxima(Loi& loi) {
    const double A = loi.CoefA, B = loi.CoefB, C = loi.CoefC;
    loi.Ca = Divise(4.0 * Pi * Pi, 4.0 * Pi * (C + A) * (1.0 - C) + 8.0 * (C * C - A * A) +
                                       B * (Pi * Pi * (2.0 - 2.0 * A - B) - 4.0 * Pi * C));
    loi.Cv = loi.Ca * (B / 2.0 + (C + A) / Pi);
}

void PrepareLoi(std::int16_t numeroLoi) {
    PrepareLoi(etude.lois.ListeLois[numeroLoi]);
}

void PrepareLoi(Loi& loi) {
    loi.SegA = loi.CoefA;
    loi.SegB = loi.CoefB;
    loi.SegC = loi.CoefC;
    loi.SegD = loi.CoefD;
    const double A = loi.SegA, B = loi.SegB, C = loi.SegC, D = loi.SegD;
    loi.K1 = A / Pi;
    loi.K2 = A / Pi - A / 2.0;
    loi.K3 = A / Pi + B / 2.0;
    loi.K4 = A / Pi + B / 2.0 + C / Pi;
    loi.K5 = A * A / 8.0 - A * A / (Pi * Pi);
    loi.K6 = A * A / 8.0 + (C * C - A * A) / (Pi * Pi) - (B + A) * (B + A) / 8.0;
    loi.K7 = loi.K6 - ((B + A + C) * C / 2.0) / Pi;

    segments = {loi.Ca,
                A,
                loi.K1,
                loi.K2,
                loi.K3,
                loi.K4,
                loi.K5,
                loi.K6,
                loi.K7,
                A / 2.0,
                (B + A) / 2.0,
                (1.0 - D) / 2.0,
                (D + 1.0) / 2.0,
                C,
                C == 0.0 ? 0.0 : Pi / C,
                C / Pi,
                (C / Pi) * (C / Pi)};
}

void EvalueLoi(double& x) {
    const Segments& g = segments;
    if (x < g.finSinus) return SegmentSinus(x);
    if (x < g.finParabole) return SegmentParabole(x);
    if (x <= g.finCosinus) return SegmentCosinus(x);
    if (x < g.finVitesse) return SegmentVitesseConstante(x);

    x = 1.0 - x;
    if (x < g.finSinus) {
        SegmentSinus(x);
    } else if (x < g.finParabole) {
        SegmentParabole(x);
    } else if (x < g.finCosinus) {
        SegmentCosinus(x);
    } else if (x < g.finVitesse) {
        SegmentVitesseConstante(x);
    }
    LoiCourse = 1.0 - LoiCourse;
    LoiAccel = -LoiAccel;
}

void EvalueLoiSymetrie(double& x) {
    const double S = CoefSym, U = CoefSymCompl;
    if (S == 0.5) return EvalueLoi(x);
    if (x <= S) {
        x = Divise(x / 2.0, S);
        EvalueLoi(x);
        LoiCourse = LoiCourse * 2.0 * S;
        LoiAccel = (LoiAccel / 2.0) / S;
        return;
    }
    x = Divise((x + U - S) / 2.0, U);
    // Rounding can carry the last point past the end of the law, where no segment is defined.
    if (x > 1.0) x = 1.0;
    EvalueLoi(x);
    LoiCourse = LoiCourse * 2.0 * U - U + S;
    LoiAccel = (LoiAccel / 2.0) / U;
}

void AppliqueLoi(std::int16_t numeroZone) {
    const Zone& zone = etude.donnees.Zones[numeroZone];
    std::int16_t numeroLoi = numeroZone;
    if (EstLoiSpe(zone.NomLoi)) {
        // The row of the zone's own number is overwritten, on purpose: a later zone that names the law of that row gets
        // these coefficients, until the program is started again.
        CalculeCoefs(etude.lois.ListeLois[numeroLoi], PourcentageLoiSpe(zone.NomLoi));
    } else {
        etude.resultats.Erreur = Faux;
        for (numeroLoi = 1; etude.lois.ListeLois[numeroLoi].NomLoi != zone.NomLoi;) ++numeroLoi;
    }
    RemplitTable(etude.lois.ListeLois[numeroLoi], zone.CoefSymetrie, zone.AngleCame, etude.lois.LoiUnite);
}

void RemplitTable(Loi& loi, double symetrie, double n, Tableau<PointLoi>& table) {
    CoefSym = symetrie;
    CoefSymCompl = 1.0 - CoefSym;
    table.Redimensionne(Entier16(n));
    PrepareLoi(loi);
    auto ligne = table.begin();
    for (long i = 0; static_cast<double>(i) <= n; ++i, ++ligne) {
        double x = Divise(static_cast<double>(i), n);
        EvalueLoiSymetrie(x);
        *ligne = {LoiCourse, LoiVitesse, LoiAccel};
    }
}
