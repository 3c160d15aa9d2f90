#include "globoidal/screens/GlobiqueIndexeur.h"
#include "globoidal/screens/GlobiqueOscillateur.h"

#include "globoidal/CataloguesGlobiques.h"
#include "globoidal/TextesGlobiques.h"
#include "outils/BaseAEcrire.h"
#include "outils/EcranDeCalculateur.h"

namespace {

const std::string loiFichier = VELORIN_SOURCES "/Profils/Aller-retour.Lmi";

class IndexerScreen : public EcranDeCalculateur<GlobiqueIndexeur> {
protected:
    void TapeExemple() {
        Deroule("DerouleModeles", "MG-160");
        Tape({{"Text4", "50"}, {"Text7", "150"}, {"Text6", "8"}, {"Text5", "8"}});
        Deroule("DerouleGalets", "G-035");
        Deroule("DerouleLois", "MS");
    }
};
using OscillatorScreen = EcranDeCalculateur<GlobiqueOscillateur>;

} // namespace

TEST_F(IndexerScreen, CataloguesFillAndTheExampleIsCalculated) {
    Deroule("DerouleModeles", "MG-080"); // has no inertia of its turret
    EXPECT_EQ(TexteDe("Text3"), "0");
    EXPECT_TRUE(AFocus("Text4"));
    TapeExemple();
    for (const auto& [champ, texte] : Saisies{{"Text1", "160"},
                                              {"Text2", "90"},
                                              {"Text12", "370"},
                                              {"Text20", "210"},
                                              {"Text21", "165"},
                                              {"Text8", "35"},
                                              {"Text9", "20"},
                                              {"Text10", "11850"},
                                              {"Text11", "17300"}})
        EXPECT_EQ(TexteDe(champ), texte) << champ;
    Clique("Calculer");
    ASSERT_TRUE(dialogues.boites.empty()) << DerniereBoite();
    ASSERT_TRUE(Offert());
    EXPECT_EQ(Valeur("Label46"), "630.77");
    EXPECT_EQ(Valeur("Text17"), "0") << "the pitch radius shows 0";
    EXPECT_EQ(Valeur("RayonPrimitif"), "100");
    EXPECT_EQ(Valeur("Label16"), "182.114");

    // Results are those of the inputs that stand there.
    Tape({{"Text7", "85"}});
    EXPECT_FALSE(Offert());
    Clique("Calculer");
    EXPECT_EQ(Valeur("Label63").substr(Valeur("Label63").size() - 2), "??");
}

TEST_F(IndexerScreen, ATypedHousingSaysWhichCodeItKeeps) {
    const auto note = [&] {
        Clique("Calculer");
        EXPECT_TRUE(dialogues.boites.empty()) << DerniereBoite();
        return S(Le<QLabel>("RayonPrimitif")->toolTip());
    };
    TapeExemple();
    EXPECT_EQ(note(), "");
    Revient();
    TapeCle("DerouleModeles", "Mien");
    Tape({{"Text1", "160"}, {"Text2", "90"}});
    EXPECT_EQ(note(), Texte(TexteCodeBoitier) + " 5");
    Revient();
    TapeCle("DerouleGalets", "Rond");
    Tape({{"Text8", "35"}, {"Text9", "20"}, {"Text10", "11850"}, {"Text11", "17300"}});
    EXPECT_EQ(note(), Texte(TexteCodeBoitier) + " 5\n" + Texte(TexteCodeGalet) + " 8");
    Revient();
    TapeCle("DerouleModeles", "MG-200"); // a name of the catalogue brings its own code, and needs none of the roller
    EXPECT_EQ(note(), "");
    EXPECT_EQ(Valeur("RayonPrimitif"), "118");
}

TEST_F(IndexerScreen, ARollerIsKeptOnceWithAnyNumberButZero) {
    const BaseAEcrire base;
    Ouvre();
    TapeCle("DerouleGalets", "Rond", Qt::Key_Tab);
    Tape({{"Text8", "-35"}, {"Text9", "20"}, {"Text10", "0"}, {"Text11", "17300"}});
    Clique("GardeGalets");
    EXPECT_EQ(DerniereBoite(), Texte(544));
    EXPECT_TRUE(AFocus("Text10"));
    Tape({{"Text10", "11850.5"}});
    Clique("GardeGalets");
    const auto ligne = ChercheLigne(CatalogueGalets, "Rond");
    ASSERT_TRUE(ligne);
    EXPECT_EQ(ligne->at("DiametreGalet"), -35);
    Clique("GardeGalets");
    EXPECT_TRUE(DerniereBoite().starts_with(Texte(673) + "\n")) << "it is there now";
    EXPECT_EQ(dialogues.boites.back().titre, "Suite Impossible");
}

TEST_F(IndexerScreen, ReturnWalksTheFields) {
    SuitReturn({"DerouleModeles", "Text1", "Text2", "Text3", "Text12", "Text20", "Text21", "Text4", "Text7", "Text6",
                "Text5", "DerouleGalets", "Text8", "Text9", "Text10", "Text11", "DerouleLois", "Text13"});
    EXPECT_TRUE(AFocus("Calculer"));
}

TEST_F(IndexerScreen, FaultsTakeTheFocusAndPullTheListOpen) {
    Tape({{"Text1", "40"}, {"Text2", "90"}});
    Refuse(Texte(535) + " " + Texte(536), "Text1");
    EXPECT_EQ(TexteDe("Text2"), "") << "blanked";
    EXPECT_EQ(TexteDe("Text1"), "40");
    TapeExemple();
    Tape({{"Text13", "0,95"}});
    Refuse(Texte(512) + " " + Texte(513), "Text13");
}

TEST_F(OscillatorScreen, TheLastZoneClosesTheTurnAndTheExampleIsCalculated) {
    Deroule("DerouleModeles", "MG-160");
    Tape({{"Text6", "3"}, {"Text27", "30"}, {"Text5", "40"}, {"Text7", "120"}, {"Text19", "60"}, {"Text22", "120"}});
    EXPECT_EQ(TexteDe("Text28"), "60");
    Tape({{"Text4", "110"}});
    Deroule("DerouleGalets", "G-022");
    Deroule("DerouleLois1", "MS");
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(538));
    Le<QComboBox>("DerouleLois2")->hidePopup(); // it is pulled open
    Deroule("DerouleLois2", "MT");
    Tape({{"Text27", "107"}, {"Text6", "2"}});
    Refuse(Texte(564), "Text27");
    Tape({{"Text27", "30"}, {"Text6", "3"}});
    Clique("Calculer");
    ASSERT_TRUE(Offert());
    EXPECT_EQ(Valeur("Label16"), "146.12");
    EXPECT_EQ(Valeur("Label46"), "260.68");
}

TEST_F(OscillatorScreen, OneLawFileMovesBothZones) {
    dialogues.fichiers = {std::filesystem::path(loiFichier), std::nullopt};
    Deroule("DerouleLois2", "Fichier");
    EXPECT_EQ(Le<ListeCles>("DerouleLois1")->Cle(), "Fichier");
    double tour = 0; // its zones are shown
    for (const char* zone : {"Text7", "Text19", "Text22", "Text28"}) tour += std::stod(TexteDe(zone));
    EXPECT_EQ(tour, 360);
    Deroule("DerouleLois1", "Fichier");
    EXPECT_EQ(Le<ListeCles>("DerouleLois2")->Cle(), "");
}
