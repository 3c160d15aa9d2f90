// Windows no larger than the display that they stand on.
#pragma once

#include <QSize>

class QWidget;

/// Resizes a window to `taille`, or as far as the display has room for it and its frame, and brings back into the
/// display what would stand out of it.
void TientSurEcran(QWidget& fenetre, QSize taille);
