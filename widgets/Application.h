// The application object: where a run-time failure is told that nobody has caught, and the looks that hold everywhere.
#pragma once

#include <QApplication>
#include <QFont>

class Application : public QApplication {
    Q_OBJECT

public:
    Application(int& argc, char** argv);
    ~Application() override;
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    /// Delivers an event. A failure that its handler lets out is told in a critical box, and the program goes on.
    bool notify(QObject* receveur, QEvent* evenement) override;

protected:
    /// The wheel scrolls the page under a list or a bar for entries that has no focus, and leaves what stands there.
    bool eventFilter(QObject* objet, QEvent* evenement) override;
};

/// `base` when all its figures have one width, otherwise the fixed-pitch font of the system in the same size: numbers
/// below each other stay in columns.
QFont PoliceTabulaire(const QFont& base);

/// The hourglass for the life of this object.
class Sablier {
public:
    Sablier();
    ~Sablier();
    Sablier(const Sablier&) = delete;
    Sablier& operator=(const Sablier&) = delete;
};
