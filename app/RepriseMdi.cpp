// What is entered and not saved: noticed by what each window held when it was opened or last saved, kept while it is
// open, and taken back after it was given up. A cam study stands under the name of its data screen, whichever of its
// windows is open.
#include "app/BureauEcrans.h"
#include "app/MdiCamA.h"
#include "app/TextesApp.h"
#include "laws/EtudesLois.h"
#include "studies/RepriseEtude.h"
#include "studies/TypesEtude.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"

#include <QAction>

#include <algorithm>
#include <utility>

namespace {

bool EstSaisieCame(std::string_view ecran) {
    const auto types = LesTypesEtude();
    return std::any_of(types.begin(), types.end(), [ecran](const TypeEtude& t) { return ecran == t.ecranSaisie; });
}

} // namespace

/// True for a window of the present cam study.
bool MdiCamA::MontreEtude(const FenetreEnfant& fenetre) const {
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    return type != nullptr && (fenetre.Nom() == type->ecranSaisie || fenetre.Nom() == type->ecranResultats);
}

Travail MdiCamA::TravailDe(FenetreEnfant& fenetre) const {
    if (!MontreEtude(fenetre)) {
        const bool loi = TrouveEtudeLoi(fenetre.Nom()) != nullptr;
        return {fenetre.Nom(), loi ? etude.lois.LoiChoisie : std::string(), fenetre.Travail()};
    }
    try {
        if (fenetre.isVisible()) fenetre.LitSaisie(); // the fields of a hidden window are older than the record
    } catch (const ErreurExecution&) {
        // What cannot be read as a number is left as the record has it.
    }
    return {TrouveType(etude.donnees.TypeCame)->ecranSaisie, {}, ComposeReprise()};
}

std::vector<Travail> MdiCamA::TravauxOuverts() const {
    std::vector<Travail> travaux;
    for (FenetreEnfant* fenetre : bureau_->Ouvertes()) {
        Travail travail = TravailDe(*fenetre);
        const auto sauve = sauves_.find(travail.ecran);
        const bool connu = std::find(travaux.begin(), travaux.end(), travail) != travaux.end();
        if (!travail.contenu.empty() && !connu && (sauve == sauves_.end() || sauve->second != travail.contenu))
            travaux.push_back(std::move(travail));
    }
    return travaux;
}

/// A window of a cam study comes and goes while the study stays: that is noted when the study begins.
void MdiCamA::NoteSauve(FenetreEnfant& fenetre) {
    if (!MontreEtude(fenetre)) sauves_[fenetre.Nom()] = fenetre.Travail();
}

void MdiCamA::NoteEtudeSauvee() {
    if (const TypeEtude* type = TrouveType(etude.donnees.TypeCame)) sauves_[type->ecranSaisie] = ComposeReprise();
}

void MdiCamA::Abandonne(std::vector<Travail> travaux) {
    travaux_.Abandonne(std::move(travaux));
    MontreOfferts();
}

void MdiCamA::MontreOfferts() {
    QAction* action = Action("FichierReprendre");
    if (action->isEnabled() == travaux_.Offerts()) return;
    action->setEnabled(travaux_.Offerts());
    MontreAccueil();
}

void MdiCamA::Reprendre() {
    if (RotationEmpeche()) return;
    const std::vector<Travail> repris = travaux_.Reprend();
    FermeEcrans();
    MontreOfferts();
    for (const Travail& travail : repris) Rouvre(travail);
    GardeTravaux();
}

void MdiCamA::Rouvre(const Travail& travail) {
    const bool came = EstSaisieCame(travail.ecran), loi = TrouveEtudeLoi(travail.ecran) != nullptr;
    try {
        if (came || loi) VideEtude();
        if (loi) etude.lois.LoiChoisie = travail.loi;
        if (came) LitReprise(travail.contenu);
        FenetreEnfant* fenetre = OuvreEcran(travail.ecran);
        if (fenetre == nullptr) throw ErreurExecution(NumeroErreur::ContenuInvalide, travail.ecran);
        if (!came) fenetre->Reprend(travail.contenu);
    } catch (const ErreurExecution& erreur) {
        return Annonce(Texte(TexteLectureImpossible) + " " + SensErreur(erreur));
    }
    sauves_.erase(travail.ecran);
    Annonce(Texte(TexteEtudeReprise) + (came ? " " + etude.donnees.NomFichier : std::string()));
}

void MdiCamA::GardeTravaux() {
    if (bureau_->Ouvertes().empty()) garde_.stop();
    try {
        travaux_.Garde(TravauxOuverts());
    } catch (const ErreurExecution& erreur) {
        garde_.stop(); // told once, not again and again
        Annonce(Texte(TexteRepriseImpossible) + " " + SensErreur(erreur));
    }
}
