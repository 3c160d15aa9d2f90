#include "indexers/Catalogue.h"

#include "outils/BaseAEcrire.h"
#include "outils/Catalogue.h"

namespace {

const ChampCatalogue champs[] = {{"DiametreGalet", "DiametreGalet", false, true, 542},
                                 {"HauteurGalet", "HauteurGalet", false, true, 543},
                                 {"CapaciteB10", "CapaciteB10"},
                                 {"CapaciteLimite", "CapaciteLimite", true},
                                 {"codemi", "codemi", false, false}};
const Catalogue galets{"Table Galets", "ReferenceGalet", "ReferenceGalet", champs, 541, {673, 509}, true};

class CalculatorCatalogue : public AvecCatalogue {
protected:
    BaseAEcrire base;
};

} // namespace

TEST_F(CalculatorCatalogue, ANewRowIsFoundByItsKeyBehindTheOthers) {
    const auto avant = ClesCatalogue(galets);
    EXPECT_EQ(ChercheLigne(galets, "G-035")->at("CapaciteB10"), 11850);
    EXPECT_FALSE(ChercheLigne(galets, "g-035"));
    AjouteLigne(galets, "G-036", {{"DiametreGalet", 36.5}, {"HauteurGalet", 20.0}, {"codemi", 7.0}});
    base.Ouvre(BaseDonnees::Usage::Exclusif);
    const auto apres = ClesCatalogue(galets);
    EXPECT_EQ(apres.size(), avant.size() + 1);
    EXPECT_EQ(apres.back(), "G-036");
    const auto ligne = ChercheLigne(galets, "G-036");
    EXPECT_EQ(ligne->at("DiametreGalet"), 36.5);
    EXPECT_EQ(ligne->at("CapaciteB10"), 0.0) << "nothing stands for 0 there";
    EXPECT_FALSE(ligne->at("CapaciteLimite")) << "and for itself here";
    EXPECT_EQ(ligne->at("codemi"), 0.0) << "not stored";
}
