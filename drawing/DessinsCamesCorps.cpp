// Barrel cams: bodies of revolution about the x axis, seen from the right and from above.
#include "drawing/DessinsCames.h"

#include "core/Etude.h"
#include "drawing/PlumeCames.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int PasTour = 144; ///< steps of a curve around the body

struct Point3D {
    double x, y, z; ///< right, up, towards the viewer
};

/// Direction of view: turned about the vertical, then tilted, radians.
constexpr double Lacet = -0.42;
constexpr double Tangage = 0.48;

Point3D Tourne(Point3D p) {
    const double x = p.x * std::cos(Lacet) + p.z * std::sin(Lacet);
    const double z = -p.x * std::sin(Lacet) + p.z * std::cos(Lacet);
    return {x, p.y * std::cos(Tangage) - z * std::sin(Tangage), p.y * std::sin(Tangage) + z * std::cos(Tangage)};
}

PointFigure Projette(Point3D p, PointFigure origine) {
    const Point3D t = Tourne(p);
    return {origine.x + t.x, origine.y + t.y};
}

/// The barrel of a cylindrical cam and where it stands in the window.
struct Tambour {
    PointFigure origine;
    double rayon = 19;
    double demiLongueur = 30;
    double rayonArbre = 5;
    double demiArbre = 42;

    std::vector<PointFigure> Cercle(double x, double r) const {
        std::vector<PointFigure> points;
        for (int i = 0; i < PasTour; ++i) {
            const double angle = 2 * Pi * i / PasTour;
            points.push_back(Projette({x, r * std::cos(angle), r * std::sin(angle)}, origine));
        }
        return points;
    }

    void Troncon(PlumeCames& plume, double x1, double x2, double r) const {
        std::vector<PointFigure> points = Cercle(x1, r);
        const std::vector<PointFigure> bout = Cercle(x2, r);
        points.insert(points.end(), bout.begin(), bout.end());
        plume.Surface(Enveloppe(std::move(points)), Couleur::Came);
        plume.Surface(bout, Couleur::Came); // the end that shows
    }

    void Corps(PlumeCames& plume) const {
        // The end at +x lies towards the viewer, so the pieces are laid from -x on.
        Troncon(plume, -demiArbre, -demiLongueur, rayonArbre);
        Troncon(plume, -demiLongueur, demiLongueur, rayon);
    }
    void BoutArbre(PlumeCames& plume) const { Troncon(plume, demiLongueur, demiArbre, rayonArbre); }

    /// The visible stretches of a band around the barrel, whose middle is x(angle); angle 0 is the top, radians. It
    /// ends where it would run over the end of the barrel.
    template <class Milieu>
    void Bande(PlumeCames& plume, const Milieu& milieu, double demiLargeur, Couleur couleur) const {
        std::vector<PointFigure> gauche, droite;
        const auto ferme = [&] {
            if (gauche.size() > 1) {
                gauche.insert(gauche.end(), droite.rbegin(), droite.rend());
                plume.Surface(gauche, couleur);
            }
            gauche.clear();
            droite.clear();
        };
        // Starts behind, where nothing shows, so that no stretch is cut in two.
        for (int i = 0; i <= PasTour; ++i) {
            const double angle = -Pi * 0.75 + 2 * Pi * i / PasTour;
            const Point3D normale{0, std::cos(angle), std::sin(angle)};
            const double x = milieu(angle);
            if (Tourne(normale).z < 0 || std::abs(x) + demiLargeur > demiLongueur) {
                ferme();
                continue;
            }
            gauche.push_back(Projette({x - demiLargeur, rayon * normale.y, rayon * normale.z}, origine));
            droite.push_back(Projette({x + demiLargeur, rayon * normale.y, rayon * normale.z}, origine));
        }
        ferme();
    }

    /// An upright pin: a roller with its axis along y.
    void Broche(PlumeCames& plume, double x, double z, double bas, double haut, double r, Couleur couleur) const {
        std::vector<PointFigure> points, dessus;
        for (int i = 0; i < PasTour; i += 3) {
            const double c = r * std::cos(2 * Pi * i / PasTour), s = r * std::sin(2 * Pi * i / PasTour);
            points.push_back(Projette({x + c, bas, z + s}, origine));
            dessus.push_back(Projette({x + c, haut, z + s}, origine));
        }
        points.insert(points.end(), dessus.begin(), dessus.end());
        plume.Surface(Enveloppe(std::move(points)), couleur);
        plume.Surface(dessus, couleur);
    }

    /// A flat plate at height y: the hull of discs.
    void Plaque(PlumeCames& plume, const std::vector<Point3D>& disques, double y, double epaisseur) const {
        std::vector<PointFigure> dessus, tout;
        for (const Point3D& d : disques) // y of a disc is its radius
            for (int i = 0; i < PasTour; i += 2) {
                const double c = d.y * std::cos(2 * Pi * i / PasTour), s = d.y * std::sin(2 * Pi * i / PasTour);
                dessus.push_back(Projette({d.x + c, y + epaisseur, d.z + s}, origine));
                tout.push_back(Projette({d.x + c, y, d.z + s}, origine));
            }
        tout.insert(tout.end(), dessus.begin(), dessus.end());
        plume.Surface(Enveloppe(std::move(tout)), Couleur::Bras);
        plume.Surface(Enveloppe(std::move(dessus)), Couleur::Bras);
    }
};

constexpr double DemiGorge = 3.6;

double Gorge(double angle) {
    return 13 * std::sin(angle + 0.9);
}

} // namespace

void DessineCameCylindriqueTranslation(Dessin& dessin) {
    PlumeCames plume(dessin);
    const Tambour tambour{{0, -10}};
    const double x = Gorge(0), y = tambour.rayon;
    tambour.Corps(plume);
    tambour.Bande(plume, Gorge, DemiGorge, Couleur::Primitif);
    tambour.BoutArbre(plume);
    tambour.Broche(plume, x, 0, y - 2, y + 7, 3.2, Couleur::Galet);
    // The slide on its bar, parallel to the axis of the cam.
    tambour.Plaque(plume, {{-40, 1.2, 0}, {40, 1.2, 0}}, y + 12, 0);
    tambour.Plaque(plume, {{x - 7, 3.4, 0}, {x + 7, 3.4, 0}}, y + 9, 6);
    plume.FlecheDouble(
        {Projette({x - 20, y + 20, 0}, tambour.origine), Projette({x + 20, y + 20, 0}, tambour.origine)});
}

void DessineCameCylindriqueBras(Dessin& dessin) {
    PlumeCames plume(dessin);
    const Tambour tambour{{-2, -16}};
    const double x = Gorge(0), y = tambour.rayon;
    tambour.Corps(plume);
    tambour.Bande(plume, Gorge, DemiGorge, Couleur::Primitif);
    tambour.BoutArbre(plume);
    tambour.Broche(plume, x, 0, y - 2, y + 5, 3.2, Couleur::Galet);
    tambour.Broche(plume, -4, -62, y - 6, y + 4, 4, Couleur::Axe);
    tambour.Plaque(plume, {{x, 4.5, 0}, {-4, 7, -62}}, y + 5, 4);
    tambour.Broche(plume, -4, -62, y + 9, y + 12, 4, Couleur::Axe);
    std::vector<PointFigure> arc;
    for (int i = -10; i <= 10; ++i) {
        const double angle = 0.3 + 0.03 * i;
        arc.push_back(Projette({-4 + 36 * std::sin(angle), y + 12, -62 + 36 * std::cos(angle)}, tambour.origine));
    }
    plume.FlecheDouble(arc);
}

void DessineIndexeurCylindrique(Dessin& dessin) {
    PlumeCames plume(dessin);
    const Tambour tambour{{-2, -18}};
    const double y = tambour.rayon, rayonGalets = 34;
    tambour.Corps(plume);
    // Ribs that stand still over two thirds of a turn and lead from one pitch to the next over the rest.
    constexpr double Pas = 17.6;
    for (int nervure = -2; nervure <= 1; ++nervure)
        tambour.Bande(
            plume,
            [nervure](double angle) {
                const double avance = std::clamp((angle - 0.3) / 1.3, 0.0, 1.0);
                return Pas * (nervure + avance - std::sin(2 * Pi * avance) / (2 * Pi));
            },
            2.8, Couleur::Primitif);
    tambour.BoutArbre(plume);
    constexpr int Galets = 12;
    for (int i = 0; i < Galets; ++i) {
        const double angle = 2 * Pi * (i + 0.5) / Galets;
        tambour.Broche(plume, rayonGalets * std::sin(angle), -rayonGalets - rayonGalets * std::cos(angle), y - 2, y + 6,
                       2.8, Couleur::Galet);
    }
    tambour.Plaque(plume, {{0, rayonGalets + 4, -rayonGalets}}, y + 6, 4);
    tambour.Broche(plume, 0, -rayonGalets, y + 10, y + 14, 9, Couleur::Bras);
    tambour.Broche(plume, 0, -rayonGalets, y + 14, y + 15, 3.5, Couleur::Axe);
}
