// An icon out of a drawing: it follows the palette and is crisp at any scale.
#pragma once

#include "platform/Dessin.h"

#include <QIcon>
#include <QSize>

#include <functional>

/// @param taille size that the drawing's strokes are made for, pixels; on a larger surface they grow with it
QIcon IconeDessin(std::function<void(Dessin&)> dessine, QSize taille);
