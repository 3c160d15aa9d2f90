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

    QSize sizeHint() const override {
        // Before it is shown, a sheet does not hear of what changed in the boxes that it holds.
        if (!isVisible())
            for (QWidget* enfant : widget()->findChildren<QWidget*>()) enfant->updateGeometry();
        return widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
    }
};
