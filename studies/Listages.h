// The point-to-point listings: which columns, under which headings, with which masks. A row is one degree of cam angle.
#pragma once

#include <span>
#include <string>

struct Colonne {
    int texte; ///< text number of the heading
    int unite; ///< text number of the unit, below the heading
    double (*valeur)(long point);
    const char* masque;
    int texteDeveloppee = 0; ///< the heading on a developed cam, where it is another
};

/// Text number of a column's heading for the present study.
int TexteColonne(const Colonne& colonne);

std::span<const Colonne> ColonnesGalet(); ///< motion of the roller centre
/// Motion of the arm. @param pointA with that of the point A
std::span<const Colonne> ColonnesBras(bool pointA);
std::span<const Colonne> ColonnesEfforts();
std::span<const Colonne> ColonnesCame(); ///< tangent angle, radii of curvature, both profiles

/// Rows of a listing: one a degree, from the first point on.
int LignesListage();

/// The text of a cell; `ligne` from 0, in degrees.
std::string CelluleListage(const Colonne& colonne, int ligne);
