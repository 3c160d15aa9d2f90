// Later starts of the program: the window comes to the front, and opens the files that they hand over as it opens one
// that is dropped, one after the other, once nothing waits for the user.
#include "app/InstanceUnique.h"
#include "app/MdiCamA.h"
#include "app/TextesApp.h"
#include "widgets/Chaines.h"

#include <QApplication>
#include <QThread>

#include <chrono>

namespace {

/// Between two looks at whether a box is still open.
constexpr std::chrono::milliseconds PasBoite{100};

/// For the answer of the desktop to a window that wants attention.
constexpr std::chrono::milliseconds DelaiDevant{50};

/// True while something waits for the user: a file that is opened then would take away what it is about.
bool AttendUtilisateur() {
    return QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr ||
           QThread::currentThread()->loopLevel() > 1;
}

} // namespace

void MdiCamA::Accueille(const Remise& remise) {
    VientDevant(remise.jeton);
    if (!remise.fichier.empty()) OuvreQuandLibre(remise.fichier);
}

void MdiCamA::OuvreQuandLibre(const std::filesystem::path& fichier) {
    remis_.push_back(fichier);
    if (AttendUtilisateur()) Annonce(Texte(TexteOuvertureAttend) + " " + S(QChemin(fichier.filename())));
    attenteRemis_.start(0);
}

void MdiCamA::OuvreRemis() {
    if (AttendUtilisateur()) return attenteRemis_.start(PasBoite);
    const std::filesystem::path fichier = remis_.front();
    remis_.pop_front();
    if (!remis_.empty()) attenteRemis_.start(0);
    OuvreAutre(fichier);
}

/// The box that is open comes before the window.
/// @param jeton leave of the desktop to take the focus, where it gave one
void MdiCamA::VientDevant(const std::string& jeton) {
    // Where windows need a leave, the toolkit takes it from here for its next request.
    if (!jeton.empty()) qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(jeton));
    setWindowState(windowState() & ~Qt::WindowMinimized);
    // A desktop that leaves the focus elsewhere shows that something has come. Its answer tells the toolkit the time,
    // too: a request with that of the last key typed here would be older than the double click in the other window.
    QApplication::alert(this);
    QTimer::singleShot(DelaiDevant, this, [this] {
        QWidget* boite = QApplication::activeModalWidget();
        QWidget& devant = boite == nullptr ? *this : *boite;
        devant.raise();
        devant.activateWindow();
    });
}
