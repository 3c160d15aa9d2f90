#include "laws/DessinLoi.h"

#include "data/Textes.h"
#include "laws/EtudesLois.h"
#include "reports/Graduations.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace {

constexpr double PointLoi::*grandeurs[] = {&PointLoi::Course, &PointLoi::Vitesse, &PointLoi::Accel};
constexpr Couleur couleurs[] = {Couleur::Courbe1, Couleur::Courbe2, Couleur::Courbe3};

/// What a graph shows: the member of the motion, its name and its unit.
struct CourbeLoi {
    double PointLoi::*membre;
    int texte; ///< text number
    Grandeur grandeur;
    Couleur couleur;
    const char* masque; ///< of its extreme values
};
constexpr CourbeLoi courbes[] = {
    {&PointLoi::Course, 250, Grandeur::Sortie, couleurs[0], "0.000"},
    {&PointLoi::Vitesse, 225, Grandeur::Vitesse, couleurs[1], "0.000"},
    {&PointLoi::Accel, 226, Grandeur::Accel, couleurs[2], "0.00"},
};

constexpr double TraitMaxi = 1.4; ///< of a picture that fills a whole sheet

/// What is that much smaller than the largest value is a zero that was rounded.
constexpr double Arrondi0 = 1e-9;

/// Points of the lowest and of the highest value of a curve, the first of equals.
struct Extremes {
    long mini = 0, maxi = 0;
};

Extremes ChercheExtremes(const Tableau<PointLoi>& table, double PointLoi::*membre) {
    Extremes e;
    for (long i = 1; i <= table.BorneHaute(); ++i) {
        if (table[i].*membre > table[e.maxi].*membre) e.maxi = i;
        if (table[i].*membre < table[e.mini].*membre) e.mini = i;
    }
    return e;
}

/// One graph on the surface: where it lies, and the values at its lower and upper edge.
struct Boite {
    double texte, gauche, droite, haut, bas;
    double mini = 0, maxi = 0, pas = 1; ///< values at the edges, step between graduations

    double Y(double valeur) const { return bas - (bas - haut) * (valeur - mini) / (maxi - mini); }
    double X(long i) const { return gauche + (droite - gauche) * static_cast<double>(i) / etude.NombrePoints; }

    /// From graduation to graduation around the values and 0, with room for the marks of the extremes.
    void Gradue(double petit, double grand) {
        const double etendue = grand - petit > 0.0 ? grand - petit : 1.0;
        const double marge = 0.1 * etendue;
        pas = PasGraduation(1.2 * etendue, 5);
        mini = petit < 0.0 ? pas * std::floor((petit - marge) / pas) : 0.0;
        maxi = pas * std::ceil((std::max(grand, 0.0) + marge) / pas);
    }
};

/// Decimals of a graduation: as many as its step has.
std::string TexteGraduation(double valeur, double pas) {
    const int decimales = std::max(0, static_cast<int>(-std::floor(std::log10(pas) + 1e-9)));
    std::string masque = "0";
    if (decimales > 0) masque += "." + std::string(static_cast<std::size_t>(decimales), '0');
    return Format(std::abs(valeur) < pas / 2 ? 0.0 : valeur, masque);
}

void DessineAngles(Dessin& dessin, const Boite& b, bool nombres) {
    const double total = static_cast<double>(etude.NombrePoints) / etude.PointsParDegre;
    const double pas = PasGraduationAngle(total, 13);
    for (double angle = 0; angle <= total + 1e-9; angle += pas) {
        const double x = b.gauche + (b.droite - b.gauche) * angle / total;
        dessin.Ligne({x, b.haut}, {x, b.bas}, {Couleur::Graduation, 0.08 * b.texte});
        if (nombres)
            dessin.Texte({x, b.bas + 0.9 * b.texte}, Format(angle, "##0"), Ancrage::Centre, 0.9 * b.texte,
                         Couleur::TexteDiscret);
    }
}

void DessineValeurs(Dessin& dessin, const Boite& b) {
    for (double valeur = b.mini; valeur <= b.maxi + b.pas / 2; valeur += b.pas) {
        const double y = b.Y(valeur);
        dessin.Ligne({b.gauche, y}, {b.droite, y}, {Couleur::Graduation, 0.08 * b.texte});
        dessin.Texte({b.gauche - 0.6 * b.texte, y}, TexteGraduation(valeur, b.pas), Ancrage::Droite, 0.9 * b.texte,
                     Couleur::TexteDiscret);
    }
    dessin.Ligne({b.gauche, b.Y(0)}, {b.droite, b.Y(0)}, {Couleur::Axe, 0.1 * b.texte});
    dessin.Ligne({b.gauche, b.haut}, {b.gauche, b.bas}, {Couleur::Axe, 0.1 * b.texte});
}

/// A dot on the curve, its value and its cam angle beside it, inside the graph.
void MarqueExtreme(Dessin& dessin, const Boite& b, const CourbeLoi& courbe, long i, bool dessus) {
    const double valeur = etude.Mouvement[i].*courbe.membre;
    const PointDessin p{b.X(i), b.Y(valeur)};
    const std::string texte = Format(valeur, courbe.masque) + "  (" + StrTrim(etude.Points[i].Angle) + "°)";
    const double demi = dessin.LargeurTexte(texte, b.texte) / 2;
    dessin.Disque(p, 0.28 * b.texte, {courbe.couleur, 0.15 * b.texte});
    dessin.Texte({std::clamp(p.x, b.gauche + demi, b.droite - demi), p.y + (dessus ? -1.0 : 1.0) * b.texte}, texte,
                 Ancrage::Centre, b.texte, courbe.couleur);
}

void DessineCourbe(Dessin& dessin, Boite b, const CourbeLoi& courbe, bool derniere) {
    const Extremes extremes = ChercheExtremes(etude.Mouvement, courbe.membre);
    const double maxi = etude.Mouvement[extremes.maxi].*courbe.membre;
    double mini = etude.Mouvement[extremes.mini].*courbe.membre;
    if (std::abs(mini) < Arrondi0 * std::abs(maxi)) mini = 0.0;
    b.Gradue(mini, maxi);
    DessineAngles(dessin, b, derniere);
    DessineValeurs(dessin, b);
    dessin.Texte({b.gauche, b.haut - 0.9 * b.texte},
                 Texte(courbe.texte) + " (" + Texte(UniteLoi(courbe.grandeur)) + ")", Ancrage::Gauche, b.texte,
                 courbe.couleur);
    std::vector<PointDessin> points;
    points.reserve(static_cast<std::size_t>(etude.NombrePoints) + 1);
    for (long i = 0; i <= etude.NombrePoints; ++i) points.push_back({b.X(i), b.Y(etude.Mouvement[i].*courbe.membre)});
    dessin.Polyligne(points, {courbe.couleur, 0.14 * b.texte});
    if (maxi == mini) return;
    // A lift starts from its lowest value: the mark would only repeat what was typed in.
    MarqueExtreme(dessin, b, courbe, extremes.maxi, true);
    if (mini < 0.0 && extremes.mini > 0) MarqueExtreme(dessin, b, courbe, extremes.mini, false);
}

} // namespace

void DessineLoi(Dessin& dessin, const Tableau<PointLoi>& table) {
    if (table.BorneHaute() < 1) return;
    const double marge = 0.06 * dessin.Hauteur(), trait = std::min(0.012 * dessin.Hauteur(), TraitMaxi);
    const double largeur = dessin.Largeur() - 2 * marge, hauteur = dessin.Hauteur() - 2 * marge;
    const double milieu = dessin.Hauteur() / 2;
    dessin.Ligne({marge, milieu}, {marge + largeur, milieu}, {Couleur::Graduation, trait});
    dessin.Ligne({marge, marge}, {marge, marge + hauteur}, {Couleur::Graduation, trait});
    for (std::size_t rang = 0; rang < std::size(grandeurs); ++rang) {
        const Extremes extremes = ChercheExtremes(table, grandeurs[rang]);
        const double maximum =
            std::max(std::abs(table[extremes.mini].*grandeurs[rang]), std::abs(table[extremes.maxi].*grandeurs[rang]));
        if (maximum == 0.0) continue;
        std::vector<PointDessin> points;
        for (long i = 0; i <= table.BorneHaute(); ++i)
            points.push_back({marge + largeur * static_cast<double>(i) / static_cast<double>(table.BorneHaute()),
                              milieu - hauteur / 2 * (table[i].*grandeurs[rang]) / maximum});
        dessin.Polyligne(points, {couleurs[rang], rang == 0 ? 2 * trait : 1.4 * trait});
    }
}

void DessineCourbes(Dessin& dessin) {
    if (etude.Mouvement.BorneHaute() < 1 || etude.Mouvement.BorneHaute() != etude.NombrePoints) return;
    const double texte = std::min(dessin.Largeur() / 62, dessin.Hauteur() / 54);
    const double pied = 3.2 * texte, titre = 2.2 * texte;
    const double hauteur = (dessin.Hauteur() - pied) / static_cast<double>(std::size(courbes));
    for (std::size_t rang = 0; rang < std::size(courbes); ++rang) {
        const double haut = hauteur * static_cast<double>(rang);
        const Boite boite{texte, 6.5 * texte, dessin.Largeur() - 1.5 * texte, haut + titre,
                          haut + hauteur - 0.4 * texte};
        DessineCourbe(dessin, boite, courbes[rang], rang + 1 == std::size(courbes));
    }
    dessin.Texte({dessin.Largeur() / 2, dessin.Hauteur() - 0.8 * texte}, Texte(280), Ancrage::Centre, texte);
}
