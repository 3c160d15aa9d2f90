// The cam centre O is the origin; the pivot O1 stands at (-CoteA, -CoteB), the roller centre P at RayonO1P from it in
// the direction AnglePO1A plus the arm angle. The point of the pitch curve that belongs to the shown angle lies under
// P.
#include "studies/DessinCame.h"

#include "cams/Courbure.h"
#include "core/Etude.h"
#include "data/Textes.h"
#include "drawing/LegendeDessin.h"
#include "drawing/PlanDessin.h"
#include "studies/ContoursCame.h"
#include "studies/TypesEtude.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr Trait traitFaute{Couleur::Repere, 3.0};

PointDessin Pivot() {
    return {-etude.donnees.CoteA, -etude.donnees.CoteB};
}

bool ABras() {
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    return type != nullptr && type->zones->rayonsBras;
}

PointDessin CentreGalet(long i) {
    // A translating follower stands below the cam centre: what pushes it up pushes the roller against the cam.
    if (!ABras()) return {0, -etude.resultats.Points[i].Rayon};
    return Polaire(Pivot(), etude.donnees.RayonO1P, etude.donnees.AnglePO1A + etude.resultats.Points[i].AngleBras);
}

PointDessin PointA(long i) {
    return Polaire(Pivot(), etude.donnees.RayonO1A, etude.resultats.Points[i].AngleBras);
}

/// Length of the stem below the roller of a translating follower, mm.
double LongueurTige() {
    return etude.resultats.RayonMax / 3;
}

/// What the drawing covers at any angle, so that the scale does not change while the cam turns.
Etendue CalculeEtendue() {
    const double came = etude.resultats.RayonMax + etude.donnees.RayonGalet;
    Etendue e{{-came, -came}, {came, came}};
    if (!ABras()) {
        e.Contient({0, -came - LongueurTige()}, 2);
        return e;
    }
    e.Contient(Pivot(), 8);
    for (long i = 0; i <= etude.resultats.NombrePoints; i += etude.donnees.PointsParDegre) {
        e.Contient(PointA(i), 6);
        e.Contient(CentreGalet(i), etude.donnees.RayonGalet);
    }
    return e;
}

void DessineNoms(Dessin& dessin) {
    std::vector<EntreeLegende> legende = {{{Couleur::Came, 2.0}, Texte(291)},
                                          {{Couleur::TexteDiscret, 2.0}, Texte(290)},
                                          {{Couleur::Primitif, 2.0, true}, Texte(293)},
                                          {{Couleur::Galet, 2.0}, Texte(289)}};
    if (ABras()) legende.push_back({{Couleur::Bras, 2.0}, Texte(217)});
    if (!PlagesTropCourbees().empty()) legende.push_back({traitFaute, Texte(TexteCourbureFaible), Couleur::Repere});
    DessineLegende(dessin, {14, 16}, 12, legende);
}

void DessineProfils(PlanDessin& vue, double radians) {
    const ContoursCame contours = CalculeContours();
    const bool ferme = etude.resultats.NombrePoints >= 360 * etude.donnees.PointsParDegre;
    vue.Contour(contours.interieur, {Couleur::Came, 1.8}, ferme, radians);
    vue.Contour(contours.exterieur, {Couleur::TexteDiscret, 1.0}, false, radians);
    vue.Contour(contours.primitif, {Couleur::Primitif, 1.0, true}, false, radians);
    for (const auto& partie : PartiesTropCourbees(contours.interieur, contours.exterieur))
        vue.Contour(partie, traitFaute, false, radians);
    vue.Ligne({0, 0}, Tourne(contours.interieur.front(), radians), {Couleur::Repere, 1.0});
}

void NommePoint(Dessin& dessin, const PlanDessin& vue, PointDessin p, const char* nom) {
    const PointDessin place = vue(p);
    dessin.Texte({place.x + 8, place.y + 12}, nom, Ancrage::Gauche, 12);
}

void DessineBras(Dessin& dessin, const PlanDessin& vue, long i) {
    const PointDessin P = CentreGalet(i), O1 = Pivot(), A = PointA(i);
    dessin.Ligne(vue(O1), vue(P), {Couleur::Bras, 2.4});
    dessin.Ligne(vue(O1), vue(A), {Couleur::Bras, 2.4});
    for (const auto& articulation : {O1, P, A}) dessin.Disque(vue(articulation), 3.5, {Couleur::Bras, 1.4});
    NommePoint(dessin, vue, O1, "O1");
    NommePoint(dessin, vue, A, "A");
}

} // namespace

void DessineCamePlate(Dessin& dessin, double angle) {
    if (etude.resultats.Points.Vide() || etude.resultats.NombrePoints == 0) return;
    const long i = std::clamp(static_cast<long>(Arrondi(angle * etude.donnees.PointsParDegre)), 0L,
                              static_cast<long>(etude.resultats.NombrePoints));
    constexpr double marge = 14, bandeau = 26;
    PlanDessin vue(dessin, CalculeEtendue(), marge, bandeau);
    const PointDessin P = CentreGalet(i);
    const double radians = std::atan2(P.y, P.x) - etude.resultats.Points[i].Angle / RadDeg;
    DessineProfils(vue, radians);
    const double croix = etude.resultats.RayonMin / 6;
    const Trait axe{Couleur::Axe, 1.0};
    dessin.Ligne(vue({-croix, 0}), vue({croix, 0}), axe);
    dessin.Ligne(vue({0, -croix}), vue({0, croix}), axe);
    NommePoint(dessin, vue, {0, 0}, "O");
    dessin.Disque(vue(P), etude.donnees.RayonGalet * vue.Echelle(), {Couleur::Galet, 1.6});
    if (ABras())
        DessineBras(dessin, vue, i);
    else
        dessin.Ligne(vue(P), vue({P.x, P.y - etude.donnees.RayonGalet - LongueurTige()}), {Couleur::Bras, 2.4});
    DessineNoms(dessin);
}
