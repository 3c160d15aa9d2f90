#include "conjugate/DessinPaire.h"

#include "conjugate/DonneesPaire.h"
#include "conjugate/FermeturePaire.h"
#include "data/Textes.h"
#include "drawing/LegendeDessin.h"
#include "drawing/PlanDessin.h"

#include <algorithm>

namespace {

constexpr double Marge = 14, Bandeau = 26;
constexpr Couleur CouleursCames[] = {Couleur::Came, Couleur::Courbe2};
constexpr int NomsGalets[] = {486, 487}; // "O1 - G1", "O1 - G2"

PlanDessin FaitPlan(Dessin& dessin) {
    return {dessin, EtenduePaire(), Marge, Bandeau};
}

void NommePoint(Dessin& dessin, const PlanDessin& vue, PointDessin p, const std::string& nom) {
    const PointDessin place = vue(p);
    dessin.Texte({place.x + 8, place.y + 12}, nom, Ancrage::Gauche, 12);
}

/// "G1" out of "O1 - G1".
std::string NomGalet(std::size_t rang) {
    const std::string distance = Texte(NomsGalets[rang]);
    return distance.substr(distance.rfind(' ') + 1);
}

void DessineDoubleBras(Dessin& dessin, PlanDessin& vue, long i) {
    const PointDessin O1 = PivotPaire();
    for (std::size_t rang = 0; rang < etude.passes.size(); ++rang) {
        const PointDessin G = CentreGalet(rang, i);
        vue.Disque(G, etude.passes[rang].RayonGalet, {Couleur::Galet, 1.6});
        vue.Ligne(O1, G, {Couleur::Bras, 2.4});
        dessin.Disque(vue(G), 3.5, {Couleur::Bras, 1.4});
        NommePoint(dessin, vue, G, NomGalet(rang));
    }
    dessin.Disque(vue(O1), 3.5, {Couleur::Bras, 1.4});
    NommePoint(dessin, vue, O1, "O1");
}

void DessineNoms(Dessin& dessin) {
    const EntreeLegende legende[] = {
        {{CouleursCames[CameGuide], 2.0}, Texte(PassesPaire[CameGuide].titre)},
        {{CouleursCames[CameSuiveuse], 2.0}, Texte(PassesPaire[CameSuiveuse].titre)},
        {{Couleur::Primitif, 2.0, true}, Texte(293)},
        {{Couleur::Galet, 2.0}, Texte(289)},
        {{Couleur::Bras, 2.0}, Texte(217)},
    };
    DessineLegende(dessin, {14, 16}, 12, legende);
}

} // namespace

PointDessin PivotPaire() {
    return {-etude.donnees.CoteA, -etude.donnees.CoteB};
}

PointDessin CentreGalet(std::size_t rang, long i) {
    const PositionGalet p = CentreGaletPaire(etude.passes.at(rang), i);
    return {p.x, p.y};
}

ContoursPaire CalculeContoursPaire(std::size_t rang, long points) {
    const PasseEtude& passe = etude.passes.at(rang);
    const long N = passe.resultats.NombrePoints, pas = points > 0 ? std::max(1L, N / points) : 1;
    ContoursPaire contours{{}, {}, DirectionGalet(passe, 0)};
    const auto ajoute = [&](long i) {
        const Point& p = passe.resultats.Points[i];
        contours.profil.push_back({passe.resultats.Profil[i].XInterieur, passe.resultats.Profil[i].YInterieur});
        contours.primitif.push_back(Polaire({0, 0}, p.Rayon, p.Angle));
    };
    for (long i = 0; i < N; i += pas) ajoute(i);
    ajoute(N);
    return contours;
}

Etendue EtenduePaire() {
    double rayon = 0;
    for (const PasseEtude& passe : etude.passes) rayon = std::max(rayon, passe.resultats.RayonMax);
    const double demi = rayon + etude.donnees.RayonGaletG1 + 10.0;
    Etendue e{{-demi, -demi}, {demi, demi}};
    e.Contient(PivotPaire(), 8);
    for (std::size_t rang = 0; rang < etude.passes.size(); ++rang) {
        const PasseEtude& passe = etude.passes[rang];
        for (long i = 0; i <= passe.resultats.NombrePoints; i += etude.donnees.PointsParDegre)
            e.Contient(CentreGalet(rang, i), passe.RayonGalet);
    }
    return e;
}

double EchellePaire(double largeur, double hauteur) {
    const Etendue e = EtenduePaire();
    return std::min((largeur - 2 * Marge) / e.Largeur(), (hauteur - 2 * Marge - Bandeau) / e.Hauteur());
}

void DessinePaire(Dessin& dessin, double angle) {
    constexpr long pointsTrace = 720; // finer than what a screen shows of a turn
    if (etude.passes.empty() || etude.passes.front().resultats.NombrePoints == 0) return;
    const ResultatsEtude& guide = etude.passes[CameGuide].resultats;
    const long i = std::clamp(static_cast<long>(Arrondi(angle * etude.donnees.PointsParDegre)), 0L,
                              static_cast<long>(guide.NombrePoints));
    PlanDessin vue = FaitPlan(dessin);
    const double arbre = DirectionGalet(etude.passes[CameGuide], i) - DirectionGalet(etude.passes[CameGuide], 0) -
                         guide.Points[i].Angle / RadDeg;
    for (std::size_t rang = 0; rang < etude.passes.size(); ++rang) {
        const ContoursPaire contours = CalculeContoursPaire(rang, pointsTrace);
        const double radians = contours.calage + arbre;
        // Outlines alone: one cam lies behind the other.
        vue.Contour(contours.profil, {CouleursCames[rang], 1.8}, false, radians);
        vue.Contour(contours.primitif, {Couleur::Primitif, 1.0, true}, false, radians);
        vue.Ligne({0, 0}, Tourne(contours.profil.front(), radians), {Couleur::Repere, 1.0});
    }
    const double croix = guide.RayonMin / 6;
    vue.Ligne({-croix, 0}, {croix, 0}, {Couleur::Axe, 1.0});
    vue.Ligne({0, -croix}, {0, croix}, {Couleur::Axe, 1.0});
    NommePoint(dessin, vue, {0, 0}, "O");
    DessineDoubleBras(dessin, vue, i);
    DessineNoms(dessin);
}
