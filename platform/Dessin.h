// The drawing interface: graphs, cam profiles, developed cams and figures are drawn on it once, and appear on a widget,
// on paper or in a recorder. Coordinates run right and down from the upper left corner, in the surface's own unit
// (pixels on a screen, millimetres on paper); line widths and text heights are in the same unit.
#pragma once

#include <span>
#include <string>

/// What a stroke stands for; the surface chooses the colour, so that drawings follow a light or a dark palette.
enum class Couleur {
    Axe,        ///< axes and frames
    Graduation, ///< grid lines and graduations, discreet
    Texte,
    TexteDiscret,
    Courbe1,
    Courbe2,
    Courbe3,
    Came,     ///< outline of the cam
    Primitif, ///< pitch curve
    Galet,
    Bras,
    Repere, ///< a mark that catches the eye: the shown angle, an arrow
    Numero, ///< the first of the colours by number, `CouleurNumero`
};

/// Colours that tell things of one kind apart by their number.
inline constexpr int NombreCouleurs = 16;

/// The colour of a number; behind the last one they begin again. @param numero from 0
inline Couleur CouleurNumero(int numero) {
    return static_cast<Couleur>(static_cast<int>(Couleur::Numero) + numero % NombreCouleurs);
}

struct PointDessin {
    double x = 0;
    double y = 0;
};

struct Trait {
    Couleur couleur = Couleur::Axe;
    double epaisseur = 1.0;
    bool pointille = false;
};

enum class Ancrage { Gauche, Centre, Droite }; ///< where the given point lies on the text, horizontally

class Dessin {
public:
    virtual ~Dessin() = default;

    virtual double Largeur() const = 0;
    virtual double Hauteur() const = 0;

    virtual void Ligne(PointDessin de, PointDessin a, const Trait& trait) = 0;
    virtual void Polyligne(std::span<const PointDessin> points, const Trait& trait) = 0;
    /// A closed outline filled with a light shade of the stroke's colour.
    virtual void Surface(std::span<const PointDessin> points, const Trait& trait) = 0;
    virtual void Cercle(PointDessin centre, double rayon, const Trait& trait) = 0;
    /// A disc filled with a light shade of the stroke's colour.
    virtual void Disque(PointDessin centre, double rayon, const Trait& trait) = 0;
    /// One line of text; `p` is on its vertical middle.
    virtual void Texte(PointDessin p, const std::string& texte, Ancrage ancrage, double hauteur,
                       Couleur couleur = Couleur::Texte) = 0;
    virtual double LargeurTexte(const std::string& texte, double hauteur) const = 0;
};
