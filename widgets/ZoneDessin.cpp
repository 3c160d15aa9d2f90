#include "widgets/ZoneDessin.h"

#include "widgets/DessinQt.h"

#include <QPainter>

#include <exception>

ZoneDessin::ZoneDessin(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ZoneDessin::Peint(std::function<void(Dessin&)> procedure) {
    procedure_ = std::move(procedure);
    update();
}

void ZoneDessin::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.fillRect(rect(), palette().color(QPalette::Base));
    if (procedure_) {
        try {
            DessinQt dessin(peintre, QRectF(rect()), palette());
            procedure_(dessin);
        } catch (...) {
            // A box cannot be shown while painting: the failure goes on from the event loop, where it is told.
            procedure_ = nullptr;
            QMetaObject::invokeMethod(
                this, [faute = std::current_exception()] { std::rethrow_exception(faute); }, Qt::QueuedConnection);
        }
    }
    peintre.setPen(palette().color(QPalette::Mid));
    peintre.drawRect(rect().adjusted(0, 0, -1, -1));
}
