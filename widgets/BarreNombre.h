// A horizontal scroll bar that stands for a number, worked with the keys as well: to the right it grows.
#pragma once

#include <QKeyEvent>
#include <QScrollBar>

class BarreNombre : public QScrollBar {
public:
    explicit BarreNombre(QWidget* parent = nullptr) : QScrollBar(Qt::Horizontal, parent) {
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    /// The toolkit's own goes the other way round, as a page moves under its bar.
    void keyPressEvent(QKeyEvent* evenement) override {
        if (evenement->key() == Qt::Key_Left)
            triggerAction(SliderSingleStepSub);
        else if (evenement->key() == Qt::Key_Right)
            triggerAction(SliderSingleStepAdd);
        else
            QScrollBar::keyPressEvent(evenement);
    }
};
