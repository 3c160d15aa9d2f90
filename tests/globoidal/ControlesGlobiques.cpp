#include "globoidal/CapaciteIndexeur.h"
#include "globoidal/CapaciteOscillateur.h"

#include "globoidal/ExemplesGlobiques.h"
#include "globoidal/TextesGlobiques.h"
#include "indexers/TextesIndexeurs.h"
#include "outils/Catalogue.h"

namespace {

class ControlesGlobiques : public AvecCatalogue {};

std::string Dit(const std::optional<FauteSaisie>& faute) {
    return faute ? faute->champ + ": " + faute->texte : "";
}

std::string Faute(const char* champ, int texte, int suite = 0) {
    return std::string(champ) + ": " + Texte(texte) + (suite == 0 ? "" : " " + Texte(suite));
}

} // namespace

TEST_F(ControlesGlobiques, AnIndexerIsCheckedInOrderAndTheFirstFaultStops) {
    DonneesIndexeur d;
    const auto dit = [&] { return Dit(ChercheFauteIndexeur(d)); };
    d.RayonTourelle = 90;
    EXPECT_EQ(dit(), Faute("Entraxe", 535, 536));
    d.Entraxe = 45; // just fits
    EXPECT_EQ(dit(), Faute("NombreStops", 69));
    d.NombreStops = 8, d.NombreGalets = 5.5, d.AngleIndexage = -0.4;
    EXPECT_EQ(dit(), Faute("NombreGalets", 537));
    d.NombreGalets = 4, d.RayonTourelle = 0;
    EXPECT_EQ(dit(), Faute("NombreGalets", 537));
    d.NombreGalets = 5;
    EXPECT_EQ(dit(), Faute("RayonTourelle", 548));
    d.Entraxe = 0;
    EXPECT_EQ(dit(), Faute("Entraxe", 547));
    d.Entraxe = 160, d.RayonTourelle = 90, d.CoefSymetrie = 0.95, d.AngleIndexage = 360.6;
    EXPECT_EQ(dit(), Faute("NomLoi", 538));
    d.NomLoi = "MS_Spe", d.CoefA = 0.5, d.CoefB = 0.3, d.CoefC = 0.3;
    EXPECT_EQ(dit(), Faute("CoefA", 551));
    d.CoefB = d.CoefC = 0, d.CoefA = 0.005;
    EXPECT_EQ(dit(), Faute("CoefA", 551) + "\n" + Texte(TexteDMaximum) + " 0.99.") << "nearly all at constant speed";
    d.CoefA = 0.3, d.CoefB = 0.3, d.CoefC = 0.4;
    EXPECT_EQ(dit(), Faute("AngleIndexage", 623));
    d.AngleIndexage = 360.4;
    EXPECT_EQ(dit(), Faute("CoefSymetrie", 512, 513));
    d.CoefSymetrie = 0.9;
    EXPECT_EQ(dit(), Faute("DiametreGalet", 542)) << "what the formulas divide by comes last";
    d.DiametreGalet = 22, d.HauteurGalet = -12;
    EXPECT_EQ(dit(), Faute("HauteurGalet", 543));
    d.HauteurGalet = 12;
    EXPECT_EQ(dit(), "") << "the angle is a whole number of degrees for its check";
    d.AngleIndexage = -0.4;
    EXPECT_EQ(dit(), Faute("AngleIndexage", 623)) << "but no index goes back";
    d.AngleIndexage = 0.4, d.NombreStops = -8;
    EXPECT_EQ(dit(), Faute("NombreStops", 681));
    d.NombreStops = 8;
    EXPECT_EQ(dit(), "");
    d.NombreStops = 40000;
    EXPECT_THROW(dit(), ErreurExecution);
}

TEST_F(ControlesGlobiques, AnOscillatorIsCheckedInOrderAndTheFirstFaultStops) {
    DonneesOscillateur d = UnOscillateur();
    const auto dit = [&] { return Dit(ChercheFauteOscillateur(d)); };
    d.AngleEntreGalets = 106;
    EXPECT_EQ(dit(), "") << "flanks 68 degrees apart";
    d.AngleEntreGalets = 107;
    EXPECT_EQ(dit(), Faute("AngleEntreGalets", 564));
    d.HauteurGalet = 0;
    EXPECT_EQ(dit(), Faute("HauteurGalet", 543));
    d.SymetrieA = 0.05;
    EXPECT_EQ(dit(), Faute("SymetrieA", 512, 513));
    d.AngleZoneD = 61;
    EXPECT_EQ(dit(), Faute("AngleZoneA", 573));
    d.AngleSortie = 180.6;
    EXPECT_EQ(dit(), Faute("AngleSortie", 572));
    d.AngleEntreGalets = 0.5;
    EXPECT_EQ(dit(), Faute("AngleEntreGalets", 571)) << "halves to even";
    d.LoiZoneA = "MS_Spe", d.CoefA1 = 1.2;
    EXPECT_EQ(dit(), Faute("CoefA1", 551));
    d.LoiZoneA = "";
    EXPECT_EQ(dit(), Faute("LoiZoneA", 538));
    d.NombreGalets = 1;
    EXPECT_EQ(dit(), Faute("NombreGalets", 567));
    d.AngleZoneA = 0;
    EXPECT_EQ(dit(), Faute("AngleSortie", 69));
    d.Entraxe = 44;
    EXPECT_EQ(dit(), Faute("Entraxe", 535, 536));

    // Zones that close the turn and cannot be.
    const auto zones = [&](double a, double b, double c, double repos) {
        d = UnOscillateur();
        d.AngleZoneA = a, d.AngleZoneB = b, d.AngleZoneC = c, d.AngleZoneD = repos;
        return dit();
    };
    EXPECT_EQ(zones(180, 60, 0, 120), Faute("AngleZoneC", 196));
    EXPECT_EQ(zones(-20.5, 140.5, 120, 120), Faute("AngleZoneA", 196));
    EXPECT_EQ(zones(200, -40, 160, 40), Faute("AngleZoneB", TexteValeurNegative));
    EXPECT_EQ(zones(200, 0, 160.5, -.5), Faute("AngleZoneD", TexteValeurNegative));
    EXPECT_EQ(zones(200, 0, 160, 0), "");
}
