// A sheet that scrolls on a display too small for it, and asks for the room of all it holds.
#pragma once

#include <QScrollArea>

class ZoneDefilante : public QScrollArea {
public:
    explicit ZoneDefilante(QWidget* contenu) {
        setWidget(contenu);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
    }

    QSize sizeHint() const override { return widget()->sizeHint().expandedTo(widget()->minimumSizeHint()); }
};
