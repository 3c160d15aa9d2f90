// No caption is cut: every screen, in every language.
#include "app/CameType.h"
#include "app/Ecrans.h"
#include "app/Propos.h"
#include "data/Demarrage.h"
#include "laws/screens/QuelLoi.h"
#include "outils/DialoguesScript.h"
#include "outils/Ecrans.h"
#include "studies/FichierEtude.h"
#include "studies/TypesEtude.h"
#include "studies/screens/SeleSauv.h"
#include "widgets/BoutonImage.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"

#include <QRadioButton>
#include <QTabWidget>

#include <memory>

namespace {

/// A worked example of each kind that can be calculated.
constexpr const char* Exemples[] = {"Exemple.Ang", "Translation.Lin", "Barillet.Cyl", "Balancier.Osc",
                                    "Conjuguees.Cjg"};

void Cherche(QWidget& ecran, const char* langue) {
    LaisseFaire();
    for (const auto& coupee : LegendesCoupees(ecran))
        ADD_FAILURE() << langue << " " << S(ecran.objectName()) << " " << coupee;
    // The names below the pictures have two lines.
    for (const auto* image : ecran.findChildren<BoutonImage*>()) {
        const QRect besoin = image->fontMetrics().boundingRect(QRect(0, 0, image->width() - 24, 1000),
                                                               Qt::TextWordWrap | Qt::AlignHCenter, image->text());
        EXPECT_LE(besoin.height(), 2 * image->fontMetrics().lineSpacing()) << langue << " " << S(image->text());
    }
}

/// On each sheet, and under each of two units.
void ChercheFeuilles(QWidget& ecran, const char* langue) {
    Cherche(ecran, langue);
    if (auto* onglets = ecran.findChild<QTabWidget*>("SSTab1"))
        for (int onglet = 1; onglet < onglets->count(); ++onglet) {
            onglets->setCurrentIndex(onglet);
            Cherche(ecran, langue);
        }
    if (auto* unite = ecran.findChild<QRadioButton*>("Option2")) {
        unite->click();
        Cherche(ecran, langue);
    }
}

void ChercheEcran(const EcranEnfant& rangee, const char* langue) {
    const std::unique_ptr<FenetreEnfant> ecran(rangee.cree(rangee.nom));
    EXPECT_EQ(ecran->Nom(), rangee.nom);
    ecran->resize(ecran->sizeHint());
    ecran->show();
    ChercheFeuilles(*ecran, langue);
}

template <class Boite, class... Arguments> void ChercheBoite(const char* langue, Arguments... arguments) {
    Boite boite(arguments...);
    boite.show();
    ChercheFeuilles(boite, langue);
}

class LegendesDeToutEcran : public testing::TestWithParam<const char*> {
protected:
    DialoguesScript dialogues_;

    LegendesDeToutEcran() { ChoisitLangue(GetParam()); }
};

} // namespace

TEST_P(LegendesDeToutEcran, ChildWindowsOnAnEmptyStudy) {
    etude.lois.LoiChoisie = "MS_Spe"; // the law with the most fields
    for (const EcranEnfant& ecran : LesEcrans()) ChercheEcran(ecran, GetParam());
}

TEST_P(LegendesDeToutEcran, ChildWindowsOnTheWorkedExamples) {
    for (const char* exemple : Exemples) {
        VideEtude();
        ASSERT_TRUE(LitFichierEtude(CheminAppli / NomDossierEtudes / exemple)) << exemple;
        CalculeEtude();
        const TypeEtude& type = *TrouveType(etude.donnees.TypeCame);
        for (const char* ecran : {type.ecranSaisie, type.ecranResultats}) ChercheEcran(*TrouveEcran(ecran), GetParam());
    }
}

TEST_P(LegendesDeToutEcran, Boxes) {
    ChercheBoite<CameType>(GetParam());
    ChercheBoite<Propos>(GetParam());
    ChercheBoite<SeleSauv>(GetParam(), [] { return true; });
    for (const char* chooser : {"QuelLoi", "QuelLoiSpe"}) ChercheBoite<QuelLoi>(GetParam(), chooser);
}

INSTANTIATE_TEST_SUITE_P(Langues, LegendesDeToutEcran, testing::Values("Français", "Español", "English"));
