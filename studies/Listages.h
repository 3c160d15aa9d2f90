// The point-to-point listings: which columns, under which headings, with which masks. A row is one degree of cam angle.
#pragma once

#include <span>
#include <string>

struct Colonne {
    int texte; ///< text number of the heading
    int unite; ///< text number of the unit, below the heading
    double (*valeur)(long point);
    const char* masque;
};

std::span<const Colonne> ColonnesGalet(); ///< motion of the roller centre
std::span<const Colonne> ColonnesBras();  ///< motion of the arm and of the point A
std::span<const Colonne> ColonnesEfforts();
std::span<const Colonne> ColonnesCame(); ///< tangent angle, radii of curvature, both profiles

/// Rows of a listing: one a degree, from the first point on.
int LignesListage();

/// The text of a cell; `ligne` from 0, in degrees.
std::string CelluleListage(const Colonne& colonne, int ligne);
