// What all pipelines of a cam whose follower is a roller have in common: the zones held in points, the tables of their
// size, and stages that run one after the other while none has failed.
#pragma once

#include "core/Etude.h"

#include <functional>
#include <initializer_list>
#include <vector>

/// Holds the extents of the zones in points for the length of a calculation. They are back in degrees when it is over,
/// on every way out.
class ZonesEnPoints {
public:
    ZonesEnPoints();
    ~ZonesEnPoints();
    ZonesEnPoints(const ZonesEnPoints&) = delete;
    ZonesEnPoints& operator=(const ZonesEnPoints&) = delete;

    /// Multiplies the extents by `PointsParDegre` and sums the rounded extents into `NombrePoints`.
    /// @throws ErreurExecution overflow above 32767 points.
    void Passe();

private:
    std::vector<double> degres_;
};

/// What its stages and the readers of its results must know of a kind of cam.
struct NatureCame {
    bool bras;                   ///< the follower is an arm: `Mouvement` has its motion
    bool developpee = false;     ///< cut on a cylinder: the curves are those of the developed surface
    bool profilExterieur = true; ///< the roller runs between two profiles
};

using Etape = std::function<void()>;

/// Sizes the point tables and runs the stages in their order, each only while `Erreur` is clear, and with it cleared.
/// @throws ErreurExecution whatever stops the arithmetic, and a result that is no finite number in the end; the zones
/// are back in degrees and no table is left.
void DerouleEtapes(const NatureCame& nature, std::initializer_list<Etape> etapes);
