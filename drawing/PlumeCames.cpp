#include "drawing/PlumeCames.h"

#include "core/Etude.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int PointsCercle = 48;
constexpr double EpaisseurTrait = 0.75; ///< units of the window
constexpr double EpaisseurMin = 1.0;    ///< units of the surface
constexpr double LongueurPointe = 3.2;

std::vector<PointFigure> PointsDuCercle(PointFigure centre, double rayon) {
    std::vector<PointFigure> points;
    for (int i = 0; i < PointsCercle; ++i) {
        const double angle = 2 * Pi * i / PointsCercle;
        points.push_back({centre.x + rayon * std::cos(angle), centre.y + rayon * std::sin(angle)});
    }
    return points;
}

double Vectoriel(PointFigure o, PointFigure a, PointFigure b) {
    return (a.x - o.x) * (b.y - o.y) - (a.y - o.y) * (b.x - o.x);
}

} // namespace

std::vector<PointFigure> Enveloppe(std::vector<PointFigure> points) {
    std::sort(points.begin(), points.end(),
              [](const PointFigure& a, const PointFigure& b) { return a.x < b.x || (a.x == b.x && a.y < b.y); });
    // Lower chain, then upper chain, each turning left only.
    std::vector<PointFigure> contour;
    const auto chaine = [&contour](auto debut, auto fin) {
        const std::size_t base = contour.size();
        for (auto p = debut; p != fin; ++p) {
            while (contour.size() >= base + 2 && Vectoriel(contour[contour.size() - 2], contour.back(), *p) <= 0)
                contour.pop_back();
            contour.push_back(*p);
        }
        contour.pop_back(); // the other chain starts with it
    };
    chaine(points.begin(), points.end());
    chaine(points.rbegin(), points.rend());
    return contour;
}

PlumeCames::PlumeCames(Dessin& dessin)
    : dessin_(dessin), echelle_(std::min(dessin.Largeur() / Largeur, dessin.Hauteur() / Hauteur)),
      epaisseur_(std::max(EpaisseurMin, EpaisseurTrait * echelle_)), x0_(dessin.Largeur() / 2),
      y0_(dessin.Hauteur() / 2) {}

std::vector<PointDessin> PlumeCames::Place(const std::vector<PointFigure>& points) const {
    std::vector<PointDessin> places;
    places.reserve(points.size());
    for (const PointFigure& p : points) places.push_back(Place(p));
    return places;
}

void PlumeCames::Ligne(PointFigure de, PointFigure a, Couleur couleur, bool pointille) {
    dessin_.Ligne(Place(de), Place(a), Style(couleur, pointille));
}

void PlumeCames::Courbe(const std::vector<PointFigure>& points, Couleur couleur, bool pointille) {
    dessin_.Polyligne(Place(points), Style(couleur, pointille));
}

void PlumeCames::Surface(const std::vector<PointFigure>& points, Couleur couleur) {
    dessin_.Surface(Place(points), Style(couleur));
}

void PlumeCames::Disque(PointFigure centre, double rayon, Couleur couleur) {
    dessin_.Disque(Place(centre), rayon * echelle_, Style(couleur));
}

void PlumeCames::Cercle(PointFigure centre, double rayon, Couleur couleur, bool pointille) {
    dessin_.Cercle(Place(centre), rayon * echelle_, Style(couleur, pointille));
}

void PlumeCames::Biellette(PointFigure a, double rayonA, PointFigure b, double rayonB, Couleur couleur) {
    std::vector<PointFigure> points = PointsDuCercle(a, rayonA);
    const std::vector<PointFigure> autres = PointsDuCercle(b, rayonB);
    points.insert(points.end(), autres.begin(), autres.end());
    Surface(Enveloppe(std::move(points)), couleur);
}

void PlumeCames::Pivot(PointFigure centre, double rayon) {
    Disque(centre, rayon, Couleur::Axe);
    Ligne({centre.x - rayon / 2, centre.y}, {centre.x + rayon / 2, centre.y}, Couleur::Axe);
    Ligne({centre.x, centre.y - rayon / 2}, {centre.x, centre.y + rayon / 2}, Couleur::Axe);
}

void PlumeCames::Bati(PointFigure de, PointFigure a) {
    constexpr double Pas = 2.6;
    const double longueur = std::hypot(a.x - de.x, a.y - de.y);
    const PointFigure u{(a.x - de.x) / longueur, (a.y - de.y) / longueur};
    Ligne(de, a, Couleur::Axe);
    for (double s = Pas / 2; s < longueur; s += Pas) {
        const PointFigure pied{de.x + s * u.x, de.y + s * u.y};
        Ligne(pied, {pied.x - (u.x - u.y) * Pas * 0.7, pied.y - (u.y + u.x) * Pas * 0.7}, Couleur::TexteDiscret);
    }
}

void PlumeCames::Pointe(PointFigure de, PointFigure p) {
    const double direction = std::atan2(p.y - de.y, p.x - de.x);
    for (const double ouverture : {0.45, -0.45})
        Ligne(p,
              {p.x - LongueurPointe * std::cos(direction + ouverture),
               p.y - LongueurPointe * std::sin(direction + ouverture)},
              Couleur::Repere);
}

void PlumeCames::Fleche(PointFigure centre, double rayon, double debut, double fin, bool deuxPointes) {
    constexpr int Pas = 24;
    std::vector<PointFigure> arc;
    for (int i = 0; i <= Pas; ++i) {
        const double angle = (debut + (fin - debut) * i / Pas) / RadDeg;
        arc.push_back({centre.x + rayon * std::cos(angle), centre.y + rayon * std::sin(angle)});
    }
    if (deuxPointes) return FlecheDouble(arc);
    Courbe(arc, Couleur::Repere);
    Pointe(arc[Pas - 2], arc.back());
}

void PlumeCames::FlecheDouble(const std::vector<PointFigure>& points) {
    Courbe(points, Couleur::Repere);
    Pointe(points[points.size() - 2], points.back());
    Pointe(points[1], points.front());
}
