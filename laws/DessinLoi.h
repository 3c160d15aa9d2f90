// The drawings of motion laws: the picture of a unit law in a chooser, and the graphs of a law study.
#pragma once

#include "core/Etude.h"
#include "platform/Dessin.h"

/// Lift, speed and acceleration of a unit law on one sheet, each to its own scale, without figures: a picture to
/// recognise the law by. Nothing is drawn for an empty table.
void DessineLoi(Dessin& dessin, const Tableau<PointLoi>& table);

/// Names of the curves in their colours, over the whole height of the surface.
void DessineNomsCourbes(Dessin& dessin);

/// The picture of a unit law on a large sheet, with the names of its curves above it.
void DessineLoiNommee(Dessin& dessin, const Tableau<PointLoi>& table);

/// Lift, speed and acceleration of the law study in the record, one graph below the other against the cam angle, with
/// the extreme values marked. Nothing is drawn before the study is calculated.
void DessineCourbes(Dessin& dessin);
