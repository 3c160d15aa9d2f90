#include "widgets/Application.h"

#include "data/Textes.h"
#include "platform/Dialogues.h"
#include "widgets/Icones.h"
#include "widgets/Polices.h"
#include "widgets/StyleVelorin.h"
#include "widgets/TravailFond.h"

#include <QAbstractSlider>
#include <QComboBox>
#include <QEvent>
#include <QFontDatabase>
#include <QFontMetricsF>

namespace {

/// Name shown in the titles of the boxes.
constexpr const char* NomProgramme = "Velorin";

void Annonce(const std::string& texte) {
    while (QGuiApplication::overrideCursor()) QGuiApplication::restoreOverrideCursor();
    LesDialogues().Message(Icone::Critique, texte);
}

} // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QString::fromLatin1(NomProgramme));
    setStyle(new StyleVelorin);
    setDesktopFileName(QStringLiteral("velorin")); // by which a desktop finds the entry of a window
    setWindowIcon(IconeBarre(applicationName()));
    installEventFilter(this);
    ListePolices();
}

Application::~Application() {
    AttendFond(); // the jobs use what the toolkit clears away now
}

bool Application::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() != QEvent::Wheel) return false;
    const auto* entree = qobject_cast<QWidget*>(objet);
    // The bars of a page take no focus at all, and one that only turns a drawing takes it from the wheel.
    const bool change =
        qobject_cast<const QComboBox*>(entree) != nullptr ||
        (qobject_cast<const QAbstractSlider*>(entree) != nullptr && entree->focusPolicy() == Qt::StrongFocus);
    if (!change || entree->hasFocus()) return false;
    evenement->ignore(); // goes on to the page
    return true;
}

bool Application::notify(QObject* receveur, QEvent* evenement) {
    try {
        return QApplication::notify(receveur, evenement);
    } catch (const ErreurExecution& erreur) {
        Annonce(TexteErreur(erreur));
    } catch (const std::exception& faute) {
        Annonce(faute.what());
    }
    return true;
}

QFont PoliceTabulaire(const QFont& base) {
    const QFontMetricsF mesures(base);
    const double largeur = mesures.horizontalAdvance('0');
    for (char chiffre = '1'; chiffre <= '9'; ++chiffre)
        if (mesures.horizontalAdvance(chiffre) != largeur) {
            QFont fixe = QFontDatabase::systemFont(QFontDatabase::FixedFont);
            fixe.setPointSizeF(base.pointSizeF());
            return fixe;
        }
    return base;
}

Sablier::Sablier() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}
Sablier::~Sablier() {
    QGuiApplication::restoreOverrideCursor();
}
