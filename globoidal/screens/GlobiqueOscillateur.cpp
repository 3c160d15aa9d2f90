#include "globoidal/screens/GlobiqueOscillateur.h"

#include "globoidal/CapaciteOscillateur.h"
#include "globoidal/ZonesOscillateur.h"
#include "globoidal/screens/PanneauxGlobiques.h"
#include "indexers/screens/ListeCles.h"
#include "indexers/screens/PanneauLoi.h"
#include "indexers/screens/PanneauSaisie.h"
#include "laws/CalculLois.h"
#include "widgets/ChampNombre.h"

namespace {

constexpr int TexteTitre = 524;
constexpr double Tour = 360;
constexpr const char* zones[] = {"AngleZoneA", "AngleZoneB", "AngleZoneC", "AngleZoneD"};
constexpr std::initializer_list<const char*> loisRetour = {"MSH", "MSHC20", "MSHC33", "MSHC50"};
constexpr const char* lois[] = {"LoiZoneA", "LoiZoneC"};

} // namespace

GlobiqueOscillateur::GlobiqueOscillateur(QWidget* parent)
    : EcranGlobique("GlobiqueOscillateur", TexteTitre, &DonneesEtude::GlobiqueOscillateurActif, donnees_, parent) {
    const PanneauxGlobiques panneaux(LieChamps(ChampsOscillateur(), donnees_));
    auto* aller = panneaux.FaitLoi("Frame5", 552, {"LoiZoneA", "SymetrieA", "CoefA1", "CoefB1", "CoefC1"},
                                   "LoiSpeciale1", "Ok1", loisRetour);
    auto* retour = panneaux.FaitLoi("Frame6", 553, {"LoiZoneC", "SymetrieC", "CoefA2", "CoefB2", "CoefC2"},
                                    "LoiSpeciale2", "Ok2", loisRetour);
    ComposeGlobique({panneaux.FaitBoitier(),
                     panneaux.FaitMouvement(MouvementOscillateurSaisi),
                     panneaux.FaitGalet(),
                     {aller, retour}});
    for (const char* zone : {zones[0], zones[1], zones[2]})
        connect(qobject_cast<ChampNombre*>(ControleDe(zone)), &QLineEdit::textEdited, this,
                &GlobiqueOscillateur::CompleteTour);
}

/// The last zone takes what the others leave of the turn, as long as they leave any.
void GlobiqueOscillateur::CompleteTour() {
    double reste = Tour;
    for (const char* zone : {zones[0], zones[1], zones[2]})
        reste -= qobject_cast<ChampNombre*>(ControleDe(zone))->Valeur();
    if (reste >= 0) MontreSansPerimer(zones[3], reste);
}

/// The file is the law of both zones, and the zones lie in it.
void GlobiqueOscillateur::ChoisitFichier() {
    const bool choisi = DemandeFichier(donnees_.FichierLoi);
    for (const char* loi : lois) qobject_cast<ListeCles*>(ControleDe(loi))->Montre(choisi ? NomLoiFichier : "");
    if (!choisi) {
        VideLoi(lois[0]);
        return;
    }
    const auto angles = ZonesDuFichier(donnees_.FichierLoi);
    for (std::size_t i = 0; i < angles.size(); ++i) MontreSansPerimer(zones[i], angles[i]);
}

std::optional<FauteSaisie> GlobiqueOscillateur::ChercheFauteDonnees() const {
    return ChercheFauteOscillateur(donnees_);
}

void GlobiqueOscillateur::CalculeResultats() {
    resultat_ = CalculeCapaciteOscillateur(donnees_, LitLois());
}

RapportGlobique GlobiqueOscillateur::Rapport() const {
    return RapportOscillateur(donnees_, resultat_);
}
