#include "studies/Graphique.h"

#include "cams/Pente.h"
#include "core/Etude.h"
#include "cylindrical/DonneesCyl.h"
#include "cylindrical/MouvementCyl.h"
#include "data/Textes.h"
#include "drawing/Graduations.h"
#include "drawing/LegendeDessin.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {

constexpr Couleur couleurs[] = {Couleur::Courbe1, Couleur::Courbe2, Couleur::Courbe3};

/// The plot inside the surface, with what surrounds it; sizes follow the height of the text.
struct Cadre {
    double texte, gauche, droite, haut, bas;

    Cadre(const Dessin& dessin, std::size_t courbes)
        : texte(std::clamp(dessin.Hauteur() / 24.0, dessin.Largeur() / 90.0, 13.0)), gauche(6.0 * texte),
          droite(dessin.Largeur() - (courbes > 1 ? 6.0 : 1.5) * texte - (courbes > 2 ? 5.5 : 0.0) * texte),
          haut(2.8 * texte), bas(dessin.Hauteur() - 3.2 * texte) {}

    double Milieu() const { return (haut + bas) / 2; }
    double DemiHauteur() const { return (bas - haut) / 2; }
};

double AngleTotal() {
    return etude.resultats.NombrePoints / static_cast<double>(etude.donnees.PointsParDegre);
}

void DessineAxeHorizontal(Dessin& dessin, const Cadre& c) {
    const double total = AngleTotal(), pas = PasGraduationAngle(total, 13);
    for (double angle = 0; angle <= total + 1e-9; angle += pas) {
        const double x = c.gauche + (c.droite - c.gauche) * angle / total;
        dessin.Ligne({x, c.haut}, {x, c.bas}, {Couleur::Graduation, 1.0});
        dessin.Texte({x, c.bas + 0.8 * c.texte}, std::to_string(static_cast<int>(std::lround(angle))), Ancrage::Centre,
                     0.9 * c.texte, Couleur::TexteDiscret);
    }
    dessin.Texte({(c.gauche + c.droite) / 2, c.bas + 2.2 * c.texte}, Texte(280), Ancrage::Centre, c.texte);
}

/// The graduations of a curve, at its maximum and at the half: the first curve's on the left, the others' on the right.
void DessineGraduations(Dessin& dessin, const Cadre& c, double maximum, std::size_t rang) {
    for (int cran = -2; cran <= 2; ++cran) {
        const double y = c.Milieu() - c.DemiHauteur() * cran / 2.0;
        if (rang == 0) dessin.Ligne({c.gauche, y}, {c.droite, y}, {Couleur::Graduation, 1.0});
        if (cran == 0 && rang > 0) continue;
        const std::string nombre = cran == 0 ? "0" : Format(maximum * cran / 2.0, maximum < 10 ? "0.000" : "0.0");
        const double x = rang == 0 ? c.gauche - 0.6 * c.texte : c.droite + (rang == 1 ? 0.6 : 6.1) * c.texte;
        dessin.Texte({x, y}, nombre, rang == 0 ? Ancrage::Droite : Ancrage::Gauche, 0.9 * c.texte, couleurs[rang]);
    }
}

void DessineNoms(Dessin& dessin, const Cadre& c, std::span<const Courbe> courbes) {
    std::vector<EntreeLegende> entrees;
    for (std::size_t rang = 0; rang < courbes.size(); ++rang)
        entrees.push_back({{couleurs[rang], 2.0}, Texte(courbes[rang].legende), couleurs[rang]});
    DessineLegende(dessin, {c.gauche, c.haut - 1.4 * c.texte}, c.texte, entrees);
}

void DessineCourbe(Dessin& dessin, const Cadre& c, const Courbe& courbe, double maximum, std::size_t rang) {
    std::vector<PointDessin> points;
    points.reserve(static_cast<std::size_t>(etude.resultats.NombrePoints) + 1);
    const double pas = (c.droite - c.gauche) / etude.resultats.NombrePoints, echelle = c.DemiHauteur() / maximum;
    for (long i = courbe.premier; i <= etude.resultats.NombrePoints; ++i)
        points.push_back({c.gauche + pas * static_cast<double>(i), c.Milieu() - echelle * courbe.valeur(i)});
    dessin.Polyligne(points, {couleurs[rang], 1.6});
}

/// The forces of a cylindrical cam are calculated from the second point on.
long PremierEffort() {
    return etude.resultats.Developpee ? 1 : 0;
}

} // namespace

std::vector<Courbe> CourbesGalet() {
    // Heights may lie below 0 further than above it.
    const bool hauteurs = etude.resultats.Developpee;
    const double maximum =
        hauteurs ? std::max(etude.resultats.RayonMax, -etude.resultats.RayonMin) : etude.resultats.RayonMax;
    return {{hauteurs ? TexteHauteurMm : 281, maximum, [](long i) { return etude.resultats.Points[i].Rayon; }},
            {282, etude.resultats.VitesseRayonMax, [](long i) { return etude.resultats.Points[i].VitesseRayon; }},
            {283, etude.resultats.AccelRayonMax, [](long i) { return etude.resultats.Points[i].AccelRayon; }}};
}

std::vector<Courbe> CourbesBras() {
    // The angle of the arm is drawn to the scale of the radius, so that both graphs compare; on a cylinder no radius
    // holds for it.
    const double maximum = etude.resultats.Developpee ? AngleBrasExtreme() : etude.resultats.RayonMax;
    return {{284, maximum, [](long i) { return etude.resultats.Mouvement[i].Course; }},
            {285, etude.durables.LoiVitesseMax, [](long i) { return etude.resultats.Mouvement[i].Vitesse; }},
            {286, etude.durables.LoiAccelMax, [](long i) { return etude.resultats.Mouvement[i].Accel; }}};
}

std::vector<Courbe> CourbesForce() {
    return {{287, etude.resultats.ForceGaletMax, [](long i) { return etude.resultats.Points[i].ForceGalet; },
             PremierEffort()}};
}

std::vector<Courbe> CourbesCouple() {
    return {{288, etude.resultats.CoupleMax, [](long i) { return etude.resultats.Points[i].Couple; }, PremierEffort()}};
}

void DessineGraphique(Dessin& dessin, std::span<const Courbe> courbes) {
    if (etude.resultats.Points.Vide() || etude.resultats.NombrePoints == 0) return;
    const Cadre cadre(dessin, courbes.size());
    DessineAxeHorizontal(dessin, cadre);
    for (std::size_t rang = 0; rang < courbes.size(); ++rang) {
        const double maximum = courbes[rang].maximum == 0.0 ? 1.0 : courbes[rang].maximum;
        DessineGraduations(dessin, cadre, maximum, rang);
    }
    dessin.Ligne({cadre.gauche, cadre.Milieu()}, {cadre.droite, cadre.Milieu()}, {Couleur::Axe, 1.2});
    dessin.Ligne({cadre.gauche, cadre.haut}, {cadre.gauche, cadre.bas}, {Couleur::Axe, 1.2});
    for (std::size_t rang = 0; rang < courbes.size(); ++rang) {
        const double maximum = courbes[rang].maximum == 0.0 ? 1.0 : courbes[rang].maximum;
        DessineCourbe(dessin, cadre, courbes[rang], maximum, rang);
    }
    DessineNoms(dessin, cadre, courbes);
}
