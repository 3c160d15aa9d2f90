#include "planecams/MouvementCame.h"

#include "cams/ParcoursZones.h"
#include "data/Textes.h"
#include "platform/Dialogues.h"

#include <algorithm>
#include <cmath>

namespace {

/// The points whose radius is too small for the roller, told in one box at the end.
struct PointsTropPetits {
    std::string liste;

    void Controle(double rayon, long point) {
        if (2.0 * etude.donnees.RayonGalet > rayon) liste += " ; " + Format(static_cast<double>(point), "###");
    }

    /// The study goes on all the same.
    void Annonce() const {
        if (liste.empty()) return;
        LesDialogues().Message(Icone::Information, Texte(432) + liste + "\n\n" + Texte(433) + "\n" + Texte(434));
    }
};

/// Roller speed in Tr/min, rounded down: the roller runs on the profile at the radius of the cam there.
void CalculeVitesseGalet(Point& p) {
    p.VitesseGalet =
        Int(Divise((p.Rayon - etude.donnees.RayonGalet) * etude.donnees.VitesseCame, etude.donnees.RayonGalet));
}

/// The arm of a study, once for all its points.
struct Bras {
    double a = etude.donnees.CoteA / 1000.0, b = etude.donnees.CoteB / 1000.0; ///< its pivot, m
    double L = etude.donnees.RayonO1P / 1000.0;                                ///< pivot to roller centre, m
    double A = 0.001 * etude.donnees.CoteA; ///< to the force point, m: CoteA in place of an arm length, on purpose
};

/// Speed and acceleration of the radius, from those of the arm. phi is the direction of O1-P; metres and seconds.
void CalculeVitesseRayon(Point& p, const PointLoi& m, const Bras& bras) {
    const double phi = (etude.donnees.AnglePO1A + p.AngleBras) * Pi / 180.0;
    const double a = bras.a, b = bras.b, L = bras.L, R = p.Rayon / 1000.0;
    const double s = std::sin(phi), c = std::cos(phi);
    const double V = m.Vitesse, A = m.Accel;
    p.VitesseRayon = V * ((c * b - s * a) * (-Divise(L, R)));
    p.AccelRayon = (L / R) * (s * (V * V * b + A * a) + c * (V * V * a - A * b)) - p.VitesseRayon * p.VitesseRayon / R;
}

/// The point on the arm, its speed and its acceleration.
void CalculePointA(Point& p, const PointLoi& m, const Bras& bras) {
    const double phi2 = p.AngleBras * Pi / 180.0;
    const double s2 = std::sin(phi2), c2 = std::cos(phi2);
    const double V = m.Vitesse, A = m.Accel;
    p.XA = c2 * etude.donnees.CoteA;
    p.YA = s2 * etude.donnees.CoteA;
    p.VxA = -bras.A * V * s2;
    p.VyA = bras.A * V * c2;
    p.VA = bras.A * V;
    p.AxA = -bras.A * (s2 * A + c2 * V * V);
    p.AyA = bras.A * (c2 * A - s2 * V * V);
    p.AA = bras.A * std::sqrt(A * A + V * V * V * V);
}

void CalculePointBras(Point& p, PointLoi& m, const PointLoi& unite, const Parcours& zone, const Bras& bras) {
    const double T = zone.T;
    m.Course = zone.course * unite.Course + zone.depart;
    m.Vitesse = unite.Vitesse * zone.radians / T;
    m.Accel = unite.Accel * zone.radians / (T * T);
    if (std::abs(m.Course) > etude.durables.LoiCourseMax) etude.durables.LoiCourseMax = std::abs(m.Course);
    SuitMaximum(m.Vitesse, p.Angle, etude.durables.LoiVitesseMax, etude.durables.LoiVitesseMaxAngle);
    SuitMaximum(m.Accel, p.Angle, etude.durables.LoiAccelMax, etude.durables.LoiAccelMaxAngle);
    p.AngleBras = m.Course;
    p.Rayon = RayonGaletCentre(etude.donnees.CoteA, etude.donnees.CoteB, etude.donnees.RayonO1P, p.AngleBras,
                               etude.donnees.AnglePO1A);
    CalculeVitesseRayon(p, m, bras);
    CalculePointA(p, m, bras);
}

void CalculePointLineaire(Point& p, const PointLoi& unite, const Parcours& zone) {
    const double C = zone.course / 1000.0;
    p.Rayon = unite.Course * zone.course + zone.depart;
    p.VitesseRayon = unite.Vitesse * C / zone.T;
    p.AccelRayon = unite.Accel * C / (zone.T * zone.T);
}

/// The maxima of the law and of the roller speed are not cleared: they go on growing from one calculation to the next
/// while the program runs. For the life of this object they are those of its calculation, which are kept beside.
class MaximaDurables {
public:
    MaximaDurables() { etude.durables = {}; }
    ~MaximaDurables() {
        DurablesEtude& maxima = etude.durables;
        etude.resultats.MaximaPropres = maxima;
        maxima.LoiCourseMax = std::max(maxima.LoiCourseMax, anciens_.LoiCourseMax);
        maxima.VitesseGaletMax = std::max(maxima.VitesseGaletMax, anciens_.VitesseGaletMax);
        if (!(maxima.LoiVitesseMax > anciens_.LoiVitesseMax)) {
            maxima.LoiVitesseMax = anciens_.LoiVitesseMax;
            maxima.LoiVitesseMaxAngle = anciens_.LoiVitesseMaxAngle;
        }
        if (!(maxima.LoiAccelMax > anciens_.LoiAccelMax)) {
            maxima.LoiAccelMax = anciens_.LoiAccelMax;
            maxima.LoiAccelMaxAngle = anciens_.LoiAccelMaxAngle;
        }
    }
    MaximaDurables(const MaximaDurables&) = delete;
    MaximaDurables& operator=(const MaximaDurables&) = delete;

private:
    const DurablesEtude anciens_ = etude.durables;
};

void DerouleBras(LoisZones* lois) {
    const MaximaDurables maxima;
    const Bras bras;
    PointsTropPetits tropPetits;
    DerouleZones({&Zone::AngleDepart, &Zone::AngleFinal, etude.lois.DeFichier, false, false, lois},
                 [&](const Lieu& lieu, const PointLoi& unite, const Parcours& zone) {
                     Point& p = etude.resultats.Points[lieu.k];
                     CalculePointBras(p, etude.resultats.Mouvement[lieu.k], unite, zone, bras);
                     tropPetits.Controle(p.Rayon, lieu.k);
                     CalculeVitesseGalet(p);
                 });
    tropPetits.Annonce();
}

} // namespace

void CalculeMouvementBras() {
    DerouleBras(nullptr);
}

void CalculeMouvementCouple(LoisZones& lois) {
    DerouleBras(&lois);
}

void CalculeMouvementLineaire() {
    const MaximaDurables maxima;
    PointsTropPetits tropPetits;
    DerouleZones({&Zone::RayonDepart, &Zone::RayonFinal, false, false, false},
                 [&](const Lieu& lieu, const PointLoi& unite, const Parcours& zone) {
                     Point& p = etude.resultats.Points[lieu.k];
                     CalculePointLineaire(p, unite, zone);
                     tropPetits.Controle(p.Rayon, lieu.k);
                     CalculeVitesseGalet(p);
                 });
    tropPetits.Annonce();
}
