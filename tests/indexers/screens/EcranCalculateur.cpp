#include "indexers/screens/EcranCalculateur.h"

#include "data/Unites.h"
#include "indexers/screens/PanneauLoi.h"
#include "indexers/screens/PanneauResultats.h"
#include "indexers/screens/PanneauSaisie.h"
#include "outils/BaseAEcrire.h"
#include "outils/EcranDeCalculateur.h"

namespace {

/// The least calculator: a roller, a law, and how many times the roller's height goes into its diameter.
struct Essai : SourceLoi {
    std::string ReferenceGalet;
    double DiametreGalet = 0, HauteurGalet = 0, codemi = 0;
};
const Champ<Essai> champs[] = {
    {"ReferenceGalet", "DerouleGalets", 595, 0, &Essai::ReferenceGalet},
    {"DiametreGalet", "Text8", 218, UniteMm, &Essai::DiametreGalet, nullptr, NulOuNegatif, 542},
    {"HauteurGalet", "Text9", 244, UniteMm, &Essai::HauteurGalet},
    {"codemi", nullptr, 0, 0, &Essai::codemi},
    {"NomLoi", "DerouleLois", 105, 0, &Essai::NomLoi},
    {"CoefSymetrie", "Text13", 522, 0, &Essai::CoefSymetrie},
    {"CoefA", "Text14", 568, 0, &Essai::CoefA},
    {"CoefB", "Text15", 569, 0, &Essai::CoefB},
    {"CoefC", "Text16", 570, 0, &Essai::CoefC},
};
const ChampCatalogue champsGalets[] = {
    {"DiametreGalet", "DiametreGalet", false, true, 542}, {"HauteurGalet", "HauteurGalet", true}, {"codemi", "codemi"}};
const Catalogue galets{"Table Galets", "ReferenceGalet", "ReferenceGalet", champsGalets, 541, {673}};

class EcranEssai : public EcranCalculateur {
public:
    EcranEssai() : EcranCalculateur("Essai", 148, &DonneesEtude::CylindriqueIndexeurActif, nullptr) {
        const auto lies = LieChamps(champs, essai);
        auto* galet = new PanneauSaisie("Frame4", 289, {lies.begin(), lies.begin() + 4}, galets, {"GardeGalets", 415});
        auto* loi = new PanneauLoi("Frame5", 105, {lies[4], lies[5], lies[6], lies[7], lies[8]}, NomsLoisCalculateur());
        resultats = new PanneauResultats;
        auto ordre = galet->Controles();
        for (QWidget* controle : loi->Controles()) ordre.push_back(controle);
        Compose({{{galet}, {loi}}, {galet}, {loi}, ordre, {galet}, {{resultats, 330}}, {}});
    }
    Essai essai;
    PanneauResultats* resultats;

protected:
    std::optional<FauteSaisie> ChercheFaute() override {
        if (const auto* champ = ChercheInterdit(champs, essai))
            return FauteSaisie{champ->nom, Texte(champ->texteFaute)};
        return {};
    }
    void CalculeResultats() override { rapport_ = Divise(essai.DiametreGalet, essai.HauteurGalet); }
    void MontreResultats() override {
        const bool rouge = rapport_ > 2;
        resultats->Montre({{"R", {{"Label1", "D / H", TexteCourt(rapport_), "", rouge, rouge ? "trop plat" : ""}}}});
    }
    void SauveResultats() override {}

private:
    double rapport_ = 0;
};

using CalculatorScreen = EcranDeCalculateur<EcranEssai>;

} // namespace

TEST_F(CalculatorScreen, AKeyFillsTheFieldsAndEditsStay) {
    Deroule("DerouleGalets", "G-035");
    EXPECT_EQ(Le<ListeCles>("DerouleGalets")->Cle(), "G-035");
    EXPECT_EQ(TexteDe("Text8"), "35");
    EXPECT_EQ(TexteDe("Text9"), "20");
    EXPECT_EQ(ecran->essai.codemi, 8) << "what no field shows";
    Tape({{"Text8", "36,5"}});
    Deroule("DerouleGalets", nullptr);
    EXPECT_EQ(TexteDe("Text8"), "36.5") << "a list that is escaped fills nothing";
    TapeCle("DerouleGalets", "G-035");
    EXPECT_EQ(TexteDe("Text8"), "36.5") << "nor does Return on the key that stands there";
    EXPECT_TRUE(AFocus("Text8"));
    TapeCle("DerouleGalets", "G-040", Qt::Key_Tab);
    EXPECT_EQ(TexteDe("Text8"), "40") << "a key typed in full does";
}

TEST_F(CalculatorScreen, ANewRowIsCheckedStoredAndOffered) {
    const BaseAEcrire base;
    Ouvre();
    QSignalSpy annonce(ecran.get(), &FenetreEnfant::Annonce);
    Clique("GardeGalets");
    EXPECT_EQ(DerniereBoite(), Texte(541));
    EXPECT_TRUE(AFocus("DerouleGalets"));
    TapeCle("DerouleGalets", "Neuf");
    Clique("GardeGalets");
    EXPECT_EQ(DerniereBoite(), Texte(542));
    Tape({{"Text8", "33.5"}});
    Clique("GardeGalets");
    EXPECT_EQ(annonce.count(), 1);
    EXPECT_GE(Le<QComboBox>("DerouleGalets")->findText("Neuf"), 0);
    Clique("GardeGalets");
    EXPECT_EQ(DerniereBoite(), Texte(673)) << "it is there now";
    base.Ouvre(BaseDonnees::Usage::Exclusif);
    EXPECT_FALSE(ChercheLigne(galets, "Neuf")->at("HauteurGalet")) << "an empty field is a missing value";
}

TEST_F(CalculatorScreen, ResultsAreThoseOfTheInputs) {
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(542));
    EXPECT_TRUE(AFocus("Text8"));
    EXPECT_FALSE(Offert());
    Tape({{"Text8", "50"}, {"Text9", "20"}});
    Clique("Calculer");
    EXPECT_TRUE(Offert());
    EXPECT_EQ(Le<QTabWidget>("SSTab1")->currentIndex(), 1);
    EXPECT_EQ(Valeur("Label1"), "2.5 ??") << "the mark does not hang on the colour";
    EXPECT_EQ(Le<QLabel>("Label1")->toolTip(), "trop plat");

    Revient();
    Tape({{"Text9", "25"}});
    EXPECT_FALSE(Offert()) << "other inputs, no results";
    EXPECT_EQ(etude.resultats.ResultatsPrets, Faux);
    Clique("Calculer");
    EXPECT_EQ(Valeur("Label1"), "2");
    // A calculation that fails on its way leaves nothing on offer, and the inputs as they are.
    Tape({{"Text9", "0"}});
    Clique("Calculer");
    EXPECT_EQ(dialogues.boites.back().icone, Icone::Critique);
    EXPECT_FALSE(Offert());
    EXPECT_EQ(TexteDe("Text8"), "50");
    Tape({{"Text9", "25"}});
    Clique("Calculer");
    Revient();
    Deroule("DerouleLois", "MT");
    EXPECT_FALSE(Offert()) << "the law is an input, too";
}

TEST_F(CalculatorScreen, CoefficientsOfTheSpecialLaw) {
    Deroule("DerouleLois", "MS_Spe");
    EXPECT_TRUE(Le<QWidget>("LoiSpeciale")->isVisible());
    EXPECT_TRUE(AFocus("Text14"));
    EXPECT_FALSE(Le<QWidget>("Calculer")->isEnabled());
    Tape({{"Text14", ".5"}, {"Text15", ".5"}, {"Text16", ".1"}});
    EXPECT_TRUE(AFocus("Ok"));
    QTest::keyClick(ecran->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(DerniereBoite(), Texte(551));
    EXPECT_TRUE(AFocus("Text14"));
    Tape({{"Text14", ".3"}, {"Text15", ".3"}, {"Text16", ".4"}});
    EXPECT_EQ(Valeur("CoefDLoiSpeciale"), "0") << "tenths add up";
    Clique("Ok");
    EXPECT_FALSE(Le<QWidget>("LoiSpeciale")->isVisible());
    EXPECT_TRUE(AFocus("Text13"));
    Deroule("DerouleLois", "MS_Spe");
    Deroule("DerouleLois", "Fichier");
    EXPECT_FALSE(Le<QWidget>("LoiSpeciale")->isVisible()) << "another law is the way out";
    EXPECT_TRUE(Le<QWidget>("Calculer")->isEnabled());
}
