// The strokes of a script file: commands that a French drawing system replays. They are not translated; an empty line
// ends a command. Lengths in millimetres, y up.
#pragma once

#include "platform/Dessin.h"

#include <string>

class Script {
public:
    /// What stands between the two points of a line; the drawing system takes either.
    enum class Saut { Blanc, Retour };

    void Ligne(PointDessin de, PointDessin a, Saut saut);
    void Cercle(PointDessin centre, double diametre);
    /// A cross of two lines of 10 mm.
    void Croix(PointDessin centre, Saut saut);
    /// Begins a polyline, whose points follow.
    void DebutPolyligne();
    void PointPolyligne(PointDessin p);

    const std::string& Texte() const { return texte_; }

private:
    void Point(PointDessin p);

    std::string texte_;
};
