#include "cylindrical/screens/DoCyl.h"

#include "cams/screens/PanneauSchema.h"
#include "cylindrical/CamesCylindriques.h"
#include "cylindrical/DonneesCyl.h"
#include "cylindrical/SchemasCyl.h"

#include <QLineEdit>

namespace {

constexpr DescriptionSaisie description{"DoCyl",
                                        ZonesCylindrique,
                                        {"Text6", "Text7", "Text8", "Text9", "CoefSymetrie"},
                                        ChampsCylindrique,
                                        GroupesCylindrique,
                                        "VitesseCame",
                                        CalculeCameCylindrique};

} // namespace

DoCyl::DoCyl(QWidget* parent) : SaisieCame(description, parent) {
    auto* schema = new PanneauSchema(DessineSchemaCyl);
    schema->Suit(ChampDe("RayonGalet"), "galet");
    schema->Suit(ChampDe("DiametreCame"), "D");
    Compose({EmpilePanneaux({Panneau("Picture2"), schema}, 1),
             EmpilePanneaux({Panneau("Picture3"), Panneau("Picture4"), Panneau("Pesanteur")}, 2)});
}
