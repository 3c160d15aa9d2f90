// The printed graphs: one box below the other over the same cam angle, each curve to its own vertical scale, zero at
// mid-height.
#include "core/Etude.h"
#include "cylindrical/MouvementCyl.h"
#include "data/Textes.h"
#include "data/Unites.h"
#include "drawing/Graduations.h"
#include "reports/CadrePages.h"
#include "studies/Graphique.h"
#include "studies/RapportsCames.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

// The box inside its frame, and the frames on the page, mm on A4.
constexpr double LargeurBoite = 160, HauteurBoite = 60;
constexpr double OrigineX = 20, OrigineY = 40; // of the curve: angle 0 and value 0
constexpr double Graduation = 2.5;             // length of a graduation line
constexpr double LargeurCadre = OrigineX + LargeurBoite + 4, HauteurCadre = 80, PremierCadre = 30;
constexpr int CadresPage = 3;
constexpr double HauteurTexte = 2.8, HauteurUnite = 2.4;
constexpr double Haut = OrigineY - HauteurBoite / 2, Bas = OrigineY + HauteurBoite / 2;

constexpr Trait traitGrille{Couleur::Graduation, 0.1}, traitAxe{Couleur::Axe, 0.25};
constexpr Couleur couleurs[] = {Couleur::Courbe1, Couleur::Courbe2, Couleur::Courbe3};

constexpr const char* MasqueAngle = "###";
constexpr const char* MasqueValeur = "###.##";

/// How the labels of a vertical axis are written. The unit "" stands for degrees.
struct Etiquette {
    const char* masque;
    const char* unite;
};

void DessineAxeAngles(Dessin& dessin) {
    const double total = etude.resultats.NombrePoints / static_cast<double>(etude.donnees.PointsParDegre);
    const double pas = PasGraduationAngle(total, 13);
    for (double angle = 0; angle <= total + 1e-9; angle += pas) {
        const double x = OrigineX + LargeurBoite * angle / total;
        dessin.Ligne({x, Haut}, {x, Bas}, traitGrille);
        dessin.Ligne({x, Bas}, {x, Bas + Graduation}, traitAxe);
        dessin.Texte({x, Bas + Graduation + 2}, Format(angle, "##0"), Ancrage::Centre, HauteurTexte);
    }
    dessin.Ligne({OrigineX, OrigineY}, {OrigineX + LargeurBoite, OrigineY}, traitAxe);
}

void DessineEtiquette(Dessin& dessin, double y, const std::string& valeur, const std::string& unite) {
    const double x = OrigineX - Graduation - 1;
    dessin.Ligne({OrigineX, y}, {OrigineX + LargeurBoite, y}, traitGrille);
    dessin.Ligne({OrigineX - Graduation, y}, {OrigineX, y}, traitAxe);
    // A long number is written smaller, so that it stays on the page.
    const double reduction = std::min(1.0, x / dessin.LargeurTexte(valeur, HauteurTexte));
    dessin.Texte({x, y}, valeur, Ancrage::Droite, HauteurTexte * reduction);
    dessin.Texte({x, y + HauteurTexte + 0.4}, unite, Ancrage::Droite, HauteurUnite, Couleur::TexteDiscret);
}

/// Values are labelled at their maximum and at the half; angles, of which whole degrees are written, at round ones.
void DessineAxeValeurs(Dessin& dessin, double maximum, const Etiquette& etiquette) {
    const bool degres = etiquette.unite[0] == '\0';
    const std::string unite = degres ? " " + Texte(UniteDegres) : etiquette.unite;
    DessineEtiquette(dessin, OrigineY, "0", {});
    if (maximum <= 0) return;
    const double pas = degres ? std::min(PasGraduationAngle(maximum, 3), maximum) : maximum / 2;
    for (double valeur = pas; valeur <= maximum * (1 + 1e-9); valeur += pas) {
        const double ecart = HauteurBoite / 2 * valeur / maximum;
        DessineEtiquette(dessin, OrigineY - ecart, Format(valeur, etiquette.masque), unite);
        DessineEtiquette(dessin, OrigineY + ecart, Format(-valeur, etiquette.masque), unite);
    }
}

void DessineCourbe(Dessin& dessin, const Courbe& courbe, Couleur couleur) {
    const double echelleX = LargeurBoite / etude.resultats.NombrePoints;
    const double echelleY = HauteurBoite / 2 / (courbe.maximum == 0.0 ? 1.0 : courbe.maximum);
    std::vector<PointDessin> points;
    points.reserve(static_cast<std::size_t>(etude.resultats.NombrePoints) + 1);
    for (long i = courbe.premier; i <= etude.resultats.NombrePoints; ++i)
        points.push_back({OrigineX + echelleX * static_cast<double>(i), OrigineY - echelleY * courbe.valeur(i)});
    dessin.Polyligne(points, {couleur, 0.4});
}

void DessineBoite(Dessin& dessin, const Courbe& courbe, const Etiquette& etiquette, Couleur couleur) {
    dessin.Texte({OrigineX, Haut - 4}, Texte(courbe.legende), Ancrage::Gauche, HauteurTexte + 0.6, couleur);
    DessineAxeAngles(dessin);
    DessineAxeValeurs(dessin, courbe.maximum, etiquette);
    const PointDessin coins[] = {{OrigineX, Haut},
                                 {OrigineX + LargeurBoite, Haut},
                                 {OrigineX + LargeurBoite, Bas},
                                 {OrigineX, Bas},
                                 {OrigineX, Haut}};
    dessin.Polyligne(coins, traitAxe);
    DessineCourbe(dessin, courbe, couleur);
}

void ImprimeGraphiques(const std::vector<Courbe>& courbes, const std::vector<Etiquette>& etiquettes) {
    Imprimante& imprimante = ImprimanteEnCours();
    DebutPageCames(Texte(TitreGraphiques));
    // On a page smaller than that of A4 the millimetre of the boxes is smaller too.
    const double unite = std::min(
        {1.0, imprimante.Largeur() / LargeurCadre, imprimante.Hauteur() / (PremierCadre + CadresPage * HauteurCadre)});
    for (std::size_t rang = 0; rang < courbes.size(); ++rang) {
        const double y = PremierCadre + HauteurCadre * static_cast<double>(rang);
        const auto cadre = imprimante.Feuille({0, y * unite}, imprimante.Largeur(), HauteurCadre * unite, unite);
        DessineBoite(*cadre, courbes[rang], etiquettes[rang], couleurs[rang]);
        if (rang + 1 == courbes.size())
            cadre->Texte({OrigineX + LargeurBoite, Bas + 9}, Texte(280), Ancrage::Droite, HauteurTexte);
    }
    imprimante.NouvellePage();
}

} // namespace

void ImprimeGraphiqueLineaire() {
    ImprimeGraphiques(CourbesGalet(), {{MasqueValeur, " mm"}, {MasqueValeur, " m/sec"}, {MasqueValeur, " m/sec²"}});
}

void ImprimeGraphiqueBras() {
    std::vector<Courbe> courbes = CourbesBras();
    courbes.front().maximum = AngleBrasExtreme(); // alone in its box, the angle has its own scale
    ImprimeGraphiques(courbes, {{MasqueAngle, ""}, {MasqueValeur, " rad/sec"}, {MasqueValeur, " rad/sec²"}});
}

void ImprimeGraphiqueForces() {
    std::vector<Courbe> courbes = CourbesForce();
    for (const Courbe& courbe : CourbesCouple()) courbes.push_back(courbe);
    ImprimeGraphiques(courbes, {{MasqueValeur, " N"}, {MasqueValeur, " Nm"}});
}
