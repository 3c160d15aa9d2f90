#include "planecams/screens/DoProfil.h"

#include "cams/screens/PanneauSchema.h"
#include "data/Textes.h"
#include "planecams/CamesPlates.h"
#include "planecams/DonneesPlates.h"
#include "planecams/SchemasCames.h"
#include "platform/Dialogues.h"
#include "widgets/ChampNombre.h"
#include "widgets/ReprendSaisie.h"

namespace {

constexpr DescriptionSaisie description{
    "DoProfil", ZonesLineaire,      {"Text13", "Text14", "Text15", "Text16", "Text19"}, ChampsLineaire, GroupesLineaire,
    nullptr,    CalculeCameLineaire};

} // namespace

DoProfil::DoProfil(QWidget* parent) : SaisieCame(description, parent) {
    auto* schema = new PanneauSchema(DessineSchemaTranslation);
    schema->Suit(ChampDe("RayonGalet"), "galet");
    Compose({EmpilePanneaux({Panneau("Picture2"), schema}, 1),
             EmpilePanneaux({Panneau("Picture3"), Panneau("Picture4"), Panneau("Pesanteur")}, 2)});
}

bool DoProfil::ControleZone(const Zone& zone) {
    if (zone.RayonDepart > 0.0 && zone.RayonFinal > 0.0) return true;
    LesDialogues().Message(Icone::Avertissement, Texte(393));
    ReprendSaisie(*findChild<ChampNombre*>(zone.RayonDepart > 0.0 ? "Text15" : "Text14"));
    return false;
}
