#include "cylindrical/screens/DoCyl.h"

#include "cams/screens/PanneauPesanteur.h"
#include "cams/screens/PanneauSchema.h"
#include "cylindrical/CamesCylindriques.h"
#include "cylindrical/DonneesCyl.h"
#include "cylindrical/SchemasCyl.h"
#include "widgets/ChampNombre.h"
#include "widgets/PanneauChamps.h"

namespace {

constexpr ChampSaisie champsGeometrie[] = {
    {"Text1", 157, UniteTours, &DonneesEtude::VitesseCame},
    {"Text2", 123, UniteMm, &DonneesEtude::RayonGalet},
    {"Text10", 394, UniteMm, &DonneesEtude::DiametreCame},
};
constexpr ChampSaisie champsMasse[] = {
    {"Text4", 395, UniteKg, &DonneesEtude::MasseA},
};
constexpr ChampSaisie champsForces[] = {
    {"Text5", 167, UniteN, &DonneesEtude::ForceY},
};

constexpr DescriptionSaisie description{
    "DoCyl",           ZonesCylindrique,        {"Text6", "Text7", "Text8", "Text9", "CoefSymetrie"},
    ChercheFauteDuree, ChercheFauteCylindrique, CalculeCameCylindrique};

} // namespace

DoCyl::DoCyl(QWidget* parent) : SaisieCame(description, parent) {
    auto* geometrie = new PanneauChamps("Picture2", 151, champsGeometrie);
    auto* schema = new PanneauSchema(DessineSchemaCyl);
    schema->Suit(geometrie->Champ("Text2"), "galet");
    schema->Suit(geometrie->Champ("Text10"), "D");
    auto* masse = new PanneauChamps("Picture3", 162, champsMasse);
    auto* forces = new PanneauChamps("Picture4", 392, champsForces);
    auto* pesanteur = new PanneauPesanteur("Text3");
    Compose({EmpilePanneaux({geometrie, schema}, 1), EmpilePanneaux({masse, forces, pesanteur}, 2)},
            {geometrie, masse, forces}, pesanteur);
}
