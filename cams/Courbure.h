// The check of the finished geometry that all cams share: is the cam curved too tightly for its roller?
#pragma once

/// Radii of curvature of the pitch curve and of both profiles, and the box that lists where they are too small for the
/// roller. The calculation goes on.
void ControleCourbure();
