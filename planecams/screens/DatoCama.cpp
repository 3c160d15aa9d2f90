#include "planecams/screens/DatoCama.h"

#include "cams/screens/PanneauPesanteur.h"
#include "cams/screens/PanneauSchema.h"
#include "data/Unites.h"
#include "planecams/CamesPlates.h"
#include "planecams/DonneesPlates.h"
#include "planecams/SchemasCames.h"
#include "widgets/ChampNombre.h"
#include "widgets/PanneauChamps.h"

namespace {

constexpr ChampSaisie champsGeometrie[] = {
    {"Text1", 152, UniteMm, &DonneesEtude::CoteA},           {"Text2", 153, UniteMm, &DonneesEtude::CoteB},
    {"Text3", 154, UniteMm, &DonneesEtude::RayonO1A},        {"Text4", 155, UniteMm, &DonneesEtude::RayonO1P},
    {"Text5", 156, UniteDegres, &DonneesEtude::AnglePO1A},   {"Text6", 123, UniteMm, &DonneesEtude::RayonGalet},
    {"Text18", 157, UniteTours, &DonneesEtude::VitesseCame},
};
constexpr ChampSaisie champsMasses[] = {
    {"Text7", 159, UniteKg, &DonneesEtude::MasseBrasO1A},
    {"Text8", 160, UniteKg, &DonneesEtude::MasseBrasO1P},
    {"Text9", 161, UniteMm, &DonneesEtude::EpaisseurCame},
};
constexpr ChampSaisie champsForces[] = {
    {"Text10", 163, UniteKg, &DonneesEtude::MasseA},
};
constexpr ChampSaisie champsExterieurs[] = {
    {"Text11", 166, UniteN, &DonneesEtude::ForceX},
    {"Text12", 167, UniteN, &DonneesEtude::ForceY},
};

/// The dimension of the drawing that a field sets off while it has the focus.
constexpr struct {
    const char* champ;
    const char* cote;
} cotes[] = {{"Text1", "a"},    {"Text2", "b"},      {"Text3", "O1-A"},
             {"Text4", "O1-P"}, {"Text5", "P-O1-A"}, {"Text6", "galet"}};

constexpr DescriptionSaisie description{"DatoCama",
                                        ZonesAngulaire,
                                        {"Text13", "Text14", "Text15", "Text16", "Text19"},
                                        ChercheFauteAngulaire,
                                        ChercheFauteAngulaire,
                                        CalculeCameAngulaire};

} // namespace

DatoCama::DatoCama(QWidget* parent) : SaisieCame(description, parent) {
    auto* geometrie = new PanneauChamps("Picture2", 151, champsGeometrie);
    auto* schema = new PanneauSchema(DessineSchemaBras);
    auto* masses = new PanneauChamps("Picture3", 158, champsMasses);
    auto* forces = new PanneauChamps("Picture4", 162, champsForces);
    auto* exterieures = new PanneauChamps("Exterieures", 165, champsExterieurs);
    auto* pesanteur = new PanneauPesanteur("Text17");
    Compose({EmpilePanneaux({geometrie, schema}, 1), EmpilePanneaux({masses, forces, exterieures, pesanteur}, 3)},
            {geometrie, masses, forces, exterieures}, pesanteur);
    for (const auto& cote : cotes) schema->Suit(geometrie->Champ(cote.champ), cote.cote);
}
