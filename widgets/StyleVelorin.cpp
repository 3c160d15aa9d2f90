#include "widgets/StyleVelorin.h"

#include "widgets/Icones.h"

QIcon StyleVelorin::standardIcon(StandardPixmap signe, const QStyleOption* option, const QWidget* controle) const {
    switch (signe) {
    case SP_ToolBarHorizontalExtensionButton:
        return IconeBarre(QStringLiteral("SuiteDroite"));
    case SP_ToolBarVerticalExtensionButton:
        return IconeBarre(QStringLiteral("SuiteBas"));
    default:
        return QProxyStyle::standardIcon(signe, option, controle);
    }
}
