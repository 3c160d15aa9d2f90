// For the destructor of a screen: a field that loses the focus while its screen goes still announces itself, and nobody
// is there to listen any more.
#pragma once

#include <QWidget>

/// Breaks off what the controls of a screen tell it.
inline void CesseEcoute(QWidget& ecran) {
    for (QObject* enfant : ecran.findChildren<QObject*>()) enfant->disconnect(&ecran);
}
