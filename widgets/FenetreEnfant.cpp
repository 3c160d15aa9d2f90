#include "widgets/FenetreEnfant.h"

#include <QAbstractButton>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QShortcut>

FenetreEnfant::FenetreEnfant(const char* nom, QWidget* parent, Booleen16 DonneesEtude::*active)
    : QWidget(parent), active_(active) {
    setObjectName(QString::fromLatin1(nom));
    if (active_ != nullptr) etude.donnees.*active_ = Vrai;
}

bool FenetreEnfant::EnAvant() const {
    const auto* cadre = qobject_cast<const QMdiSubWindow*>(parentWidget());
    return cadre != nullptr && cadre->mdiArea() != nullptr && cadre->mdiArea()->currentSubWindow() == cadre;
}

void FenetreEnfant::RevientPar(QAbstractButton& bouton) {
    retour_ = &bouton;
}

void FenetreEnfant::RevientAussiParEchappement() {
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &FenetreEnfant::Revient);
}

void FenetreEnfant::Revient() {
    if (retour_ != nullptr) retour_->click();
}

bool FenetreEnfant::Active() const {
    return active_ != nullptr && etude.donnees.*active_ != Faux;
}

bool FenetreEnfant::PretAEnregistrer() const {
    return etude.resultats.EtudeModifiee != Faux;
}

bool FenetreEnfant::PretAImprimer() const {
    return etude.resultats.ResultatsPrets != Faux;
}

void FenetreEnfant::Ferme() {
    if (active_ == nullptr) return;
    etude.donnees.*active_ = Faux;
    etude.resultats.EtudeModifiee = Faux;
    etude.resultats.ResultatsPrets = Faux;
}
