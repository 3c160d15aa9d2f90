// The legend of a drawing: what each stroke is, in one row.
#pragma once

#include "platform/Dessin.h"

#include <span>
#include <string>

struct EntreeLegende {
    Trait trait;
    std::string nom;
    Couleur encre = Couleur::Texte; ///< colour of the name
};

/// Lengths of a legend, in heights of its text.
struct MesuresLegende {
    double trait = 1.7; ///< a sample of a stroke
    double blanc = 0.5; ///< from the sample to its name
    double ecart = 1.8; ///< from one entry to the next
};

/// Draws the strokes with their names, from left to right; a row that is wider than the surface is reduced to it.
/// @param depart middle of the first stroke's left end; @param hauteur of the text
void DessineLegende(Dessin& dessin, PointDessin depart, double hauteur, std::span<const EntreeLegende> entrees,
                    const MesuresLegende& mesures = {});
