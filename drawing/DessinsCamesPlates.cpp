// Plane cams. The outline is the true envelope of the roller on a pitch curve of rises and dwells, so that the roller
// touches it.
#include "drawing/DessinsCames.h"

#include "core/Etude.h"
#include "drawing/PlumeCames.h"

#include <cmath>

namespace {

constexpr int PointsCame = 240;
constexpr double RayonGalet = 5.5;

/// Pitch curve in polar coordinates: base radius, lift, and how far the cam is turned, degrees. It rises over 120
/// degrees, rests over 70, returns over 110 and rests.
struct Primitif {
    double base;
    double levee;
    double rotation;

    double Rayon(double degres) const {
        double angle = std::fmod(degres - rotation, 360.0);
        if (angle < 0) angle += 360;
        const auto cycloide = [](double x) { return x - std::sin(2 * Pi * x) / (2 * Pi); };
        if (angle < 120) return base + levee * cycloide(angle / 120);
        if (angle < 190) return base + levee;
        if (angle < 300) return base + levee * (1 - cycloide((angle - 190) / 110));
        return base;
    }

    PointFigure Point(PointFigure centre, double degres) const {
        const double r = Rayon(degres);
        return {centre.x + r * std::cos(degres / RadDeg), centre.y + r * std::sin(degres / RadDeg)};
    }

    /// The cam's outline: every point of the pitch curve moved inwards by the roller radius along the normal.
    std::vector<PointFigure> Profil(PointFigure centre) const {
        std::vector<PointFigure> profil;
        for (int i = 0; i < PointsCame; ++i) {
            const double degres = 360.0 * i / PointsCame;
            const PointFigure avant = Point(centre, degres - 0.5), apres = Point(centre, degres + 0.5);
            const double dx = apres.x - avant.x, dy = apres.y - avant.y, longueur = std::hypot(dx, dy);
            const PointFigure p = Point(centre, degres);
            profil.push_back({p.x - RayonGalet * dy / longueur, p.y + RayonGalet * dx / longueur});
        }
        return profil;
    }

    std::vector<PointFigure> Courbe(PointFigure centre) const {
        std::vector<PointFigure> courbe;
        for (int i = 0; i <= PointsCame; ++i) courbe.push_back(Point(centre, 360.0 * i / PointsCame));
        return courbe;
    }
};

void DessineGalet(PlumeCames& plume, PointFigure centre) {
    plume.Disque(centre, RayonGalet, Couleur::Galet);
    plume.Disque(centre, 1.4, Couleur::Galet);
}

} // namespace

void DessineCamePlateBras(Dessin& dessin) {
    PlumeCames plume(dessin);
    const PointFigure came{-24, -6}, pivot{44, -16}, sortie{30, 30};
    const Primitif primitif{21, 12, -110};
    const double direction = 22;
    const PointFigure galet = primitif.Point(came, direction);
    plume.Surface(primitif.Profil(came), Couleur::Came);
    plume.Courbe(primitif.Courbe(came), Couleur::Primitif, true);
    plume.Pivot(came, 4);
    plume.Fleche(came, 9, 20, 160);
    plume.Biellette(pivot, 4.5, sortie, 2.6, Couleur::Bras);
    plume.Biellette(pivot, 5, galet, 3, Couleur::Bras);
    DessineGalet(plume, galet);
    plume.Disque(sortie, 1.4, Couleur::Bras);
    plume.Pivot(pivot, 3);
    plume.Bati({pivot.x - 7, pivot.y - 9}, {pivot.x + 7, pivot.y - 9});
    plume.Ligne({pivot.x - 2, pivot.y - 2.4}, {pivot.x - 5, pivot.y - 9}, Couleur::Axe);
    plume.Ligne({pivot.x + 2, pivot.y - 2.4}, {pivot.x + 5, pivot.y - 9}, Couleur::Axe);
    plume.Fleche(pivot, 50, 92, 122, true);
}

void DessineCamePlateTranslation(Dessin& dessin) {
    PlumeCames plume(dessin);
    const PointFigure came{0, -16};
    const Primitif primitif{17, 12, -30};
    const PointFigure galet = primitif.Point(came, 90);
    plume.Surface(primitif.Profil(came), Couleur::Came);
    plume.Courbe(primitif.Courbe(came), Couleur::Primitif, true);
    plume.Pivot(came, 4);
    plume.Fleche(came, 9, 20, 160);
    plume.Surface({{-2.6, galet.y}, {2.6, galet.y}, {2.6, 42}, {-2.6, 42}}, Couleur::Bras);
    DessineGalet(plume, galet);
    plume.Bati({-4, 36}, {-4, 24});
    plume.Bati({4, 24}, {4, 36});
    plume.FlecheDouble({{14, 22}, {14, 38}});
}

void DessineCamesConjuguees(Dessin& dessin) {
    PlumeCames plume(dessin);
    const PointFigure came{-14, -12}, pivot{22, 30};
    // What one cam gives the arm, the other takes back.
    const Primitif suiveuse{20, 10, -150}, guide{20, 10, 40};
    const PointFigure galetGuide = guide.Point(came, 100), galetSuiveuse = suiveuse.Point(came, -4);
    plume.Surface(suiveuse.Profil(came), Couleur::Primitif);
    plume.Surface(guide.Profil(came), Couleur::Came);
    std::vector<PointFigure> cachee = suiveuse.Profil(came);
    cachee.push_back(cachee.front());
    plume.Courbe(cachee, Couleur::Primitif, true);
    plume.Pivot(came, 4);
    plume.Fleche(came, 9, 20, 160);
    plume.Biellette(pivot, 5, galetSuiveuse, 3, Couleur::Bras);
    plume.Biellette(pivot, 5, galetGuide, 3, Couleur::Bras);
    DessineGalet(plume, galetGuide);
    DessineGalet(plume, galetSuiveuse);
    plume.Pivot(pivot, 3.4);
    plume.Fleche(pivot, 13, -10, 70, true);
}

void DessineIndexeurConjugue(Dessin& dessin) {
    PlumeCames plume(dessin);
    const PointFigure came{-24, 0}, roue{28, 0};
    constexpr int galets = 8;
    constexpr double rayonRoue = 22, demiPas = 180.0 / galets;
    // At rest the line of the shafts lies between two rollers, one on each cam.
    const double x = 52 - rayonRoue * std::cos(demiPas / RadDeg), y = rayonRoue * std::sin(demiPas / RadDeg);
    const double repos = std::hypot(x, y), direction = RadDeg * std::atan2(y, x);
    const Primitif devant{repos - 9, 9, direction - 155}, derriere{repos - 9, 9, -direction - 155};
    plume.Surface(derriere.Profil(came), Couleur::Primitif);
    plume.Surface(devant.Profil(came), Couleur::Came);
    std::vector<PointFigure> cachee = derriere.Profil(came);
    cachee.push_back(cachee.front());
    plume.Courbe(cachee, Couleur::Primitif, true);
    plume.Pivot(came, 4);
    plume.Fleche(came, 9, 20, 160);
    plume.Disque(roue, rayonRoue, Couleur::Bras);
    for (int i = 0; i < galets; ++i) {
        const double angle = (180 + (2 * i + 1) * demiPas) / RadDeg;
        DessineGalet(plume, {roue.x + rayonRoue * std::cos(angle), roue.y + rayonRoue * std::sin(angle)});
    }
    plume.Pivot(roue, 3.4);
    plume.Fleche(roue, 10, 160, 20);
}
