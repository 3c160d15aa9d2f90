// A sheet that scrolls on a display too small for it, and asks for the room of all it holds.
#pragma once

#include <QEvent>
#include <QLayout>
#include <QScrollArea>

#include <algorithm>

/// Holds the sheet, and needs no more height than its narrowest form at the width there is: a scroll area would give a
/// sheet with wrapped texts the height that it likes best.
class TientFeuille : public QWidget {
public:
    explicit TientFeuille(QWidget* feuille) : feuille_(feuille) {
        feuille_->setParent(this);
        feuille_->installEventFilter(this);
    }

    QWidget* Feuille() const { return feuille_; }
    QSize sizeHint() const override { return feuille_->sizeHint().expandedTo(feuille_->minimumSizeHint()); }
    QSize minimumSizeHint() const override {
        QSize taille = feuille_->minimumSizeHint();
        const QLayout* disposition = feuille_->layout();
        if (disposition != nullptr && disposition->hasHeightForWidth())
            taille.setHeight(std::max(taille.height(), disposition->totalMinimumHeightForWidth(width())));
        return taille;
    }

protected:
    void resizeEvent(QResizeEvent*) override {
        feuille_->setGeometry(rect());
        updateGeometry(); // wrapped texts are of another height at another width
    }
    bool eventFilter(QObject* objet, QEvent* evenement) override {
        if (objet == feuille_ && evenement->type() == QEvent::LayoutRequest) updateGeometry();
        return QWidget::eventFilter(objet, evenement);
    }

private:
    QWidget* feuille_;
};

class ZoneDefilante : public QScrollArea {
public:
    explicit ZoneDefilante(QWidget* contenu) {
        setWidget(new TientFeuille(contenu));
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
    }

    QSize sizeHint() const override {
        // Before it is shown, a sheet does not hear of what changed in the boxes that it holds.
        if (!isVisible())
            for (QWidget* enfant : widget()->findChildren<QWidget*>()) enfant->updateGeometry();
        return widget()->sizeHint();
    }
};
