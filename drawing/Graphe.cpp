#include "drawing/Graphe.h"

#include "core/Nombres.h"
#include "drawing/LegendeDessin.h"

#include <algorithm>
#include <cmath>

namespace {

/// Where a value lies from the start of an axis to its end, 0 to 1. Halves, because the ends may lie further apart than
/// any number.
double Part(double valeur, const AxeGraphe& axe) {
    return (valeur / 2 - axe.mini / 2) / (axe.maxi / 2 - axe.mini / 2);
}

/// A graph on its surface: the strokes of its parts, in the order in which they lie on each other.
class TraceurGraphe {
public:
    TraceurGraphe(Dessin& dessin, const Graphe& graphe, const PlaceGraphe& place)
        : dessin_(dessin), g_(graphe),
          p_(place), traitGrille_{Couleur::Graduation, place.traitGrille}, traitAxe_{Couleur::Axe, place.traitAxe} {}

    void GraduationsHorizontales();
    void AxeDesValeurs();
    void GraduationsVerticales(std::size_t rang);
    void Cadre();
    void Limite(const LimiteGraphe& limite);
    void Courbe(const CourbeGraphe& courbe);
    void MarqueExtremes(const CourbeGraphe& courbe);
    void Titre();

private:
    double X(double valeur) const { return p_.gauche + (p_.droite - p_.gauche) * Part(valeur, g_.horizontal); }
    double Y(double valeur, std::size_t rang) const {
        return p_.bas - (p_.bas - p_.haut) * Part(valeur, g_.verticaux[rang]);
    }
    /// Height of the horizontal axis: at 0, or at the edge that is nearest to it.
    double YAxe() const {
        const AxeGraphe& axe = g_.verticaux.front();
        return Y(std::clamp(0.0, std::min(axe.mini, axe.maxi), std::max(axe.mini, axe.maxi)), 0);
    }
    void Marque(const CourbeGraphe& courbe, PointDessin extreme, bool dessus);

    Dessin& dessin_;
    const Graphe& g_;
    const PlaceGraphe& p_;
    const Trait traitGrille_, traitAxe_;
};

void TraceurGraphe::GraduationsHorizontales() {
    for (const Graduation& graduation : g_.horizontal.graduations) {
        const double x = X(graduation.valeur);
        dessin_.Ligne({x, p_.haut}, {x, p_.bas}, traitGrille_);
        if (p_.cran > 0) dessin_.Ligne({x, p_.bas}, {x, p_.bas + p_.cran}, traitAxe_);
        if (!graduation.texte.empty())
            dessin_.Texte({x, p_.bas + p_.sousAxe}, graduation.texte, Ancrage::Centre, p_.nombres,
                          g_.horizontal.couleur);
    }
    if (!g_.horizontal.legende.empty())
        dessin_.Texte(p_.legende, g_.horizontal.legende, p_.ancrageLegende, p_.hauteurLegende);
}

void TraceurGraphe::AxeDesValeurs() {
    dessin_.Ligne({p_.gauche, YAxe()}, {p_.droite, YAxe()}, traitAxe_);
}

/// The first axis draws the lines; the others write their values only, and leave the 0 to it.
void TraceurGraphe::GraduationsVerticales(std::size_t rang) {
    const AxeGraphe& axe = g_.verticaux[rang];
    const bool aGauche = rang == 0;
    const double x =
        aGauche ? p_.gauche - p_.coteAxe : p_.droite + p_.coteAxe + p_.entreAxes * static_cast<double>(rang - 1);
    const Ancrage ancrage = aGauche ? Ancrage::Droite : Ancrage::Gauche;
    for (const Graduation& graduation : axe.graduations) {
        const double y = Y(graduation.valeur, rang);
        if (!aGauche && graduation.valeur == 0.0) continue;
        if (aGauche) dessin_.Ligne({p_.gauche, y}, {p_.droite, y}, traitGrille_);
        if (aGauche && p_.cran > 0) dessin_.Ligne({p_.gauche - p_.cran, y}, {p_.gauche, y}, traitAxe_);
        // A long number is written smaller, so that it stays on the surface.
        const double reduction = aGauche ? std::min(1.0, x / dessin_.LargeurTexte(graduation.texte, p_.nombres)) : 1.0;
        dessin_.Texte({x, y}, graduation.texte, ancrage, p_.nombres * reduction, axe.couleur);
        if (!axe.unite.empty() && graduation.valeur != 0.0)
            dessin_.Texte({x, y + 8.0 / 7 * p_.nombres}, axe.unite, ancrage, 6.0 / 7 * p_.nombres,
                          Couleur::TexteDiscret);
    }
}

void TraceurGraphe::Cadre() {
    const PointDessin coins[] = {
        {p_.gauche, p_.haut}, {p_.droite, p_.haut}, {p_.droite, p_.bas}, {p_.gauche, p_.bas}, {p_.gauche, p_.haut}};
    if (p_.cadre)
        dessin_.Polyligne(coins, traitAxe_);
    else
        dessin_.Ligne(coins[0], coins[3], traitAxe_);
}

void TraceurGraphe::Limite(const LimiteGraphe& limite) {
    const double y = Y(limite.valeur, limite.axe);
    dessin_.Ligne({p_.gauche, y}, {p_.droite, y}, {limite.couleur, p_.traitAxe, true});
    dessin_.Texte({p_.droite - 0.4 * p_.texte, y - 0.7 * p_.texte}, limite.legende, Ancrage::Droite, p_.nombres,
                  limite.couleur);
}

void TraceurGraphe::Courbe(const CourbeGraphe& courbe) {
    std::vector<PointDessin> places;
    places.reserve(courbe.points.size());
    for (const PointDessin& p : courbe.points) places.push_back({X(p.x), Y(p.y, courbe.axe)});
    dessin_.Polyligne(places, {courbe.couleur, p_.traitCourbe});
}

void TraceurGraphe::MarqueExtremes(const CourbeGraphe& courbe) {
    if (courbe.extremes == Extremes::Aucun || courbe.points.empty()) return;
    const auto [mini, maxi] = ChercheExtremes(courbe.points);
    if (mini.y == maxi.y) return;
    const auto marque = [&](PointDessin extreme) {
        return extreme.y != 0.0 && (extreme.x != courbe.points.front().x || courbe.extremes == Extremes::Tous);
    };
    if (marque(maxi)) Marque(courbe, maxi, true);
    if (marque(mini)) Marque(courbe, mini, false);
}

/// A dot on the curve, its value to four digits that count and its place beside it, inside the graph.
void TraceurGraphe::Marque(const CourbeGraphe& courbe, PointDessin extreme, bool dessus) {
    const int decimales = 3 - static_cast<int>(std::floor(std::log10(std::abs(extreme.y))));
    const std::string texte =
        TexteDecimales(extreme.y, std::min(decimales, 9)) + "  (" + StrTrim(extreme.x) + g_.horizontal.unite + ")";
    const PointDessin p{X(extreme.x), Y(extreme.y, courbe.axe)};
    const double demi = dessin_.LargeurTexte(texte, p_.texte) / 2;
    dessin_.Disque(p, 0.28 * p_.texte, {courbe.couleur, 0.15 * p_.texte});
    dessin_.Texte({std::clamp(p.x, p_.gauche + demi, p_.droite - demi), p.y + (dessus ? -1.0 : 1.0) * p_.texte}, texte,
                  Ancrage::Centre, p_.texte, courbe.couleur);
}

/// The title, and behind it the curves that have a name.
void TraceurGraphe::Titre() {
    PointDessin depart{p_.gauche, p_.haut - p_.titre};
    if (!g_.titre.empty()) {
        dessin_.Texte(depart, g_.titre, Ancrage::Gauche, p_.texte, g_.couleurTitre);
        depart.x += dessin_.LargeurTexte(g_.titre, p_.texte) + 2 * p_.texte;
    }
    std::vector<EntreeLegende> entrees;
    for (const CourbeGraphe& courbe : g_.courbes)
        if (!courbe.nom.empty()) entrees.push_back({{courbe.couleur, 2.0}, courbe.nom, courbe.couleur});
    if (!entrees.empty()) DessineLegende(dessin_, depart, p_.texte, entrees);
}

} // namespace

void DessineGraphe(Dessin& dessin, const Graphe& graphe, const PlaceGraphe& place) {
    TraceurGraphe traceur(dessin, graphe, place);
    traceur.GraduationsHorizontales();
    // In a frame it is the frame that stands out, and the axis lies below the lines of the grid.
    if (place.cadre) traceur.AxeDesValeurs();
    for (std::size_t rang = 0; rang < graphe.verticaux.size(); ++rang) traceur.GraduationsVerticales(rang);
    if (!place.cadre) traceur.AxeDesValeurs();
    traceur.Cadre();
    for (const LimiteGraphe& limite : graphe.limites) traceur.Limite(limite);
    for (const CourbeGraphe& courbe : graphe.courbes) {
        traceur.Courbe(courbe);
        traceur.MarqueExtremes(courbe);
    }
    traceur.Titre();
}
