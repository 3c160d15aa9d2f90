#include "cylindrical/DeveloppeeCyl.h"

#include "core/Etude.h"
#include "cylindrical/GeometrieCyl.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double Rebord = 5; ///< of the cylinder beyond the groove, mm

long PointsParTour() {
    return 360L * etude.donnees.PointsParDegre;
}

/// The turn that a point belongs to; the last point of the track closes its turn.
long TourDe(long point) {
    return point == etude.resultats.NombrePoints && point > 0 ? (point - 1) / PointsParTour() : point / PointsParTour();
}

TourDeveloppe CalculeTour(long tour) {
    TourDeveloppe t;
    const long debut = tour * PointsParTour(),
               fin = std::min<long>(debut + PointsParTour(), etude.resultats.NombrePoints);
    t.debut = debut;
    const double L = ArcEntrePoints(), decalage = L * static_cast<double>(debut);
    for (auto* courbe : {&t.interieur, &t.exterieur, &t.primitif})
        courbe->reserve(static_cast<std::size_t>(fin - debut) + 1);
    for (long i = debut; i <= fin; ++i) {
        const PointProfil& p = etude.resultats.Profil[i];
        t.interieur.push_back({p.XInterieur - decalage, p.YInterieur});
        t.exterieur.push_back({p.XExterieur - decalage, p.YExterieur});
        t.primitif.push_back({L * static_cast<double>(i) - decalage, etude.resultats.Points[i].Rayon});
    }
    return t;
}

} // namespace

long NombreTours() {
    return etude.resultats.NombrePoints == 0 ? 0 : TourDe(etude.resultats.NombrePoints) + 1;
}

Developpee CalculeDeveloppee() {
    Developpee d;
    if (etude.resultats.Profil.Vide() || etude.resultats.NombrePoints == 0) return d;
    d.largeur = Pi * etude.donnees.DiametreCame;
    const auto [mini, maxi] = std::minmax_element(etude.resultats.Points.begin(), etude.resultats.Points.end(),
                                                  [](const Point& a, const Point& b) { return a.Rayon < b.Rayon; });
    d.hauteurMini = mini->Rayon;
    d.hauteurMaxi = maxi->Rayon;
    d.bas = d.hauteurMini - etude.donnees.RayonGalet - Rebord;
    d.haut = d.hauteurMaxi + etude.donnees.RayonGalet + Rebord;
    for (long tour = 0; tour < NombreTours(); ++tour) d.tours.push_back(CalculeTour(tour));
    return d;
}

PointDessin CentreGaletDeveloppe(long point) {
    const double x = ArcEntrePoints() * static_cast<double>(point - TourDe(point) * PointsParTour());
    return {x, etude.resultats.Points[point].Rayon};
}

PointDessin PivotDeveloppe(long point) {
    const double angle = etude.resultats.Mouvement[point].Course / RadDeg;
    return {CentreGaletDeveloppe(point).x - etude.donnees.RayonO1P * std::cos(angle), 0};
}
