// The look of the program: the toolkit's own, the same on every desktop; its palette is light or dark as the system's.
#pragma once

#include <QProxyStyle>

class StyleVelorin : public QProxyStyle {
public:
    StyleVelorin() : QProxyStyle(QStringLiteral("Fusion")) {}

    /// The signs of a bar that goes on are drawn: the toolkit's are dark on dark, and reading them loads three
    /// libraries for pictures into every start.
    QIcon standardIcon(StandardPixmap signe, const QStyleOption* option, const QWidget* controle) const override;
};
