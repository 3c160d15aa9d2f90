#include "globoidal/screens/GlobiqueIndexeur.h"
#include "globoidal/screens/GlobiqueOscillateur.h"

#include "data/Textes.h"
#include "indexers/screens/ListeCles.h"
#include "outils/BaseAEcrire.h"
#include "outils/EcranDeSaisie.h"
#include "outils/ImprimanteNotee.h"
#include "widgets/Chaines.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

namespace {

const std::string loiFichier = VELORIN_SOURCES "/Profils/Aller-retour.Lmi";

template <class Ecran> class EcranGlobiqueTape : public EcranDeSaisie<Ecran> {
protected:
    BaseAEcrire base;
    EcranGlobiqueTape() { this->Ouvre(); } // on the database that can be written

    template <class T> T* Le(const char* nom) { return Controle<T>(*this->ecran, nom); }
    QString TexteDe(const char* champ) { return Le<QLineEdit>(champ)->text(); }
    std::string Valeur(const char* label) { return S(Le<QLabel>(label)->text()); }
    /// Opens a list and takes an entry with the keys of a keyboard.
    void Deroule(const char* nom, const char* entree) {
        auto* liste = Le<QComboBox>(nom);
        liste->setFocus();
        liste->showPopup();
        LaisseFaire();
        QTest::keyClick(liste->view(), Qt::Key_Home);
        for (int i = liste->findText(entree); i > 0; --i) QTest::keyClick(liste->view(), Qt::Key_Down);
        QTest::keyClick(liste->view(), Qt::Key_Return);
        LaisseFaire();
    }
    void FermeListe(const char* nom) {
        Le<QComboBox>(nom)->hidePopup();
        LaisseFaire();
    }
    bool Calcule() { return Le<QWidget>("Frame8")->isEnabled() && Le<QTabWidget>("SSTab1")->isTabEnabled(1); }
    int Onglet() { return Le<QTabWidget>("SSTab1")->currentIndex(); }
};

class IndexerScreen : public EcranGlobiqueTape<GlobiqueIndexeur> {
protected:
    void TapeExemple() {
        Deroule("DerouleModeles", "MG-160");
        Tape({{"Text4", "50"}, {"Text7", "150"}, {"Text6", "8"}, {"Text5", "8"}});
        Deroule("DerouleGalets", "G-035");
        Deroule("DerouleLois", "MS");
    }
};
using OscillatorScreen = EcranGlobiqueTape<GlobiqueOscillateur>;

} // namespace

TEST_F(IndexerScreen, CataloguesFillAndTheExampleIsCalculated) {
    EXPECT_EQ(TexteDe("Text13"), ".5");
    Deroule("DerouleModeles", "MG-080"); // has no inertia of its turret
    EXPECT_EQ(TexteDe("Text3"), "0");
    EXPECT_TRUE(AFocus("Text4"));
    Deroule("DerouleGalets", "G-035");
    EXPECT_TRUE(AFocus("DerouleLois"));
    TapeExemple();
    Clique("Calculer");
    ASSERT_TRUE(dialogues.boites.empty()) << DerniereBoite();
    ASSERT_TRUE(Calcule());
    EXPECT_EQ(Onglet(), 1);
    EXPECT_EQ(Valeur("Label46"), "630.77");
    EXPECT_EQ(Valeur("Text17"), "0") << "the pitch radius shows 0";
    EXPECT_EQ(Valeur("RayonPrimitif"), "100");
    EXPECT_EQ(Valeur("Label16"), "182.114");

    // Results are those of the inputs that stand there.
    Tape({{"Text7", "85"}});
    EXPECT_FALSE(Calcule());
    Clique("Calculer");
    EXPECT_EQ(Valeur("Label63").substr(Valeur("Label63").size() - 2), "??");
    ImprimanteNotee imprimante;
    ecran->Imprime(imprimante);
    EXPECT_TRUE(imprimante.fini);
    EXPECT_FALSE(ecran->PretAEnregistrer());
}

TEST_F(IndexerScreen, ReturnWalksTheFields) {
    SuitReturn({"DerouleModeles", "Text1", "Text2", "Text3", "Text12", "Text20", "Text21", "Text4", "Text7", "Text6",
                "Text5", "DerouleGalets", "Text8", "Text9", "Text10", "Text11", "DerouleLois", "Text13"});
    EXPECT_TRUE(AFocus("Calculer"));
}

TEST_F(IndexerScreen, EachFaultIsOneBoxAndTakesTheFocus) {
    const auto refuse = [&](int texte, const char* champ) {
        dialogues.boites.clear();
        Clique("Calculer");
        ASSERT_EQ(dialogues.boites.size(), 1u);
        EXPECT_EQ(dialogues.boites.front().icone, Icone::Avertissement);
        EXPECT_NE(DerniereBoite().find(Texte(texte)), std::string::npos) << DerniereBoite();
        EXPECT_TRUE(AFocus(champ)) << champ;
        EXPECT_FALSE(Calcule());
    };
    Tape({{"Text1", "40"}, {"Text2", "90"}});
    refuse(535, "Text1");
    EXPECT_EQ(TexteDe("Text2"), "") << "blanked";
    EXPECT_EQ(TexteDe("Text1"), "40");
    refuse(69, "Text5");
    Tape({{"Text1", "160"}, {"Text5", "8"}, {"Text6", "7.5"}, {"Text7", "150"}});
    refuse(537, "Text6");
    Tape({{"Text6", "8"}});
    refuse(548, "Text2");
    Tape({{"Text2", "90"}, {"Text8", "35"}, {"Text9", "20"}, {"Text10", "11850"}, {"Text11", "17300"}});
    refuse(538, "DerouleLois");
    FermeListe("DerouleLois");
    Deroule("DerouleLois", "MS");
    Tape({{"Text7", "361"}});
    refuse(623, "Text7");
    Tape({{"Text7", "150"}, {"Text13", "0,95"}});
    refuse(512, "Text13");
    Tape({{"Text13", "0,5"}});
    Clique("Calculer");
    EXPECT_TRUE(Calcule());
}

TEST_F(IndexerScreen, ThePanelOfSharesHoldsTheScreenUntilTheyFit) {
    TapeExemple();
    Deroule("DerouleLois", "MS_Spe");
    EXPECT_TRUE(AFocus("Text14"));
    for (const char* ferme : {"Calculer", "Frame1", "Frame4", "Text13"}) EXPECT_FALSE(Le<QWidget>(ferme)->isEnabled());
    Tape({{"Text14", ".5"}, {"Text15", ".3"}, {"Text16", ".3"}});
    Clique("Ok");
    EXPECT_EQ(DerniereBoite(), Texte(551));
    EXPECT_EQ(dialogues.boites.back().icone, Icone::Avertissement);
    EXPECT_TRUE(AFocus("Text14"));
    EXPECT_TRUE(Le<QWidget>("LoiSpeciale")->isVisible());
    Tape({{"Text14", ".3"}, {"Text15", ".3"}, {"Text16", ".4"}});
    Clique("Ok");
    EXPECT_TRUE(AFocus("Text13"));
    EXPECT_FALSE(Le<QWidget>("LoiSpeciale")->isVisible());
    Clique("Calculer");
    EXPECT_TRUE(Calcule());
}

TEST_F(IndexerScreen, AFileDialogueThatIsCancelledLeavesNoLaw) {
    TapeExemple();
    dialogues.fichiers = {std::nullopt};
    Deroule("DerouleLois", "Fichier");
    EXPECT_EQ(Le<ListeCles>("DerouleLois")->Cle(), "");
    EXPECT_TRUE(AFocus("DerouleLois"));
    dialogues.fichiers = {std::filesystem::path(loiFichier)};
    Deroule("DerouleLois", "Fichier");
    EXPECT_NE(Valeur("FichierLoi").find("Aller-retour.Lmi"), std::string::npos);
}

TEST_F(IndexerScreen, NewRowsAreOfferedAtOnceAndNamesThatExistChangeNothing) {
    TapeExemple();
    const auto garde = [&](const char* liste, const char* nom, const char* bouton) {
        auto* saisie = Le<QComboBox>(liste)->lineEdit();
        saisie->setFocus();
        saisie->selectAll();
        QTest::keyClicks(saisie, nom);
        return bouton;
    };
    Clique(garde("DerouleGalets", "Mien", "GardeGalets"));
    EXPECT_EQ(DerniereBoite(), Texte(542)) << "another name leaves no size of the last row";
    Tape({{"Text8", "33"}, {"Text9", "19"}, {"Text10", "11000"}, {"Text11", "16000"}});
    Clique("GardeGalets");
    EXPECT_GE(Le<QComboBox>("DerouleGalets")->findText("Mien"), 0);
    const auto boites = dialogues.boites.size();
    Clique("GardeGalets");
    ASSERT_EQ(dialogues.boites.size(), boites + 1);
    EXPECT_EQ(DerniereBoite().find(Texte(673) + "\n"), 0u);
    Deroule("DerouleModeles", "MG-160");
    Clique("GardeModele");
    EXPECT_EQ(DerniereBoite().find(Texte(550) + "\n"), 0u);
}

TEST_F(OscillatorScreen, TheLastZoneClosesTheTurnAndTheExampleIsCalculated) {
    Deroule("DerouleModeles", "MG-160");
    Tape({{"Text6", "3"}, {"Text27", "30"}, {"Text5", "40"}, {"Text7", "120"}, {"Text19", "60"}, {"Text22", "120"}});
    EXPECT_EQ(TexteDe("Text28"), "60");
    Tape({{"Text4", "110"}});
    Deroule("DerouleGalets", "G-022");
    Deroule("DerouleLois1", "MS");
    dialogues.boites.clear();
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(538));
    FermeListe("DerouleLois2");
    Deroule("DerouleLois2", "MT");
    Tape({{"Text28", "61"}});
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(573));
    EXPECT_TRUE(AFocus("Text7"));
    Tape({{"Text28", "60"}, {"Text27", "107"}, {"Text6", "2"}});
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(564)) << "the flanks";
    EXPECT_FALSE(Calcule());
    Tape({{"Text27", "30"}, {"Text6", "3"}});
    Clique("Calculer");
    ASSERT_TRUE(Calcule());
    EXPECT_EQ(Valeur("Label16"), "146.12");
    EXPECT_EQ(Valeur("Label46"), "260.68");
    EXPECT_EQ(Valeur("Label139"), "130.62");
}

TEST_F(OscillatorScreen, OneLawFileMovesBothZones) {
    dialogues.fichiers = {std::filesystem::path(loiFichier)};
    Deroule("DerouleLois2", "Fichier");
    EXPECT_EQ(Le<ListeCles>("DerouleLois1")->Cle(), "Fichier");
    EXPECT_GT(TexteDe("Text7").toDouble(), 0) << "its zones are shown";
    EXPECT_NEAR(TexteDe("Text7").toDouble() + TexteDe("Text19").toDouble() + TexteDe("Text22").toDouble() +
                    TexteDe("Text28").toDouble(),
                360, 0);
    dialogues.fichiers = {std::nullopt};
    Deroule("DerouleLois1", "Fichier");
    EXPECT_EQ(Le<ListeCles>("DerouleLois2")->Cle(), "");
}
