#include "cylindrical/DessinIndexeurCyl.h"

#include "data/Textes.h"
#include "drawing/LegendeDessin.h"
#include "drawing/PlanDessin.h"

#include <algorithm>
#include <cmath>

namespace {

/// The scale of every drum cam, by a development of 360 mm and by the width that the centres use, so that cams of one
/// series compare; a cam that does not fit with its turret is drawn smaller.
constexpr double Developpement = 360, Blanc = 4;

/// Strokes of frame and turret, as many times the thinnest one.
constexpr double TraitCadre = 2.4, TraitTourelle = 2.0;

constexpr int PasReperes = 30;

/// What the drawing shows, in millimetres of the cam: x from where the first two rollers stand, y from its middle.
struct Vue {
    double perimetre, demiLargeur;
    PointDessin tourelle; ///< its centre
    double p, q;          ///< of the first roller seen from there
    Etendue etendue;

    Vue(const IndexeurCylindrique& d, const ResultatIndexeurCylindrique& r)
        : perimetre(Pi * d.CameDiam), demiLargeur(r.LargeurCame / 2.0) {
        const double a = r.PasGalets * Pi / 180.0 / 2.0;
        p = d.RayonTourelle * std::cos(a);
        q = d.RayonTourelle * std::sin(a);
        tourelle = {-p, 0};
        etendue = {{0, -demiLargeur}, {perimetre, demiLargeur}};
        etendue.Contient(tourelle, d.RayonTourelle);
        for (const double y : {-q, q}) etendue.Contient({0, y}, d.DiametreGalet / 2.0);
        etendue.Contient({perimetre, 0}, d.DiametreGalet / 2.0);
    }
};

double Echelle(const Dessin& dessin, const Vue& vue, double bandeau) {
    const double largeur = dessin.Largeur() - Blanc, hauteur = dessin.Hauteur() - Blanc - 2.0 * bandeau;
    double echelle = std::min(largeur / vue.etendue.Largeur(), hauteur / vue.etendue.Hauteur());
    echelle = std::min(echelle, largeur / Developpement);
    return vue.demiLargeur > 0.0 ? std::min(echelle, hauteur / 2.0 / vue.demiLargeur) : echelle;
}

/// Frame, axis and degrees of the cam.
void DessineCadre(Dessin& dessin, PlanDessin& plan, const Vue& vue, double hauteurTexte, double epaisseur) {
    const double y = vue.demiLargeur, x = vue.perimetre;
    for (int degres = PasReperes; degres < 360; degres += PasReperes) {
        const double place = x * degres / 360;
        plan.Ligne({place, -y}, {place, y}, {Couleur::Graduation, epaisseur});
    }
    for (int degres = 0; degres <= 360; degres += 3 * PasReperes) {
        const PointDessin pied = plan({x * degres / 360, vue.etendue.bas.y});
        dessin.Texte({pied.x, pied.y + hauteurTexte}, std::to_string(degres) + "°",
                     degres == 360 ? Ancrage::Droite : Ancrage::Centre, hauteurTexte, Couleur::TexteDiscret);
    }
    plan.Ligne({0, 0}, {x, 0}, {Couleur::Axe, epaisseur, true});
    const PointDessin coins[] = {{0, -y}, {x, -y}, {x, y}, {0, y}};
    plan.Contour(coins, {Couleur::Came, TraitCadre * epaisseur}, false);
}

void DessineTourelle(PlanDessin& plan, const IndexeurCylindrique& d, const Vue& vue, double epaisseur) {
    plan.Cercle(vue.tourelle, d.RayonTourelle, {Couleur::Bras, TraitTourelle * epaisseur});
    for (const double y : {vue.q, -vue.q}) {
        plan.Ligne(vue.tourelle, {0, y}, {Couleur::Bras, epaisseur});
        plan.Disque({0, y}, d.DiametreGalet / 2.0, {Couleur::Repere, 1.5 * epaisseur});
    }
}

/// The path of a roller: where it is out of engagement for some degrees, the line begins anew.
class Voie {
public:
    void Ajoute(long ligne, PointDessin centre) {
        // Past an angle that is not whole every second row may be empty.
        if (ligne > derniere_ + 2) morceaux_.emplace_back();
        morceaux_.back().push_back(centre);
        derniere_ = ligne;
    }
    void Trace(PlanDessin& plan, double epaisseur) const {
        for (const auto& morceau : morceaux_) plan.Contour(morceau, {Couleur::Primitif, 1.5 * epaisseur}, false);
    }

private:
    std::vector<std::vector<PointDessin>> morceaux_;
    long derniere_ = -3;
};

/// The rollers at every degree, and the paths of the first two.
void DessineGalets(PlanDessin& plan, const IndexeurCylindrique& d, const ResultatIndexeurCylindrique& r,
                   double epaisseur) {
    Voie voies[2];
    for (long i = 1; i <= r.Grille.BorneHaute(); ++i)
        for (std::size_t j = 1; j + 1 < r.Grille[i].size(); ++j)
            if (const auto centre = LitPosition(r.Grille[i][j])) {
                plan.Cercle(*centre, d.DiametreGalet / 2.0, {CouleurNumero(static_cast<int>(j) - 1), 0.5 * epaisseur});
                if (j <= 2) voies[j - 1].Ajoute(i, *centre);
            }
    for (const Voie& voie : voies) voie.Trace(plan, epaisseur);
}

void DessineNoms(Dessin& dessin, const ResultatIndexeurCylindrique& r, double hauteurTexte, double epaisseur) {
    std::vector<EntreeLegende> legende;
    for (int j = 1; j <= std::min<int>(r.GaletsUtilises, NombreCouleurs); ++j)
        legende.push_back({{CouleurNumero(j - 1), 2.0 * epaisseur}, Texte(289) + " " + std::to_string(j)});
    DessineLegende(dessin, {hauteurTexte, hauteurTexte}, hauteurTexte, legende);
}

} // namespace

void DessineDeveloppee(Dessin& dessin, const IndexeurCylindrique& donnees, const ResultatIndexeurCylindrique& resultat,
                       double hauteurTexte, double epaisseur) {
    const Vue vue(donnees, resultat);
    const double echelle = Echelle(dessin, vue, 2.0 * hauteurTexte);
    if (!(echelle > 0.0)) return;
    PlanDessin plan = PlanDessin::AEchelle(dessin, vue.etendue, echelle);
    DessineGalets(plan, donnees, resultat, epaisseur);
    DessineCadre(dessin, plan, vue, hauteurTexte, epaisseur);
    DessineTourelle(plan, donnees, vue, epaisseur);
    DessineNoms(dessin, resultat, hauteurTexte, epaisseur);
}
