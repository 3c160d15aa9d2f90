#include "laws/screens/EcranLoi.h"

#include "data/Textes.h"
#include "laws/ChoixLois.h"
#include "laws/FichierLoi.h"
#include "laws/TextesLois.h"
#include "laws/screens/QuelLoi.h"
#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "outils/Ecrans.h"
#include "widgets/BoutonImage.h"
#include "widgets/Chaines.h"
#include "widgets/Grille.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

class EcransLois : public testing::Test {
protected:
    DialoguesScript dialogues_;
    std::unique_ptr<EcranLoi> ecran_;

    /// Opens a study and types into its fields in their order, from `Text0` or `Text1` on.
    void Ouvre(const char* nom, const std::vector<const char*>& valeurs, const char* loi = "") {
        ecran_.reset();
        VideEtude();
        etude.lois.LoiChoisie = loi;
        ecran_ = std::make_unique<EcranLoi>(*TrouveEtudeLoi(nom));
        ecran_->show();
        ecran_->activateWindow();
        LaisseFaire();
        int champ = ecran_->findChild<QLineEdit*>("Text0") != nullptr ? 0 : 1;
        for (const char* valeur : valeurs) TapeDans(*ecran_, ("Text" + std::to_string(champ++)).c_str(), valeur);
    }
    void Calcule() { CliqueSur(*ecran_, "Calculer"); }
    std::string Montre(const char* etiquette) { return S(Controle<QLabel>(*ecran_, etiquette)->text()); }
    QString Focus() { return ecran_->focusWidget() == nullptr ? QString() : ecran_->focusWidget()->objectName(); }
};

struct Refus {
    const char* ecran;
    const char* loi;
    std::vector<const char*> valeurs;
    std::string texte;
    const char* focus;
};

} // namespace

TEST_F(EcransLois, TypedStudyShowsTheClosedForm) {
    // A cycloid of 120 degrees at 40 Tr/min lasts 0.5 s: over 100 mm its speed peaks at 2 h / T, its acceleration at
    // 2 Pi h / T².
    Ouvre("LoiMouv", {"0.5", "120", "20", "120", "40"}, "CYC");
    EXPECT_FALSE(Controle<QPushButton>(*ecran_, "Enregistrer")->isEnabled());
    Calcule();
    ASSERT_TRUE(dialogues_.boites.empty()) << dialogues_.boites.front().texte;
    EXPECT_EQ(Montre("VitesseMaxi"), "0.40000");
    EXPECT_EQ(Montre("AccelerationMaxi"), "2.51327");
    auto* grille = Controle<Grille>(*ecran_, "Grille");
    EXPECT_EQ(grille->NombreLignes(), 121);
    EXPECT_EQ(grille->Cellule(60, 1), "70.000");
    EXPECT_EQ(grille->Cellule(60, 2), "0.40000");

    // The same in degrees, at once.
    Controle<QRadioButton>(*ecran_, "Option2")->click();
    EXPECT_EQ(Montre("VitesseMaxi"), "6.98132") << "2 rad(100°) / 0.5 s";

    // Results of other data are not shown, however the data came to be others.
    Controle<QLineEdit>(*ecran_, "Text1")->clear();
    EXPECT_EQ(Montre("VitesseMaxi"), "");
    EXPECT_EQ(grille->NombreLignes(), 0);
    EXPECT_FALSE(etude.resultats.EtudeModifiee);
}

TEST_F(EcransLois, CustomPercentageCountsWhole) {
    Ouvre("LoiMouv", {"0.5", "100", "0", "10", "60", "12.5"}, "MS_Spe");
    Calcule();
    EXPECT_EQ(Montre("CoefD"), ".125");
    EXPECT_NEAR(etude.lois.LoiUnite[50].Vitesse, etude.lois.LoiEtude.Cv, 1e-12)
        << "the curve is that of the coefficients shown";
}

TEST_F(EcransLois, RefusedInputsAreToldWithTheFocusOnTheField) {
    const auto incomplet = [](int champ) { return Texte(champ) + " : " + Texte(69); };
    const Refus refus[] = {
        {"LoiMouv", "MS", {"1.2", "90", "0", "10", "60"}, Texte(522) + " 0 <= C <=1", "Text0"},
        {"LoiMouv", "MS", {"0.5", "", "0", "10", "60"}, incomplet(324), "Text1"},
        {"LoiHes", "", {"0.2", "10", "60"}, Texte(794), "Text1"},
        {"LoiSpe", "", {"100", "50", "100", "5", "60"}, "\n" + Texte(622), "Text2"},
        {"LoisLiq", "", {"90", "10", "60", "0.5"}, Texte(382), "Text4"},
        {"LoiMSHDis", "", {"100", "97", "10", "60"}, Texte(389), "Text2"},
    };
    for (const Refus& r : refus) {
        SCOPED_TRACE(r.texte);
        Ouvre(r.ecran, r.valeurs, r.loi);
        dialogues_.boites.clear();
        Calcule();
        ASSERT_EQ(dialogues_.boites.size(), 1U) << r.ecran << " " << r.texte;
        EXPECT_EQ(dialogues_.boites.front().texte, r.texte) << r.ecran;
        EXPECT_EQ(Focus(), r.focus) << r.ecran << " " << r.texte;
        EXPECT_FALSE(etude.resultats.ResultatsPrets);
    }
}

TEST_F(EcransLois, SavedLawIsReadBackOneStepLater) {
    const DossierTemporaire dossier;
    const auto lmi = dossier / "loi.Lmi";
    Ouvre("LoiMouv", {"0.5", "360", "0", "50", "60"}, "MSC50");
    Controle<QComboBox>(*ecran_, "Combo1")->setCurrentText("2");
    Calcule();
    dialogues_.saisies = {" 2 "};
    dialogues_.fichiers = {lmi};
    CliqueSur(*ecran_, "Enregistrer");
    const auto table = etude.lois.LoiUnite;

    LitFichierLoi(lmi);
    for (const long i : {1L, 100L, 361L, 720L})
        EXPECT_NEAR(etude.lois.LoiUnite[i].Course, table[i - 1].Course, 1e-12) << "one step later " << i;

    // What a reader will make of other numbers of points is told with the name.
    const auto enregistre = [&](const char* angle, const char* points) {
        Ouvre("LoiHes", {angle, "30", "60"});
        Controle<QComboBox>(*ecran_, "Combo1")->setCurrentText(points);
        Calcule();
        QSignalSpy nom(ecran_.get(), &FenetreEnfant::FichierEnregistre);
        dialogues_.saisies = {"2"};
        dialogues_.fichiers = {lmi};
        CliqueSur(*ecran_, "Enregistrer");
        return nom.isEmpty() ? "" : S(nom.front().front().toString());
    };
    const std::string relu = "loi.Lmi : " + Texte(TexteRelu) + " ";
    EXPECT_EQ(enregistre("360", "2"), "loi.Lmi");
    EXPECT_EQ(enregistre("90", "1"), relu + "45" + Texte(TexteReluPas) + Texte(TexteReluFin));

    EXPECT_EQ(enregistre("360", "10"), "");
    EXPECT_EQ(dialogues_.boites.back().texte, Texte(800)) << "what a law file cannot hold is not written cut";
}

TEST_F(EcransLois, AReturnIsToldToBeScaledAsItsRise) {
    const struct {
        const char *ecran, *loi;
        std::vector<const char*> valeurs;
        bool retour;
    } etudes[] = {{"LoiMouv", "MSH", {"200", "0", "50", "60"}, true},
                  {"LoiMSHDis", "", {"90", "120", "50", "60"}, true},
                  {"LoiMouv", "MS", {"0.5", "200", "0", "50", "60"}, false}};
    for (const auto& e : etudes) {
        Ouvre(e.ecran, e.valeurs, e.loi);
        Controle<QComboBox>(*ecran_, "Combo1")->setCurrentText("10");
        Calcule();
        const std::string notes = Montre("Notes");
        EXPECT_EQ(!notes.empty(), e.retour) << e.loi;
        if (!e.retour) continue;
        // The largest speed of the motion itself, from the lift and the time between two points.
        double vraie = 0;
        const double parUnite = etude.donnees.SortieEnDegres ? RadDeg : 1000;
        const auto& m = etude.resultats.Mouvement;
        for (long i = 1; i <= etude.resultats.NombrePoints; ++i)
            vraie = std::max(vraie, std::abs(m[i].Course - m[i - 1].Course) / parUnite * 6 * 60 * 10);
        const auto place = notes.find(Texte(TexteEchelleMontee));
        ASSERT_NE(place, std::string::npos) << notes;
        EXPECT_NEAR(Val(notes.substr(place + Texte(TexteEchelleMontee).size())), vraie, 2e-3 * vraie) << notes;
    }
}

TEST_F(EcransLois, ASymmetryIsToldWithTheTrueCoefficients) {
    for (const char* S : {"0.3", "0.7"}) {
        Ouvre("LoiMouv", {S, "200", "0", "50", "60"}, "MS");
        Controle<QComboBox>(*ecran_, "Combo1")->setCurrentText("10");
        Calcule();
        const std::string notes = Montre("Notes");
        const auto suit = [&](int texte) {
            const auto place = notes.find(Texte(texte));
            return place == std::string::npos ? 0.0 : Val(notes.substr(place + Texte(texte).size()));
        };
        double vitesse = 0, accel = 0;
        for (const PointLoi& p : etude.lois.LoiUnite) {
            vitesse = std::max(vitesse, std::abs(p.Vitesse));
            accel = std::max(accel, std::abs(p.Accel));
        }
        EXPECT_NEAR(suit(TexteSymetrieVitesse), vitesse, 1e-3) << S;
        // The larger acceleration is that of the shorter side: of the rise its coefficient is the one shown.
        if (std::string(S) == "0.7")
            EXPECT_NEAR(suit(TexteSymetrieAccel), accel, 1e-3);
        else
            EXPECT_EQ(suit(TexteSymetrieAccel), 0);
    }
}

TEST(QuelLoi, PicturesAreChosenByKeyAndShowTheirCoefficients) {
    QuelLoi ecran("QuelLoi");
    ecran.show();
    ecran.activateWindow();
    LaisseFaire();
    auto* image = Controle<BoutonImage>(ecran, "Image8");
    image->setFocus();
    LaisseFaire();
    EXPECT_EQ(S(Controle<QLabel>(ecran, "Label15")->text()), "5.837");
    QTest::keyClick(image, Qt::Key_Return);
    ASSERT_NE(ecran.Choisi(), nullptr);
    EXPECT_STREQ(ecran.Choisi()->loi, "MSC15");
}
