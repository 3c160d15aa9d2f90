#include "cylindrical/screens/DoCylOsc.h"

#include "cams/screens/PanneauSchema.h"
#include "cylindrical/CamesCylindriques.h"
#include "cylindrical/DonneesCyl.h"
#include "cylindrical/SchemasCyl.h"
#include "data/Textes.h"
#include "platform/Dialogues.h"
#include "widgets/Chaines.h"

#include <QLineEdit>

namespace {

constexpr DescriptionSaisie description{
    "DoCylOsc",        ZonesOscillation,   {"NombreZones", "AngleDepart", "AngleFinal", "AngleCame", "CoefSymetrie"},
    ChampsOscillation, GroupesOscillation, "VitesseCame",
    CalculeCameCylOsc};

} // namespace

DoCylOsc::DoCylOsc(QWidget* parent) : SaisieCame(description, parent) {
    auto* schema = new PanneauSchema(DessineSchemaCylOsc);
    constexpr std::pair<const char*, const char*> cotes[] = {
        {"CoteA", "a"}, {"RayonO1P", "O1-P"}, {"DiametreCame", "D"}, {"RayonGalet", "galet"}};
    for (const auto& [champ, cote] : cotes) schema->Suit(ChampDe(champ), cote);
    Compose({EmpilePanneaux({Panneau("Picture2"), Panneau("Picture3"), schema}, 2)});
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
