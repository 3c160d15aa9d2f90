// The pictures of the twenty kinds of solid: the body on the axis that it turns about, not to scale, with its
// dimensions named by their letters.
#pragma once

#include "platform/Dessin.h"

#include <string>

struct VueSolide {
    bool cotes = true;    ///< with the dimensions; without them the body fills the surface
    std::string accent{}; ///< letter of the dimension that is set off, may be empty
};

/// Draws one kind into the whole surface. Thin strokes and letters keep their size in the unit of the surface.
/// @param TypeSolide 1..20; nothing is drawn for any other
void DessineSolide(Dessin& dessin, int TypeSolide, const VueSolide& vue = {});
