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
#include <vector>

namespace {

// The box inside its frame, and the frames on the page, mm on A4.
constexpr double LargeurBoite = 160, HauteurBoite = 60;
constexpr double OrigineX = 20, OrigineY = 40; // of the curve: angle 0 and value 0
constexpr double Cran = 2.5;                   // length of a graduation line
constexpr double LargeurCadre = OrigineX + LargeurBoite + 4, HauteurCadre = 80, PremierCadre = 30;
constexpr int CadresPage = 3;
constexpr double HauteurTexte = 2.8, HauteurTitre = 3.4;
constexpr double Haut = OrigineY - HauteurBoite / 2, Bas = OrigineY + HauteurBoite / 2;

constexpr PlaceGraphe place{.gauche = OrigineX,
                            .droite = OrigineX + LargeurBoite,
                            .haut = Haut,
                            .bas = Bas,
                            .texte = HauteurTitre,
                            .nombres = HauteurTexte,
                            .titre = 4,
                            .sousAxe = Cran + 2,
                            .coteAxe = Cran + 1,
                            .entreAxes = 0,
                            .legende = {OrigineX + LargeurBoite, Bas + 9},
                            .ancrageLegende = Ancrage::Droite,
                            .hauteurLegende = HauteurTexte,
                            .traitGrille = 0.1,
                            .traitAxe = 0.25,
                            .traitCourbe = 0.4,
                            .cran = Cran,
                            .cadre = true};

constexpr const char* MasqueAngle = "###";
constexpr const char* MasqueValeur = "###.##";

/// How the labels of a vertical axis are written. The unit "" stands for degrees.
struct Etiquette {
    const char* masque;
    const char* unite;
};

/// Values are labelled at their maximum and at the half; angles, of which whole degrees are written, at round ones.
AxeGraphe AxeValeurs(double maximum, const Etiquette& etiquette) {
    const bool degres = etiquette.unite[0] == '\0';
    const double pas = degres && maximum > 0 ? std::min(PasGraduationAngle(maximum, 3), maximum) : maximum / 2;
    AxeGraphe axe = AxeSymetrique(maximum, pas, etiquette.masque);
    axe.unite = degres ? " " + Texte(UniteDegres) : etiquette.unite;
    axe.couleur = Couleur::Texte;
    return axe;
}

Graphe GrapheImprime(const Courbe& courbe, const Etiquette& etiquette, Couleur couleur, bool dernier) {
    Graphe graphe{Texte(courbe.legende),           couleur, AxeAngleCame(), {AxeValeurs(courbe.maximum, etiquette)},
                  {PointsCourbe(courbe, couleur)}, {}};
    graphe.horizontal.couleur = Couleur::Texte;
    if (!dernier) graphe.horizontal.legende.clear();
    return graphe;
}

void ImprimeGraphiques(const std::vector<Courbe>& courbes, const std::vector<Etiquette>& etiquettes) {
    Imprimante& imprimante = ImprimanteEnCours();
    DebutPageCames(TitreCame(TitreGraphiques));
    // On a page smaller than that of A4 the millimetre of the boxes is smaller too.
    const double unite = std::min(
        {1.0, imprimante.Largeur() / LargeurCadre, imprimante.Hauteur() / (PremierCadre + CadresPage * HauteurCadre)});
    for (std::size_t rang = 0; rang < courbes.size(); ++rang) {
        const double y = PremierCadre + HauteurCadre * static_cast<double>(rang);
        const auto cadre = imprimante.Feuille({0, y * unite}, imprimante.Largeur(), HauteurCadre * unite, unite);
        const bool dernier = rang + 1 == courbes.size();
        DessineGraphe(*cadre, GrapheImprime(courbes[rang], etiquettes[rang], CouleursCourbes[rang], dernier), place);
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
