#include "planecams/screens/DatoCama.h"

#include "cams/screens/PanneauSchema.h"
#include "planecams/CamesPlates.h"
#include "planecams/DonneesPlates.h"
#include "planecams/SchemasCames.h"

#include <QLineEdit>

namespace {

/// The dimension of the drawing that a field sets off while it has the focus.
constexpr struct {
    const char* champ;
    const char* cote;
} cotes[] = {{"CoteA", "a"},       {"CoteB", "b"},          {"RayonO1A", "O1-A"},
             {"RayonO1P", "O1-P"}, {"AnglePO1A", "P-O1-A"}, {"RayonGalet", "galet"}};

constexpr DescriptionSaisie description{
    "DatoCama",          ZonesAngulaire,   {"Text13", "Text14", "Text15", "Text16", "Text19"},
    ChampsAngulaire,     GroupesAngulaire, nullptr,
    CalculeCameAngulaire};

} // namespace

DatoCama::DatoCama(QWidget* parent) : SaisieCame(description, parent) {
    auto* schema = new PanneauSchema(DessineSchemaBras);
    Compose(
        {EmpilePanneaux({Panneau("Picture2"), schema}, 1),
         EmpilePanneaux({Panneau("Picture3"), Panneau("Picture4"), Panneau("Exterieures"), Panneau("Pesanteur")}, 3)});
    for (const auto& cote : cotes) schema->Suit(ChampDe(cote.champ), cote.cote);
}
