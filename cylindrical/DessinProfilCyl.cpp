#include "cylindrical/DessinProfilCyl.h"

#include "cams/Courbure.h"
#include "core/Etude.h"
#include "cylindrical/DeveloppeeCyl.h"
#include "data/Textes.h"
#include "data/Unites.h"
#include "drawing/LegendeDessin.h"
#include "drawing/PlanDessin.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr double HauteurTexte = 12, Bandeau = 30, Marge = 44;
constexpr int PasDegres = 30;
constexpr double RayonPivot = 8; ///< room around the pivot, mm
constexpr Trait traitGraduation{Couleur::Graduation, 1.0}, traitRepere{Couleur::Repere, 1.0, true},
    traitFaute{Couleur::Repere, 3.0};

bool ABras() {
    return !etude.resultats.Mouvement.Vide();
}

/// The sheet, and the pivot of the arm wherever it is carried.
Etendue CalculeEtendue(const Developpee& d) {
    Etendue e{{0, d.bas}, {d.largeur, d.haut}};
    if (!ABras()) return e;
    for (long i = 0; i <= etude.resultats.NombrePoints; i += etude.donnees.PointsParDegre)
        e.Contient(PivotDeveloppe(i), RayonPivot);
    return e;
}

void DessineFeuille(Dessin& dessin, PlanDessin& plan, const Developpee& d) {
    const PointDessin coins[] = {{0, d.bas}, {d.largeur, d.bas}, {d.largeur, d.haut}, {0, d.haut}};
    plan.Contour(coins, {Couleur::Came, 1.2}, true);
    for (int degres = 0; degres <= 360; degres += PasDegres) {
        const double x = d.largeur * degres / 360;
        plan.Ligne({x, d.bas}, {x, d.haut}, traitGraduation);
        const PointDessin pied = plan({x, d.bas});
        dessin.Texte({pied.x, pied.y + HauteurTexte}, std::to_string(degres) + "°", Ancrage::Centre, HauteurTexte,
                     Couleur::TexteDiscret);
    }
}

void DessineTours(PlanDessin& plan, const Developpee& d) {
    for (const TourDeveloppe& tour : d.tours) {
        plan.Contour(tour.primitif, {Couleur::Primitif, 1.0, true}, false);
        plan.Contour(tour.interieur, {Couleur::Came, 1.8}, false);
        plan.Contour(tour.exterieur, {Couleur::Courbe2, 1.8}, false);
        for (const auto& partie : PartiesTropCourbees(tour.interieur, tour.exterieur, tour.debut))
            plan.Contour(partie, traitFaute, false);
    }
}

void DessineSuiveur(Dessin& dessin, PlanDessin& plan, const Developpee& d, long i) {
    const PointDessin P = CentreGaletDeveloppe(i);
    plan.Ligne({P.x, d.bas}, {P.x, d.haut}, traitRepere);
    plan.Disque(P, etude.donnees.RayonGalet, {Couleur::Galet, 1.8});
    if (ABras()) {
        const PointDessin O1 = PivotDeveloppe(i), place = plan(O1);
        plan.Ligne(O1, P, {Couleur::Bras, 2.4});
        dessin.Disque(place, 3.5, {Couleur::Bras, 1.4});
        dessin.Texte({place.x, place.y + 1.2 * HauteurTexte}, "O1", Ancrage::Centre, HauteurTexte);
    }
    dessin.Disque(plan(P), 2.5, {Couleur::Axe, 1.2});
    const PointDessin tete = plan({P.x, d.haut});
    const std::string position = Format(etude.resultats.Points[i].Angle, "##0") + "°   " + Texte(244) + " " +
                                 Format(P.y, "0.00") + " " + Texte(UniteMm);
    const double demi = dessin.LargeurTexte(position, HauteurTexte) / 2 + 4;
    const double x = std::clamp(tete.x, demi, std::max(demi, dessin.Largeur() - demi));
    dessin.Texte({x, tete.y - HauteurTexte}, position, Ancrage::Centre, HauteurTexte, Couleur::Repere);
}

void DessineNoms(Dessin& dessin) {
    std::vector<EntreeLegende> legende = {{{Couleur::Came, 2.0}, Texte(291)},
                                          {{Couleur::Courbe2, 2.0}, Texte(290)},
                                          {{Couleur::Primitif, 2.0, true}, Texte(293)},
                                          {{Couleur::Galet, 2.0}, Texte(289)}};
    if (ABras()) legende.push_back({{Couleur::Bras, 2.0}, Texte(217)});
    if (!PlagesTropCourbees().empty()) legende.push_back({traitFaute, Texte(TexteCourbureFaible), Couleur::Repere});
    DessineLegende(dessin, {14, 16}, HauteurTexte, legende);
}

} // namespace

void DessinProfilCyl(Dessin& dessin, double angle) {
    const Developpee d = CalculeDeveloppee();
    if (d.tours.empty()) return;
    const long i = std::clamp(static_cast<long>(Arrondi(angle * etude.donnees.PointsParDegre)), 0L,
                              static_cast<long>(etude.resultats.NombrePoints));
    PlanDessin plan(dessin, CalculeEtendue(d), Marge, Bandeau);
    DessineFeuille(dessin, plan, d);
    DessineTours(plan, d);
    DessineSuiveur(dessin, plan, d, i);
    DessineNoms(dessin);
}
