#include "globoidal/screens/GlobiqueIndexeur.h"

#include "globoidal/CapaciteIndexeur.h"
#include "globoidal/CataloguesGlobiques.h"
#include "globoidal/LoisGlobiques.h"
#include "globoidal/screens/PanneauxGlobiques.h"
#include "indexers/screens/PanneauLoi.h"
#include "indexers/screens/PanneauSaisie.h"
#include "laws/CalculLois.h"

namespace {

constexpr int TexteTitre = 592;

} // namespace

GlobiqueIndexeur::GlobiqueIndexeur(QWidget* parent)
    : EcranGlobique("GlobiqueIndexeur", TexteTitre, &DonneesEtude::GlobiqueIndexeurActif, donnees_, parent) {
    const PanneauxGlobiques panneaux(LieChamps(ChampsIndexeur(), donnees_));
    auto* loi = panneaux.FaitLoi("Frame5", 105, {"NomLoi", "CoefSymetrie", "CoefA", "CoefB", "CoefC"}, "LoiSpeciale",
                                 "Ok", {"MSH"});
    ComposeGlobique({panneaux.FaitBoitier(), panneaux.FaitMouvement(MouvementIndexeur), panneaux.FaitGalet(), {loi}});
}

void GlobiqueIndexeur::ChoisitFichier() {
    if (!DemandeFichier(donnees_.FichierLoi)) VideLoi("NomLoi");
}

std::optional<FauteSaisie> GlobiqueIndexeur::ChercheFauteDonnees() const {
    return ChercheFauteIndexeur(donnees_);
}

void GlobiqueIndexeur::CalculeResultats() {
    resultat_ = CalculeCapaciteIndexador(donnees_, LitLois());
    // A law file has an indexing angle of its own.
    if (donnees_.NomLoi == NomLoiFichier) MontreSansPerimer("AngleIndexage", resultat_.AngleReel * resultat_.Type);
}

RapportGlobique GlobiqueIndexeur::Rapport() const {
    return RapportIndexeur(donnees_, resultat_);
}
