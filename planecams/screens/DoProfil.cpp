#include "planecams/screens/DoProfil.h"

#include "cams/screens/PanneauPesanteur.h"
#include "cams/screens/PanneauSchema.h"
#include "data/Textes.h"
#include "data/Unites.h"
#include "planecams/CamesPlates.h"
#include "planecams/DonneesPlates.h"
#include "planecams/SchemasCames.h"
#include "platform/Dialogues.h"
#include "widgets/ChampNombre.h"
#include "widgets/PanneauChamps.h"

namespace {

constexpr ChampSaisie champsGeometrie[] = {
    {"Text1", 123, UniteMm, &DonneesEtude::RayonGalet},
    {"Text2", 157, UniteTours, &DonneesEtude::VitesseCame},
    {"Text3", 161, UniteMm, &DonneesEtude::EpaisseurCame},
};
constexpr ChampSaisie champsMasse[] = {
    {"Text4", 163, UniteKg, &DonneesEtude::MasseA},
};
constexpr ChampSaisie champsForces[] = {
    {"Text5", 167, UniteN, &DonneesEtude::ForceY},
};

constexpr DescriptionSaisie description{
    "DoProfil",           ZonesLineaire,        {"Text13", "Text14", "Text15", "Text16", "Text19"},
    ChercheFauteLineaire, ChercheFauteLineaire, CalculeCameLineaire};

} // namespace

DoProfil::DoProfil(QWidget* parent) : SaisieCame(description, parent) {
    auto* geometrie = new PanneauChamps("Picture2", 151, champsGeometrie);
    auto* schema = new PanneauSchema(DessineSchemaTranslation);
    schema->Suit(geometrie->Champ("Text1"), "galet");
    auto* masse = new PanneauChamps("Picture3", 162, champsMasse);
    auto* forces = new PanneauChamps("Picture4", 392, champsForces);
    auto* pesanteur = new PanneauPesanteur("Text17");
    Compose({EmpilePanneaux({geometrie, schema}, 1), EmpilePanneaux({masse, forces, pesanteur}, 2)},
            {geometrie, masse, forces}, pesanteur);
}

bool DoProfil::ControleZone(const Zone& zone) {
    if (zone.RayonDepart > 0.0 && zone.RayonFinal > 0.0) return true;
    LesDialogues().Message(Icone::Avertissement, Texte(393));
    findChild<ChampNombre*>(zone.RayonDepart > 0.0 ? "Text15" : "Text14")->setFocus();
    return false;
}
