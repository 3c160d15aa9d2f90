#include "laws/DessinLoi.h"

#include "data/Textes.h"
#include "data/Unites.h"
#include "drawing/Graduations.h"
#include "drawing/LegendeDessin.h"
#include "laws/EtudesLois.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace {

/// A curve: the member of the law or of the motion, its name, what it measures.
struct CourbeLoi {
    double PointLoi::*membre;
    int texte; ///< text number
    Grandeur grandeur;
    Couleur couleur;
};
constexpr CourbeLoi courbes[] = {
    {&PointLoi::Course, 250, Grandeur::Sortie, Couleur::Courbe1},
    {&PointLoi::Vitesse, 225, Grandeur::Vitesse, Couleur::Courbe2},
    {&PointLoi::Accel, 226, Grandeur::Accel, Couleur::Courbe3},
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

/// Largest magnitude of a curve.
double PlusGrand(const Tableau<PointLoi>& table, const Extremes& e, double PointLoi::*membre) {
    return std::max(std::abs(table[e.mini].*membre), std::abs(table[e.maxi].*membre));
}

/// One graph on the surface: where it lies, and the values at its lower and upper edge.
struct Boite {
    double texte, gauche, droite, haut, bas;
    double mini = 0, maxi = 0, pas = 1; ///< values at the edges, step between graduations

    double Y(double valeur) const { return bas - (bas - haut) * (valeur - mini) / (maxi - mini); }
    double X(long i) const {
        return gauche + (droite - gauche) * static_cast<double>(i) / etude.resultats.NombrePoints;
    }

    /// From graduation to graduation around the values, with room for the marks of the extremes; around 0 too, unless
    /// the values lie far from it.
    void Gradue(double petit, double grand) {
        if (petit - (grand - petit) <= 0.0 && grand + (grand - petit) >= 0.0) {
            petit = std::min(petit, 0.0);
            grand = std::max(grand, 0.0);
        }
        const double etendue = grand > petit ? grand - petit : std::max(1.0, std::abs(grand));
        const double marge = 0.1 * etendue;
        pas = PasGraduation(1.2 * etendue, 5);
        mini = petit == 0.0 ? 0.0 : pas * std::floor((petit - marge) / pas);
        maxi = pas * std::ceil((grand + marge) / pas);
    }
};

std::string TexteDecimales(double valeur, int decimales) {
    std::string masque = "0";
    if (decimales > 0) masque += "." + std::string(static_cast<std::size_t>(decimales), '0');
    return Format(valeur, masque);
}

/// As many decimals as the step has.
std::string TexteGraduation(double valeur, double pas) {
    const int decimales = static_cast<int>(-std::floor(std::log10(pas) + 1e-9));
    return TexteDecimales(std::abs(valeur) < pas / 2 ? 0.0 : valeur, decimales);
}

/// Four digits that count.
std::string TexteExtreme(double valeur) {
    const int decimales = 3 - static_cast<int>(std::floor(std::log10(std::abs(valeur))));
    return TexteDecimales(valeur, std::min(decimales, 9));
}

void DessineAngles(Dessin& dessin, const Boite& b, bool nombres) {
    const double total = static_cast<double>(etude.resultats.NombrePoints) / etude.donnees.PointsParDegre;
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
    const double axe = b.Y(std::clamp(0.0, b.mini, b.maxi));
    dessin.Ligne({b.gauche, axe}, {b.droite, axe}, {Couleur::Axe, 0.1 * b.texte});
    dessin.Ligne({b.gauche, b.haut}, {b.gauche, b.bas}, {Couleur::Axe, 0.1 * b.texte});
}

/// A dot on the curve, its value and its cam angle beside it, inside the graph.
void MarqueExtreme(Dessin& dessin, const Boite& b, const CourbeLoi& courbe, long i, bool dessus) {
    const double valeur = etude.resultats.Mouvement[i].*courbe.membre;
    const PointDessin p{b.X(i), b.Y(valeur)};
    const std::string texte = TexteExtreme(valeur) + "  (" + StrTrim(etude.resultats.Points[i].Angle) + "°)";
    const double demi = dessin.LargeurTexte(texte, b.texte) / 2;
    dessin.Disque(p, 0.28 * b.texte, {courbe.couleur, 0.15 * b.texte});
    dessin.Texte({std::clamp(p.x, b.gauche + demi, b.droite - demi), p.y + (dessus ? -1.0 : 1.0) * b.texte}, texte,
                 Ancrage::Centre, b.texte, courbe.couleur);
}

void DessineCourbe(Dessin& dessin, Boite b, const CourbeLoi& courbe, bool derniere) {
    const Extremes extremes = ChercheExtremes(etude.resultats.Mouvement, courbe.membre);
    const double zero = Arrondi0 * PlusGrand(etude.resultats.Mouvement, extremes, courbe.membre);
    const auto valeur = [&](long i) {
        const double v = etude.resultats.Mouvement[i].*courbe.membre;
        return std::abs(v) < zero ? 0.0 : v;
    };
    const double mini = valeur(extremes.mini), maxi = valeur(extremes.maxi);
    b.Gradue(mini, maxi);
    DessineAngles(dessin, b, derniere);
    DessineValeurs(dessin, b);
    dessin.Texte({b.gauche, b.haut - 0.9 * b.texte},
                 Texte(courbe.texte) + " (" + Texte(UniteLoi(courbe.grandeur)) + ")", Ancrage::Gauche, b.texte,
                 courbe.couleur);
    std::vector<PointDessin> points;
    points.reserve(static_cast<std::size_t>(etude.resultats.NombrePoints) + 1);
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i)
        points.push_back({b.X(i), b.Y(etude.resultats.Mouvement[i].*courbe.membre)});
    dessin.Polyligne(points, {courbe.couleur, 0.14 * b.texte});
    // The value that the lift starts from was typed in, and 0 is on the axis.
    const auto marque = [&](long i) { return valeur(i) != 0.0 && (i > 0 || courbe.membre != &PointLoi::Course); };
    if (maxi == mini) return;
    if (marque(extremes.maxi)) MarqueExtreme(dessin, b, courbe, extremes.maxi, true);
    if (marque(extremes.mini)) MarqueExtreme(dessin, b, courbe, extremes.mini, false);
}

/// The unit law inside a margin.
void DessineImage(Dessin& dessin, const Tableau<PointLoi>& table, double marge) {
    if (table.BorneHaute() < 1) return;
    const double trait = std::min(0.012 * dessin.Hauteur(), TraitMaxi);
    const double largeur = dessin.Largeur() - 2 * marge, hauteur = dessin.Hauteur() - 2 * marge;
    const double milieu = dessin.Hauteur() / 2;
    dessin.Ligne({marge, milieu}, {marge + largeur, milieu}, {Couleur::Graduation, trait});
    dessin.Ligne({marge, marge}, {marge, marge + hauteur}, {Couleur::Graduation, trait});
    for (const CourbeLoi& courbe : courbes) {
        const double maximum = PlusGrand(table, ChercheExtremes(table, courbe.membre), courbe.membre);
        if (maximum == 0.0) continue;
        std::vector<PointDessin> points;
        for (long i = 0; i <= table.BorneHaute(); ++i)
            points.push_back({marge + largeur * static_cast<double>(i) / static_cast<double>(table.BorneHaute()),
                              milieu - hauteur / 2 * (table[i].*courbe.membre) / maximum});
        dessin.Polyligne(points, {courbe.couleur, courbe.membre == &PointLoi::Course ? 2 * trait : 1.4 * trait});
    }
}

void DessineNoms(Dessin& dessin, double y, double hauteur) {
    std::vector<EntreeLegende> entrees;
    for (const CourbeLoi& courbe : courbes)
        entrees.push_back({{courbe.couleur, 2.0}, Texte(courbe.texte), courbe.couleur});
    DessineLegende(dessin, {hauteur / 2, y}, hauteur, entrees);
}

} // namespace

void DessineLoi(Dessin& dessin, const Tableau<PointLoi>& table) {
    DessineImage(dessin, table, 0.06 * dessin.Hauteur());
}

void DessineLoiNommee(Dessin& dessin, const Tableau<PointLoi>& table) {
    const double tete = dessin.Hauteur() / 20;
    DessineNoms(dessin, tete, 0.6 * tete);
    DessineImage(dessin, table, 1.6 * tete);
}

void DessineNomsCourbes(Dessin& dessin) {
    DessineNoms(dessin, dessin.Hauteur() / 2, 0.6 * dessin.Hauteur());
}

void DessineCourbes(Dessin& dessin) {
    if (etude.resultats.Mouvement.BorneHaute() < 1 ||
        etude.resultats.Mouvement.BorneHaute() != etude.resultats.NombrePoints)
        return;
    const double texte = std::min(dessin.Largeur() / 62, dessin.Hauteur() / 54);
    const double pied = 3.2 * texte, titre = 2.2 * texte;
    const double hauteur = (dessin.Hauteur() - pied) / static_cast<double>(std::size(courbes));
    for (std::size_t rang = 0; rang < std::size(courbes); ++rang) {
        const double haut = hauteur * static_cast<double>(rang);
        const Boite boite{texte, 6.5 * texte, dessin.Largeur() - 1.5 * texte, haut + titre,
                          haut + hauteur - 0.4 * texte};
        DessineCourbe(dessin, boite, courbes[rang], rang + 1 == std::size(courbes));
    }
    dessin.Texte({dessin.Largeur() / 2, dessin.Hauteur() - 0.8 * texte}, Texte(339) + " (" + Texte(UniteDegres) + ")",
                 Ancrage::Centre, texte);
}
