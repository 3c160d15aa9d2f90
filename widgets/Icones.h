// The icons of the program, drawn as vectors in the text colour of the palette: they stand out on light and dark and
// are crisp at any scale.
#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>

/// The icon named by a key of a tool bar.
/// @throws std::logic_error for an unknown key, with the keys there are.
QIcon IconeBarre(const QString& cle);

/// All keys, in the order of the table.
QStringList ClesIcones();
