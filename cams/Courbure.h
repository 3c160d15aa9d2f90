// The check of the finished geometry that all cams share: is the cam curved too tightly for its roller?
#pragma once

#include "platform/Dessin.h"

#include <span>
#include <vector>

/// Text number of what the legend of a drawing calls such a place.
inline constexpr int TexteCourbureFaible = 839;

/// Radii of curvature of the pitch curve and of both profiles, and the box that lists where they are too small for the
/// roller. The calculation goes on.
void ControleCourbure();

/// Whole cam angles, in degrees, the last one included.
struct PlageAngles {
    int debut = 0, fin = 0;
};

/// Where the cam of the present results is curved too tightly, by the same check; none where the check lets it pass.
std::vector<PlageAngles> PlagesTropCourbees();

/// The parts of both profiles that the roller cannot follow there.
/// @param premier point of the results that the curves begin with
std::vector<std::span<const PointDessin>> PartiesTropCourbees(std::span<const PointDessin> interieur,
                                                              std::span<const PointDessin> exterieur, long premier = 0);
