#include "app/Aide.h"

#include "data/Demarrage.h"
#include "data/Textes.h"
#include "help/screens/VisionneuseAide.h"
#include "platform/Dialogues.h"
#include "widgets/Chaines.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QWindow>

namespace {

enum NumerosTexte { TexteTitreAide = 6, TextePasDAide = 136, TexteSelectionnez = 137, TexteAideAbsente = 138 };

struct AideLangue {
    const char* langue;
    const char* lettre; ///< the answer that chooses it where the working language has none
    const char* fichier;
    const char* invite;
};

constexpr AideLangue LesAides[] = {
    {"Español", "E", "CamesEs.chm", "E para tener ayuda en Español"},
    {"Français", "F", "CamesFr.chm", "F pour avoir l'aide en Français"},
    {"English", "U", "CamesUk.chm", "U for help on English "},
};
constexpr const AideLangue& AideDeReserve = LesAides[1];

std::filesystem::path fichierAide;

/// The row whose field is exactly `valeur`; none for an unknown one.
const AideLangue* Cherche(const char* AideLangue::*champ, const std::string& valeur) {
    for (const AideLangue& aide : LesAides)
        if (valeur == aide.*champ) return &aide;
    return nullptr;
}

const AideLangue* DemandeLangueAide() {
    std::string invite = Texte(TextePasDAide) + " : " + LangueTravail + "\n" + Texte(TexteSelectionnez);
    for (const AideLangue& aide : LesAides) invite += std::string("\n") + aide.invite;
    const auto reponse = LesDialogues().Saisie(Texte(TexteTitreAide), invite, AideDeReserve.lettre);
    return Cherche(&AideLangue::lettre, reponse.value_or(std::string()));
}

} // namespace

void ChoisitAide() {
    const AideLangue* aide = Cherche(&AideLangue::langue, LangueTravail);
    if (!aide) aide = DemandeLangueAide();
    fichierAide = CheminAppli / (aide ? *aide : AideDeReserve).fichier;
}

const std::filesystem::path& FichierAide() {
    return fichierAide;
}

Aide::Aide(const QMdiArea& bureau) : bureau_(bureau) {
    qApp->installEventFilter(this);
}

Aide::~Aide() = default;

bool Aide::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() != QEvent::KeyPress || !objet->isWidgetType()) return false;
    const auto* touche = static_cast<QKeyEvent*>(evenement);
    if (touche->key() != Qt::Key_F1 || touche->modifiers() != Qt::NoModifier) return false;
    Montre(static_cast<QWidget*>(objet));
    return true;
}

bool Aide::Ouvre() {
    if (fenetre_ != nullptr) return true;
    auto fenetre = std::make_unique<VisionneuseAide>(fichierAide);
    if (fenetre->Livre().Pages().empty()) {
        LesDialogues().Message(Icone::Avertissement,
                               Texte(TexteAideAbsente) + " " + S(QChemin(fichierAide.filename())));
        return false;
    }
    fenetre_ = std::move(fenetre);
    fenetre_->setAttribute(Qt::WA_QuitOnClose, false); // the program ends with its main window
    return true;
}

QString Aide::PageDe(const QWidget* controle) const {
    const auto connue = [this](const QWidget& w) { return fenetre_->Livre().Trouve(w.objectName()) != nullptr; };
    for (const QWidget* w = controle; w != nullptr; w = w->parentWidget())
        if (connue(*w)) return w->objectName();
    const QMdiSubWindow* devant = bureau_.currentSubWindow();
    return devant != nullptr && devant->isVisible() ? devant->widget()->objectName() : QString();
}

void Aide::Montre(const QWidget* controle) {
    if (!Ouvre()) return;
    fenetre_->MontrePage(PageDe(controle));
    while (QWidget* liste = QApplication::activePopupWidget()) liste->close(); // an open list or menu keeps the keys
    MetDevant();
}

/// A modal box blocks every window but its own: there the help window becomes one of them.
void Aide::MetDevant() {
    fenetre_->winId(); // makes the window that the system knows
    QWidget* boite = QApplication::activeModalWidget();
    QWindow* proprietaire = boite == nullptr ? nullptr : boite->windowHandle();
    if (fenetre_->windowHandle()->transientParent() != proprietaire) {
        fenetre_->hide();
        fenetre_->windowHandle()->setTransientParent(proprietaire);
    }
    if (fenetre_->isMinimized()) fenetre_->showNormal();
    fenetre_->show();
    fenetre_->raise();
    fenetre_->activateWindow();
}

void Aide::ChangeFichier() {
    if (fenetre_ == nullptr) return;
    const bool montree = fenetre_->isVisible();
    const QString page = fenetre_->Page();
    const QRect place = fenetre_->geometry();
    fenetre_.reset();
    if (!montree || !Ouvre()) return;
    fenetre_->setGeometry(place);
    fenetre_->MontrePage(page);
    MetDevant();
}
