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

/// The laws that rise only, and the first of rise and return.
std::vector<std::string> NomsLois() {
    std::vector<std::string> noms = NomsLoisZones();
    std::erase(noms, NomLoiFichier);
    noms.insert(noms.end(), {"MSH", NomLoiFichier});
    return noms;
}

} // namespace

GlobiqueIndexeur::GlobiqueIndexeur(QWidget* parent)
    : EcranGlobique("GlobiqueIndexeur", TexteTitre, &DonneesEtude::GlobiqueIndexeurActif, parent) {
    const PanneauxGlobiques panneaux(LieChamps(ChampsIndexeur(), donnees_));
    auto* loi = panneaux.FaitLoi("Frame5", 105, {"NomLoi", "CoefSymetrie", "CoefA", "CoefB", "CoefC"}, "LoiSpeciale",
                                 "Ok", NomsLois());
    ComposeGlobique({panneaux.FaitBoitier(), panneaux.FaitMouvement(MouvementIndexeur), panneaux.FaitGalet(), {loi}});
    connect(loi, &PanneauLoi::FichierChoisi, this, &GlobiqueIndexeur::ChoisitFichier);
}

void GlobiqueIndexeur::ChoisitFichier() {
    if (!DemandeFichier(donnees_.FichierLoi)) VideLoi("NomLoi");
}

std::optional<FauteSaisie> GlobiqueIndexeur::ChercheFaute() {
    return AvecTourelleVidee(ChercheFauteIndexeur(donnees_));
}

void GlobiqueIndexeur::CalculeResultats() {
    resultat_ = CalculeCapaciteIndexador(donnees_, LitLois());
    // A law file has an indexing angle of its own.
    if (donnees_.NomLoi == NomLoiFichier) MontreSansPerimer("AngleIndexage", resultat_.AngleReel * resultat_.Type);
}

RapportGlobique GlobiqueIndexeur::Rapport() const {
    return RapportIndexeur(donnees_, resultat_);
}
