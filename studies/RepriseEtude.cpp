#include "studies/RepriseEtude.h"

#include "cams/CompleteZones.h"
#include "core/Lignes.h"
#include "laws/FichierLoi.h"
#include "studies/TypesEtude.h"

namespace {

/// The law of a zone that takes it from a law file is kept with it.
bool LoiDeFichier() {
    return etude.lois.DeFichier && etude.donnees.NombreZones == 1 && etude.donnees.Zones[1].NomLoi == NomLoiFichier &&
           etude.lois.LoiUnite.BorneHaute() >= PointsLoiFichier;
}

void ComposeZone(std::string& contenu, const TypeEtude& type, const Zone& zone) {
    const auto ligne = [&contenu](const std::string& texte) { contenu += texte + FinDeLigne; };
    for (const double nombre : {zone.*type.zones->valeurDepart, zone.*type.zones->valeurFinale, zone.AngleCame})
        ligne(StrTrim(nombre));
    ligne(zone.NomLoi);
    ligne(StrTrim(zone.CoefSymetrie));
}

void LitZone(Lignes& lignes, const TypeEtude& type, Zone& zone) {
    zone.*type.zones->valeurDepart = Val(lignes.Suivante());
    zone.*type.zones->valeurFinale = Val(lignes.Suivante());
    zone.AngleCame = Val(lignes.Suivante());
    zone.NomLoi = lignes.Suivante();
    zone.CoefSymetrie = Val(lignes.Suivante());
}

/// Durations and radii of the zones, as far as what was entered gives them: it may be unfinished.
void Complete(const TypeEtude& type) {
    try {
        CompleteZones(type.zones->rayonsBras);
    } catch (const ErreurExecution&) {
        // The calculation completes them again, and tells then what is missing.
    }
    etude.resultats.Erreur = Faux;
}

} // namespace

std::string ComposeReprise() {
    const DonneesEtude& d = etude.donnees;
    const TypeEtude* type = TrouveType(d.TypeCame);
    if (type == nullptr) return {};
    std::string contenu;
    const auto ligne = [&contenu](const std::string& texte) { contenu += texte + FinDeLigne; };
    ligne(d.TypeCame);
    ligne(d.NomFichier);
    for (const auto& champ : type->champs) ligne(StrTrim(champ.Nombre(d)));
    ligne(StrTrim(d.PointsParDegre));
    ligne(StrTrim(d.NombreZones));
    for (std::int16_t z = 1; z <= d.NombreZones; ++z) ComposeZone(contenu, *type, d.Zones[z]);
    // The zone at hand, by its number; none where all that was typed is accepted.
    ligne(StrTrim(d.ZoneSaisie ? d.ZoneSaisie->numero : 0));
    if (d.ZoneSaisie) ComposeZone(contenu, *type, d.ZoneSaisie->zone);
    if (LoiDeFichier())
        for (long i = 1; i <= PointsLoiFichier; ++i) {
            const PointLoi& p = etude.lois.LoiUnite[i];
            ligne(StrTrim(p.Course) + ";" + StrTrim(p.Vitesse) + ";" + StrTrim(p.Accel));
        }
    return contenu;
}

void LitReprise(std::string_view contenu) {
    Lignes lignes(contenu);
    DonneesEtude& d = etude.donnees;
    d.TypeCame = lignes.Suivante();
    const TypeEtude& type = LeTypeEtude();
    d.NomFichier = lignes.Suivante();
    for (const auto& champ : type.champs) champ.Nombre(d) = Val(lignes.Suivante());
    d.PointsParDegre = Entier16(Val(lignes.Suivante()));
    d.NombreZones = Entier16(Val(lignes.Suivante()));
    d.Zones.Redimensionne(d.NombreZones);
    for (std::int16_t z = 1; z <= d.NombreZones; ++z) LitZone(lignes, type, d.Zones[z]);
    Complete(type);
    if (const std::int16_t numero = Entier16(Val(lignes.Suivante())); numero > 0) {
        d.ZoneSaisie = SaisieZone{numero, {}};
        LitZone(lignes, type, d.ZoneSaisie->zone);
    }
    if (!lignes.Fin()) LitLoi(lignes.Reste());
}
