// The cam and its turret in the plane of the turret. The turret axis is the origin, the camshaft a line on the right at
// the centre distance, parallel to y; mm.
#include "globoidal/DessinsGlobiques.h"

#include "core/Etude.h"
#include "core/Nombres.h"
#include "data/Textes.h"
#include "data/Unites.h"
#include "drawing/PlanDessin.h"
#include "globoidal/CapaciteOscillateur.h"
#include "globoidal/UnitesGlobiques.h"

#include <algorithm>
#include <cmath>

namespace {

struct Section {
    double entraxe = 0;
    double interieur = 0, exterieur = 0; ///< radii between which the rollers stand
    double primitif = 0;
    double diametreGalet = 0;
    double angleFlanc = 0;                         ///< direction of the roller whose inner side bounds the cam, radians
    double flancInterieur = 0, flancExterieur = 0; ///< radii of the ends of that side
    double cameMaxDiam = 0, cameMaxLong = 0;       ///< 0 for no limit
    std::vector<double> galets, autreFin;          ///< directions of the rollers, radians
};

/// A point beside a ray from the turret axis.
PointDessin ACote(double angle, double rayon, double ecart) {
    return {rayon * std::cos(angle) - ecart * std::sin(angle), rayon * std::sin(angle) + ecart * std::cos(angle)};
}

class TraceurSection {
public:
    TraceurSection(Dessin& dessin, const Section& section)
        : s_(section), bout_(ACote(section.angleFlanc, section.flancInterieur, -section.diametreGalet / 2)),
          coin_(ACote(section.angleFlanc, section.flancExterieur, -section.diametreGalet / 2)),
          plan_(dessin, Place(), 24) {}

    void Trace() {
        Came();
        Tourelle();
        for (const double angle : s_.autreFin) plan_.Contour(ContourGalet(angle), {Couleur::Galet, 1.0, true}, false);
        for (const double angle : s_.galets) plan_.Contour(ContourGalet(angle), {Couleur::Galet, 1.6}, true);
        Boitier();
        Cotes();
    }

private:
    double RayonCame() const { return s_.entraxe - bout_.x; }
    double BordDroit() const { return s_.entraxe + std::max(RayonCame(), s_.cameMaxDiam / 2); }
    double BordHaut() const {
        return std::max({std::abs(coin_.y), std::abs(bout_.y), s_.cameMaxLong / 2, s_.exterieur * 0.6});
    }
    double Marge() const { return 0.09 * (s_.entraxe + RayonCame()); }

    Etendue Place() const {
        return {{-s_.exterieur * 1.05, -std::max(BordHaut(), s_.exterieur) - 2.0 * Marge()},
                {BordDroit() + 2.6 * Marge(), std::max(BordHaut(), s_.exterieur) + 1.6 * Marge()}};
    }

    /// The near side follows the rollers' inner ends; the far side is its mirror image about the camshaft.
    void Came() {
        std::vector<PointDessin> contour;
        // The hollow ends where it reaches the diameter of the cam.
        const double ouverture = std::acos(std::clamp(bout_.x / s_.interieur, -1.0, 1.0));
        const auto cote = [&](double sens, bool loin) {
            std::vector<PointDessin> points{{coin_.x, sens * coin_.y}, {bout_.x, sens * bout_.y}};
            for (int i = 20; i >= -20; --i) {
                const double angle = sens * ouverture * i / 20;
                points.push_back({s_.interieur * std::cos(angle), s_.interieur * std::sin(angle)});
            }
            points.push_back({bout_.x, -sens * bout_.y});
            points.push_back({coin_.x, -sens * coin_.y});
            if (loin)
                for (PointDessin& p : points) p.x = 2 * s_.entraxe - p.x;
            contour.insert(contour.end(), points.begin(), points.end());
        };
        cote(1, false);
        cote(-1, true);
        contour.push_back(contour.front());
        plan_.Contour(contour, {Couleur::Came, 1.8}, true);
        plan_.Ligne({s_.entraxe, -BordHaut() - 0.6 * Marge()}, {s_.entraxe, BordHaut() + 0.6 * Marge()},
                    {Couleur::Axe, 1.0, true});
    }

    void Tourelle() {
        plan_.Disque({0, 0}, s_.interieur * 0.92, {Couleur::Bras, 1.4});
        plan_.Cercle({0, 0}, s_.primitif, {Couleur::Primitif, 1.0, true});
        const double croix = s_.interieur * 0.12;
        plan_.Ligne({-croix, 0}, {croix, 0}, {Couleur::Axe, 1.0});
        plan_.Ligne({0, -croix}, {0, croix}, {Couleur::Axe, 1.0});
    }

    std::vector<PointDessin> ContourGalet(double angle) const {
        const double demi = s_.diametreGalet / 2;
        return {ACote(angle, s_.interieur, -demi), ACote(angle, s_.exterieur, -demi), ACote(angle, s_.exterieur, demi),
                ACote(angle, s_.interieur, demi), ACote(angle, s_.interieur, -demi)};
    }

    /// The room that the casing leaves; a side that the cam passes catches the eye.
    void Boitier() {
        const double x = s_.cameMaxDiam / 2, y = s_.cameMaxLong / 2;
        const bool large = x != 0 && RayonCame() > x, longue = y != 0 && std::abs(coin_.y) > y;
        const auto trait = [](bool depasse) {
            return Trait{depasse ? Couleur::Repere : Couleur::TexteDiscret, depasse ? 2.0 : 1.2, true};
        };
        const double haut = y != 0 ? y : BordHaut(), large2 = x != 0 ? x : RayonCame();
        for (const double sens : {-1.0, 1.0}) {
            if (x != 0) plan_.Ligne({s_.entraxe + sens * x, -haut}, {s_.entraxe + sens * x, haut}, trait(large));
            if (y != 0) plan_.Ligne({s_.entraxe - large2, sens * y}, {s_.entraxe + large2, sens * y}, trait(longue));
        }
        if (x != 0)
            plan_.Nom({s_.entraxe + 0.2 * Marge(), -BordHaut() - 0.9 * Marge()},
                      Texte(502) + " " + TexteCourt(s_.cameMaxDiam), Ancrage::Gauche, large);
        if (y != 0)
            plan_.Nom({s_.entraxe + 0.2 * Marge(), -BordHaut() - 1.6 * Marge()},
                      Texte(503) + " " + TexteCourt(s_.cameMaxLong), Ancrage::Gauche, longue);
    }

    void Cotes() {
        const Trait cote{Couleur::TexteDiscret, 1.0};
        const double haut = BordHaut() + 0.9 * Marge(), droite = BordDroit() + 0.7 * Marge();
        plan_.Cote({s_.entraxe - RayonCame(), haut}, {s_.entraxe + RayonCame(), haut}, cote);
        plan_.Nom({s_.entraxe, haut + 0.45 * Marge()}, "Ø " + TexteArrondi(2 * RayonCame(), 2) + " " + Texte(UniteMm),
                  Ancrage::Centre, false);
        plan_.Cote({droite, -std::abs(coin_.y)}, {droite, std::abs(coin_.y)}, cote);
        plan_.Nom({droite + 0.2 * Marge(), 0}, TexteArrondi(2 * coin_.y, 2), Ancrage::Gauche, false);
        const double bas = -std::max(BordHaut(), s_.exterieur) - 0.7 * Marge();
        plan_.Cote({0, bas}, {s_.entraxe, bas}, cote);
        plan_.Nom({s_.entraxe / 2, bas - 0.5 * Marge()}, TexteCourt(s_.entraxe) + " " + Texte(UniteMm), Ancrage::Centre,
                  false);
    }

    const Section& s_;
    const PointDessin bout_, coin_; ///< ends of the flank that bounds the cam, on the near side above
    PlanDessin plan_;
};

Section SectionDe(const MecanismeGlobique& d, const ResultatGlobique& r, double milieuGalet) {
    Section s;
    s.entraxe = d.Entraxe;
    s.primitif = r.RayonPrimitif;
    s.interieur = milieuGalet - d.HauteurGalet / 2;
    s.exterieur = milieuGalet + d.HauteurGalet / 2;
    s.diametreGalet = d.DiametreGalet;
    s.flancInterieur = s.interieur;
    s.flancExterieur = s.exterieur;
    s.cameMaxDiam = d.CameMaxDiam;
    s.cameMaxLong = d.CameMaxLong;
    return s;
}

} // namespace

void DessineSectionIndexeur(Dessin& dessin, const DonneesIndexeur& d, const ResultatGlobique& r) {
    Section s = SectionDe(d, r, d.RayonTourelle);
    const double pas = 2 * Pi / d.NombreGalets;
    s.angleFlanc = pas;
    for (int i = 0; i < d.NombreGalets; ++i) s.galets.push_back(pas * (i + 0.5));
    TraceurSection(dessin, s).Trace();
}

void DessineSectionOscillateur(Dessin& dessin, const DonneesOscillateur& d, const ResultatGlobique& r) {
    Section s = SectionDe(d, r, r.RayonPrimitif);
    const double chanfrein = ChanfreinOscillateur * MmParPouce / 2;
    s.flancInterieur += chanfrein;
    s.flancExterieur -= chanfrein;
    s.angleFlanc = r.AngleFlancTravail / RadDeg;
    const double pas = Arrondi(d.AngleEntreGalets) / RadDeg, course = Arrondi(d.AngleSortie) / RadDeg;
    for (int i = 0; i < d.NombreGalets; ++i) {
        const double milieu = pas * (i - (d.NombreGalets - 1) / 2);
        s.galets.push_back(milieu - course / 2);
        s.autreFin.push_back(milieu + course / 2);
    }
    TraceurSection(dessin, s).Trace();
}
