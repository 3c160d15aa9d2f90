#include "widgets/TailleEcran.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <algorithm>

void TientSurEcran(QWidget& fenetre, QSize taille) {
    const QRect ecran = fenetre.screen()->availableGeometry();
    // A window gets its frame when it is shown: until then the height of a title bar is set aside.
    QSize cadre = fenetre.frameSize() - fenetre.size();
    if (!fenetre.isVisible()) cadre = QSize(0, fenetre.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    fenetre.resize(taille.boundedTo(ecran.size() - cadre));
    if (!fenetre.isVisible()) return; // the system places it
    const QPoint dehors = fenetre.frameGeometry().bottomRight() - ecran.bottomRight();
    if (dehors.x() > 0 || dehors.y() > 0)
        fenetre.move((fenetre.pos() - QPoint(std::max(dehors.x(), 0), std::max(dehors.y(), 0))));
}
