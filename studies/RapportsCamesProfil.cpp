// The profile drawn to scale: both profiles, the pitch curve, the roller at the start of the cam; of a cylindrical cam
// the developed surface. Cam millimetres have their origin in the cam centre, or at the start of the development, and y
// up; paper millimetres run down.
#include "cams/Courbure.h"
#include "conjugate/DessinPaire.h"
#include "core/Etude.h"
#include "cylindrical/DeveloppeeCyl.h"
#include "data/Textes.h"
#include "drawing/EchellePapier.h"
#include "drawing/LegendeDessin.h"
#include "drawing/PlanDessin.h"
#include "reports/CadrePages.h"
#include "studies/ContoursCame.h"
#include "studies/NotesEtude.h"
#include "studies/RapportsCames.h"
#include "studies/TypesEtude.h"

#include <algorithm>
#include <span>
#include <string>
#include <vector>

namespace {

constexpr double HauteurTexte = 2.8; // mm
constexpr double Marge = 3;          // around the drawing, mm
constexpr Trait traitProfil{Couleur::Came, 0.35}, traitPrimitif{Couleur::Primitif, 0.18, true},
    traitGalet{Couleur::Galet, 0.25}, traitAxe{Couleur::Axe, 0.18}, traitFaute{Couleur::Repere, 0.7};

/// What each stroke is, in one row that takes the width of the page at most.
void DessineEntrees(Dessin& dessin, std::span<const EntreeLegende> entrees) {
    DessineLegende(dessin, {0, HauteurTexte}, HauteurTexte, entrees,
                   {8 / HauteurTexte, 2 / HauteurTexte, 6 / HauteurTexte});
}

void DessineNoms(Dessin& dessin) {
    // Both profiles are drawn alike: one entry names them.
    std::vector<EntreeLegende> entrees = {
        {traitProfil, Texte(291) + ", " + Texte(290)}, {traitPrimitif, Texte(293)}, {traitGalet, Texte(289)}};
    if (!PlagesTropCourbees().empty()) entrees.push_back({traitFaute, Texte(TexteCourbureFaible), Couleur::Repere});
    DessineEntrees(dessin, entrees);
}

/// Draws the profile into the surface, below the legend and above the bar. Gives the scale.
double DessineProfil(Dessin& dessin) {
    constexpr double bande = 2.5 * HauteurTexte;
    const ContoursCame contours = CalculeContours();
    Etendue e{}; // the cam centre is always in it
    for (const auto* courbe : {&contours.interieur, &contours.exterieur, &contours.primitif})
        for (const PointDessin& p : *courbe) e.Contient(p);
    const double largeur = dessin.Largeur() - 2 * Marge, hauteur = dessin.Hauteur() - 2 * bande - 2 * Marge;
    const double echelle = ChoisitEchelle(e, largeur, hauteur);
    PlanDessin plan = PlanDessin::AEchelle(dessin, e, echelle);
    const PointDessin galet = contours.primitif.front();
    const double croix = etude.resultats.RayonMin / 6;
    plan.Ligne({-croix, 0}, {croix, 0}, traitAxe);
    plan.Ligne({0, croix}, {0, -croix}, traitAxe);
    plan.Ligne({0, 0}, galet, {Couleur::Repere, 0.18});
    plan.Contour(contours.primitif, traitPrimitif, false);
    plan.Cercle(galet, etude.donnees.RayonGalet, traitGalet);
    plan.Contour(contours.interieur, traitProfil, false);
    plan.Contour(contours.exterieur, traitProfil, false);
    for (const auto& partie : PartiesTropCourbees(contours.interieur, contours.exterieur))
        plan.Contour(partie, traitFaute, false);
    return echelle;
}

/// The developed cam on paper: across the page, or down it where that leaves a larger scale.
class PapierDeveloppee {
public:
    PapierDeveloppee(const Dessin& dessin, const Developpee& d, double bande) {
        // Room for the graduations outside the cylinder, mm.
        constexpr double chiffres = 16;
        const double largeur = dessin.Largeur() - 2 * chiffres, hauteur = dessin.Hauteur() - 2 * bande - 2 * chiffres;
        const Etendue couchee{{0, 0}, {d.largeur, d.haut - d.bas}}, debout{{0, 0}, {d.haut - d.bas, d.largeur}};
        echelle = ChoisitEchelle(couchee, largeur, hauteur);
        debout_ = ChoisitEchelle(debout, largeur, hauteur) > echelle;
        if (debout_) echelle = ChoisitEchelle(debout, largeur, hauteur);
        const double milieu = echelle * (d.bas + d.haut) / 2, demi = echelle * d.largeur / 2;
        x0_ = dessin.Largeur() / 2 - (debout_ ? milieu : demi);
        y0_ = dessin.Hauteur() / 2 + (debout_ ? -demi : milieu);
    }
    PointDessin operator()(PointDessin p) const {
        if (debout_) return {x0_ + echelle * p.y, y0_ + echelle * p.x};
        return {x0_ + echelle * p.x, y0_ - echelle * p.y};
    }
    std::vector<PointDessin> operator()(std::span<const PointDessin> courbe) const {
        std::vector<PointDessin> places(courbe.size());
        std::transform(courbe.begin(), courbe.end(), places.begin(), *this);
        return places;
    }
    bool Debout() const { return debout_; }

    double echelle;

private:
    bool debout_;
    double x0_, y0_;
};

constexpr const char* MasqueDeveloppee = "####.00";

/// Cam angle and length of arc along the lower edge, heights along the edge where the development starts.
void DessineGraduationsDeveloppee(Dessin& dessin, const PapierDeveloppee& papier, const Developpee& d) {
    constexpr double cran = 1.5, ligne = HauteurTexte + 0.6;
    const bool debout = papier.Debout();
    for (int degres = 0; degres <= 360; degres += 30) {
        const double x = d.largeur * degres / 360;
        const PointDessin bord = papier({x, d.bas});
        dessin.Ligne(bord, papier({x, d.haut}), {Couleur::Graduation, 0.1});
        const std::string angle = std::to_string(degres) + "°", arc = Format(x, MasqueDeveloppee);
        if (debout) {
            // The arc next to the edge, the angle outside it, each in its own column.
            constexpr double colonne = 14;
            dessin.Texte({bord.x - cran, bord.y}, arc, Ancrage::Droite, HauteurTexte * 0.8);
            dessin.Texte({bord.x - cran - colonne, bord.y}, angle, Ancrage::Droite, HauteurTexte * 0.8);
        } else {
            dessin.Texte({bord.x, bord.y + ligne}, angle, Ancrage::Centre, HauteurTexte * 0.8);
            dessin.Texte({bord.x, bord.y + 2 * ligne}, arc, Ancrage::Centre, HauteurTexte * 0.8);
        }
    }
    const double galet = papier.echelle * etude.donnees.RayonGalet;
    for (const double y : {d.hauteurMini, d.hauteurMaxi}) {
        const PointDessin bord = papier({0, y});
        const std::string hauteur = Format(y, MasqueDeveloppee);
        if (debout)
            dessin.Texte({bord.x, bord.y - galet - ligne}, hauteur, Ancrage::Centre, HauteurTexte * 0.8);
        else
            dessin.Texte({bord.x - galet - cran, bord.y}, hauteur, Ancrage::Droite, HauteurTexte * 0.8);
    }
}

/// Draws the developed cam into the surface, below the legend and above the bar. Gives the scale.
double DessineDeveloppee(Dessin& dessin) {
    constexpr double bande = 2.5 * HauteurTexte;
    const Developpee d = CalculeDeveloppee();
    const PapierDeveloppee papier(dessin, d, bande);
    const PointDessin bords[] = {{0, d.bas}, {d.largeur, d.bas}, {d.largeur, d.haut}, {0, d.haut}, {0, d.bas}};
    dessin.Polyligne(papier(bords), traitAxe);
    DessineGraduationsDeveloppee(dessin, papier, d);
    for (const TourDeveloppe& tour : d.tours) {
        dessin.Polyligne(papier(tour.primitif), traitPrimitif);
        dessin.Polyligne(papier(tour.interieur), traitProfil);
        dessin.Polyligne(papier(tour.exterieur), traitProfil);
        for (const auto& partie : PartiesTropCourbees(tour.interieur, tour.exterieur, tour.debut))
            dessin.Polyligne(papier(partie), traitFaute);
    }
    dessin.Cercle(papier(CentreGaletDeveloppe(0)), papier.echelle * etude.donnees.RayonGalet, traitGalet);
    return papier.echelle;
}

enum NumerosTexte { TexteSurPapier = 937, TexteSurCame = 938 };

/// What the bar measures, on the sheet and on the cam that is drawn to scale.
std::string TexteRegle(double echelle) {
    return StrTrim(LongueurRegle) + " " + Texte(TexteSurPapier) + " = " + StrTrim(LongueurRegle / echelle) + " " +
           Texte(TexteSurCame);
}

constexpr Trait traitsCames[] = {traitProfil, {Couleur::Courbe2, 0.35}};
constexpr Trait traitBras{Couleur::Bras, 0.35};

void DessineNomsPaire(Dessin& dessin) {
    const TypeEtude& type = LeTypeEtude();
    std::vector<EntreeLegende> entrees;
    for (std::size_t rang = 0; rang < type.passes.size(); ++rang)
        entrees.push_back({traitsCames[rang], Texte(type.passes[rang].titre)});
    entrees.insert(entrees.end(), {{traitPrimitif, Texte(293)}, {traitGalet, Texte(289)}, {traitBras, Texte(217)}});
    DessineEntrees(dessin, entrees);
}

/// Draws several cams on their shaft at its start, with their arms and rollers. Gives the scale.
double DessineProfilPaire(Dessin& dessin) {
    constexpr double bande = 2.5 * HauteurTexte;
    const Etendue e = EtenduePaire();
    const double echelle = ChoisitEchelle(e, dessin.Largeur() - 2 * Marge, dessin.Hauteur() - 2 * bande - 2 * Marge);
    PlanDessin plan = PlanDessin::AEchelle(dessin, e, echelle);
    const double croix = etude.passes.front().resultats.RayonMin / 6;
    plan.Ligne({-croix, 0}, {croix, 0}, traitAxe);
    plan.Ligne({0, croix}, {0, -croix}, traitAxe);
    for (std::size_t rang = 0; rang < etude.passes.size(); ++rang) {
        const ContoursPaire contours = CalculeContoursPaire(rang, 0);
        plan.Contour(contours.primitif, traitPrimitif, false, contours.calage);
        plan.Contour(contours.profil, traitsCames[rang], false, contours.calage);
        plan.Ligne(PivotPaire(), CentreGalet(rang, 0), traitBras);
        plan.Cercle(CentreGalet(rang, 0), etude.passes[rang].RayonGalet, traitGalet);
    }
    return echelle;
}

/// A page of its own for a drawing to scale, whose last line states the scale.
void ImprimeProfil(double (*dessine)(Dessin&), void (*nomme)(Dessin&) = DessineNoms, int titre = TitreProfil) {
    Imprimante& imprimante = ImprimanteEnCours();
    DebutPageCames(Texte(titre));
    const double haut = imprimante.Tete(), derniereLigne = imprimante.Hauteur() - 8;
    double echelle = 1;
    {
        const auto dessin = imprimante.Feuille({0, haut}, imprimante.Largeur(), derniereLigne - haut);
        nomme(*dessin);
        echelle = dessine(*dessin);
        DessineRegle(*dessin, TexteRegle(echelle), HauteurTexte, traitAxe);
    }
    imprimante.PlaceTete(derniereLigne);
    ImprimeLigneCames(Texte(488) + " : " + TexteEchelle(echelle));
    imprimante.NouvellePage();
}

} // namespace

void ImprimeProfilPlat() {
    ImprimeProfil(DessineProfil);
}

void ImprimeProfilCylindre() {
    ImprimeProfil(DessineDeveloppee);
}

void ImprimeProfilConjugue() {
    ImprimeProfil(DessineProfilPaire, DessineNomsPaire, TitreDonnees);
}
