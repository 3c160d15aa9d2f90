// The legend of a drawing: what each stroke is, in one row.
#pragma once

#include "platform/Dessin.h"

#include <span>

struct EntreeLegende {
    Trait trait;
    int texte;                      ///< text number
    Couleur encre = Couleur::Texte; ///< colour of the name
};

/// Draws the strokes with their names, from left to right. @param depart middle of the first stroke's left end;
/// @param hauteur of the text
void DessineLegende(Dessin& dessin, PointDessin depart, double hauteur, std::span<const EntreeLegende> entrees);
