// The point-to-point listings of the results: which columns, under which headings, with which masks. A row is one
// degree of cam angle.
#pragma once

#include "core/TableTexte.h"

TableTexte TableGalet(); ///< motion of the roller centre
/// Motion of the arm. @param avecPointA with that of the point A
TableTexte TableBras(bool avecPointA);
TableTexte TableEfforts();
TableTexte TableCame(); ///< tangent angle, radii of curvature, both profiles
