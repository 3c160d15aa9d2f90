#include "cylindrical/screens/DoCylOsc.h"

#include "cams/screens/PanneauSchema.h"
#include "cylindrical/CamesCylindriques.h"
#include "cylindrical/DonneesCyl.h"
#include "cylindrical/SchemasCyl.h"
#include "data/Textes.h"
#include "platform/Dialogues.h"
#include "widgets/ChampNombre.h"
#include "widgets/PanneauChamps.h"

namespace {

constexpr ChampSaisie champsGeometrie[] = {
    {"Text1", 400, UniteMm, &DonneesEtude::CoteA},
    {"Text2", 155, UniteMm, &DonneesEtude::RayonO1P},
    {"Text3", 394, UniteMm, &DonneesEtude::DiametreCame},
    {"RayonGalet", 123, UniteMm, &DonneesEtude::RayonGalet},
    {"VitesseCame", 157, UniteTours, &DonneesEtude::VitesseCame},
};
constexpr ChampSaisie champsEfforts[] = {
    {"Text6", 239, UniteKgM2, &DonneesEtude::InertieMasseA},
    {"Text7", 240, UniteNm, &DonneesEtude::CoupleConstantO1},
};

constexpr DescriptionSaisie description{"DoCylOsc",
                                        ZonesOscillation,
                                        {"NombreZones", "AngleDepart", "AngleFinal", "AngleCame", "CoefSymetrie"},
                                        ChercheFauteDuree,
                                        ChercheFauteOscillation,
                                        CalculeCameCylOsc};

} // namespace

DoCylOsc::DoCylOsc(QWidget* parent) : SaisieCame(description, parent) {
    auto* geometrie = new PanneauChamps("Picture2", 151, champsGeometrie);
    auto* schema = new PanneauSchema(DessineSchemaCylOsc);
    constexpr std::pair<const char*, const char*> cotes[] = {
        {"Text1", "a"}, {"Text2", "O1-P"}, {"Text3", "D"}, {"RayonGalet", "galet"}};
    for (const auto& [champ, cote] : cotes) schema->Suit(geometrie->Champ(champ), cote);
    auto* efforts = new PanneauChamps("Picture3", 158, champsEfforts);
    Compose({EmpilePanneaux({geometrie, efforts, schema}, 2)}, {geometrie, efforts}, nullptr);
}

void DoCylOsc::ProposeDonnees() {
    const double proposee = ProposeCoteA();
    if (etude.donnees.CoteA == proposee) return;
    const bool accepte =
        LesDialogues().Question(Texte(528) + " 'a' " + Texte(529) + "\na = " + Format(proposee, "###.##") + "\n" +
                                Texte(530) + " : " + Format(etude.donnees.CoteA, "#####.##") + " " + Texte(531) + " ");
    if (!accepte) return;
    etude.donnees.CoteA = proposee;
    ChargeDonnees();
}
