#include "app/BureauEcrans.h"

#include "app/Ecrans.h"
#include "widgets/FenetreEnfant.h"
#include "widgets/TailleEcran.h"

#include <QEvent>
#include <QMdiSubWindow>
#include <QStyle>

#include <algorithm>

namespace {

FenetreEnfant* FenetreDe(QMdiSubWindow* cadre) {
    return cadre == nullptr ? nullptr : qobject_cast<FenetreEnfant*>(cadre->widget());
}

} // namespace

BureauEcrans::BureauEcrans(QWidget* parent) : QMdiArea(parent) {
    setObjectName(QStringLiteral("Bureau"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

QMdiSubWindow* BureauEcrans::Cadre(std::string_view nom) const {
    const auto trouve = cadres_.find(nom);
    return trouve == cadres_.end() ? nullptr : trouve->second.data();
}

FenetreEnfant* BureauEcrans::Ouverte(std::string_view nom) const {
    return FenetreDe(Cadre(nom));
}

FenetreEnfant* BureauEcrans::Ouvre(std::string_view nom) {
    const EcranEnfant* ecran = TrouveEcran(nom);
    if (ecran == nullptr) return nullptr;
    Ferme(nom);
    FenetreEnfant* fenetre = ecran->cree(ecran->nom);
    emit Creee(fenetre);
    QMdiSubWindow* cadre = addSubWindow(fenetre, Qt::SubWindow);
    cadre->setSystemMenu(nullptr); // its entries are not in the working language
    cadre->installEventFilter(this);
    cadres_[ecran->nom] = cadre;
    MontreAccueil();
    Place(*cadre);
    cadre->show();
    return fenetre;
}

/// In the middle of the desk; the main window grows where the display has room.
void BureauEcrans::Place(QMdiSubWindow& cadre) {
    QSize besoin = cadre.sizeHint();
    const QSize manque = (besoin - viewport()->size()).expandedTo({0, 0});
    QWidget* principale = window();
    if (!principale->isMaximized() && !manque.isNull()) TientSurEcran(*principale, principale->size() + manque);
    const QSize place = viewport()->size();
    cadre.resize(TailleOuverte(cadre));
    cadre.move((place.width() - cadre.width()) / 2, (place.height() - cadre.height()) / 2);
}

QSize BureauEcrans::TailleOuverte(const QMdiSubWindow& cadre) const {
    const QSize place = viewport()->size();
    QSize besoin = cadre.sizeHint();
    // A sheet that is too high scrolls, and its bar is not to make it too wide as well.
    if (besoin.height() > place.height()) besoin.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return besoin.boundedTo(place);
}

void BureauEcrans::Montre(std::string_view nom) {
    if (QMdiSubWindow* cadre = Cadre(nom)) {
        cadre->show();
        setActiveSubWindow(cadre);
        MontreAccueil();
    } else {
        Ouvre(nom);
    }
}

void BureauEcrans::PlaceAccueil(QWidget* accueil) {
    accueil_ = accueil;
    accueil_->setParent(viewport());
    MontreAccueil();
}

/// A window that is hidden comes back: only without any is the desk empty.
void BureauEcrans::MontreAccueil() {
    if (accueil_ == nullptr) return;
    accueil_->setGeometry(viewport()->rect());
    accueil_->setVisible(std::all_of(cadres_.begin(), cadres_.end(), [](const auto& c) { return !c.second; }));
}

void BureauEcrans::resizeEvent(QResizeEvent* evenement) {
    QMdiArea::resizeEvent(evenement);
    if (accueil_ != nullptr) accueil_->setGeometry(viewport()->rect());
}

/// The toolkit takes the colour of the desk once; the desktop's colours may turn dark while the program runs.
void BureauEcrans::changeEvent(QEvent* evenement) {
    QMdiArea::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange) setBackground(palette().dark());
}

void BureauEcrans::Cache(std::string_view nom) {
    if (QMdiSubWindow* cadre = Cadre(nom)) cadre->hide();
}

void BureauEcrans::Ferme(std::string_view nom) {
    const auto trouve = cadres_.find(nom);
    if (trouve == cadres_.end()) return;
    const QPointer<QMdiSubWindow> cadre = trouve->second;
    cadres_.erase(trouve);
    if (!cadre) return;
    FenetreEnfant* fenetre = FenetreDe(cadre);
    if (fenetre != nullptr) fenetre->Ferme();
    // A loop that turns the cam of this screen ends at its next step.
    if (fenetre == nullptr || !fenetre->Demeure()) etude.resultats.RotationEnCours = Faux;
    cadre->hide();
    removeSubWindow(cadre);
    cadre->deleteLater(); // the request may come out of one of its own buttons
    MontreAccueil();
}

void BureauEcrans::FermeTout() {
    for (const EcranEnfant& ecran : LesEcrans()) {
        const FenetreEnfant* fenetre = Ouverte(ecran.nom);
        if (fenetre == nullptr || !fenetre->Demeure()) Ferme(ecran.nom);
    }
}

FenetreEnfant* BureauEcrans::DonneInertie(double inertie) {
    for (const EcranEnfant& ecran : LesEcrans()) {
        FenetreEnfant* fenetre = Ouverte(ecran.nom);
        if (fenetre == nullptr || !fenetre->isVisible() || !fenetre->PrendInertie(inertie)) continue;
        setActiveSubWindow(Cadre(ecran.nom));
        return fenetre;
    }
    return nullptr;
}

FenetreEnfant* BureauEcrans::Active() const {
    const EcranEnfant* premier = nullptr;
    for (const EcranEnfant& ecran : LesEcrans()) {
        if (ecran.rang == 0 || (premier != nullptr && premier->rang < ecran.rang)) continue;
        const FenetreEnfant* fenetre = Ouverte(ecran.nom);
        if (fenetre != nullptr && fenetre->Active()) premier = &ecran;
    }
    return premier == nullptr ? nullptr : Ouverte(premier->nom);
}

std::vector<FenetreEnfant*> BureauEcrans::Ouvertes() const {
    std::vector<FenetreEnfant*> ouvertes;
    for (const EcranEnfant& ecran : LesEcrans())
        if (FenetreEnfant* fenetre = Ouverte(ecran.nom)) ouvertes.push_back(fenetre);
    return ouvertes;
}

void BureauEcrans::Dit(void (FenetreEnfant::*quoi)()) const {
    for (FenetreEnfant* fenetre : Ouvertes()) (fenetre->*quoi)();
}

bool BureauEcrans::Obtient(bool (FenetreEnfant::*quoi)()) const {
    for (const EcranEnfant& ecran : LesEcrans()) {
        FenetreEnfant* fenetre = Ouverte(ecran.nom);
        if (fenetre != nullptr && fenetre->isVisible() && !(fenetre->*quoi)()) return false;
    }
    return true;
}

bool BureauEcrans::eventFilter(QObject* objet, QEvent* evenement) {
    FenetreEnfant* fenetre = FenetreDe(qobject_cast<QMdiSubWindow*>(objet));
    if (fenetre != nullptr && Ouverte(fenetre->Nom()) == fenetre) {
        if (evenement->type() == QEvent::ToolTip) return true; // those of the title bar are not in the working language
        if (evenement->type() == QEvent::Close) {
            // The cross of a child window is its way back, with all that the screen does then.
            evenement->ignore();
            fenetre->Revient();
            return true;
        }
    }
    return QMdiArea::eventFilter(objet, evenement);
}
