// No caption is cut: every screen, in every delivered language and in one that a user has added, with longer words.
#include "app/BureauEcrans.h"
#include "app/CameType.h"
#include "app/Ecrans.h"
#include "app/MdiCamA.h"
#include "app/Propos.h"
#include "data/Demarrage.h"
#include "laws/screens/QuelLoi.h"
#include "outils/DialoguesScript.h"
#include "outils/Ecrans.h"
#include "outils/LangueLongue.h"
#include "studies/FichierEtude.h"
#include "studies/TypesEtude.h"
#include "studies/screens/SeleSauv.h"
#include "widgets/ApercuImpression.h"
#include "widgets/BoutonImage.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"

#include <QMdiSubWindow>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

#include <memory>
#include <optional>

namespace {

/// What a display of 1280 x 720 leaves below a title bar.
constexpr QSize PetitEcran(1280, 690);

/// A worked example of each kind that can be calculated.
constexpr const char* Exemples[] = {"Exemple.Ang", "Translation.Lin", "Barillet.Cyl", "Balancier.Osc",
                                    "Conjuguees.Cjg"};

void Cherche(QWidget& ecran, const char* langue) {
    LaisseFaire();
    for (const auto& coupee : LegendesCoupees(ecran))
        ADD_FAILURE() << langue << " " << S(ecran.objectName()) << " " << coupee;
    for (const auto* image : ecran.findChildren<BoutonImage*>()) {
        const QRect place = image->PlaceTexte().toRect();
        const QRect besoin = image->fontMetrics().boundingRect(place, Qt::TextWordWrap, image->text());
        EXPECT_TRUE(place.height() >= besoin.height() && place.width() >= besoin.width())
            << langue << " " << S(image->text());
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

/// The sheets in view that scroll sideways.
std::vector<std::string> FeuillesDeBiais(QWidget& ecran) {
    std::vector<std::string> feuilles;
    for (const auto* feuille : ecran.findChildren<QScrollArea*>())
        if (feuille->isVisible() && feuille->horizontalScrollBar()->maximum() > 0)
            feuilles.push_back(S(ecran.objectName()) + " by " +
                               std::to_string(feuille->horizontalScrollBar()->maximum()));
    return feuilles;
}

void ChercheEcran(const EcranEnfant& rangee, const char* langue) {
    const std::unique_ptr<FenetreEnfant> ecran(rangee.cree(rangee.nom));
    ecran->resize(ecran->sizeHint());
    ecran->show();
    ChercheFeuilles(*ecran, langue);
}

template <class Boite, class... Arguments> void ChercheBoite(const char* langue, Arguments... arguments) {
    Boite boite(arguments...);
    boite.show();
    ChercheFeuilles(boite, langue);
    EXPECT_EQ(boite.size(), boite.size().boundedTo(PetitEcran)) << langue << " " << S(boite.objectName());
}

class LegendesDeToutEcran : public testing::TestWithParam<const char*> {
protected:
    DialoguesScript dialogues_;
    std::optional<BaseLangueLongue> base_;

    LegendesDeToutEcran() {
        if (std::string_view(GetParam()) == NomLangueLongue) base_.emplace();
        ChoisitLangue(GetParam());
        EXPECT_EQ(LangueTravail, GetParam());
    }
};

} // namespace

TEST_P(LegendesDeToutEcran, ChildWindowsOnTheWorkedExamples) {
    for (const char* exemple : Exemples) {
        VideEtude();
        ASSERT_TRUE(LitFichierEtude(CheminAppli / NomDossierEtudes / exemple)) << exemple;
        CalculeEtude();
        const TypeEtude& type = *TrouveType(etude.donnees.TypeCame);
        for (const char* ecran : {type.ecranSaisie, type.ecranResultats}) ChercheEcran(*TrouveEcran(ecran), GetParam());
    }
}

/// What is larger than the desk scrolls; nothing is pressed together.
TEST_P(LegendesDeToutEcran, OnTheDeskOfASmallDisplay) {
    MdiCamA mdi{Configuration{{}, LangueTravail}};
    etude.lois.LoiChoisie = "MS_Spe"; // the law with the most fields
    mdi.show();
    mdi.resize(PetitEcran);
    Cherche(mdi, GetParam());
    for (const EcranEnfant& ecran : LesEcrans()) {
        mdi.FermeEcrans();
        FenetreEnfant& fenetre = *mdi.OuvreEcran(ecran.nom);
        mdi.resize(PetitEcran);
        LaisseFaire();
        const QSize place = Controle<BureauEcrans>(mdi, "Bureau")->viewport()->size();
        auto* cadre = qobject_cast<QMdiSubWindow*>(fenetre.parentWidget());
        cadre->resize(Controle<BureauEcrans>(mdi, "Bureau")->TailleOuverte(*cadre));
        ChercheFeuilles(fenetre, GetParam());
        if (std::string_view(GetParam()) != NomLangueLongue) {
            EXPECT_EQ(FeuillesDeBiais(fenetre), std::vector<std::string>()) << GetParam() << " " << ecran.nom;
        }
        EXPECT_LE(fenetre.parentWidget()->width(), place.width()) << GetParam() << " " << ecran.nom;
        EXPECT_LE(fenetre.parentWidget()->height(), place.height()) << GetParam() << " " << ecran.nom;
    }
}

TEST_P(LegendesDeToutEcran, Boxes) {
    ChercheBoite<CameType>(GetParam());
    ChercheBoite<Propos>(GetParam());
    ChercheBoite<SeleSauv>(GetParam(), [] { return true; });
    for (const char* chooser : {"QuelLoi", "QuelLoiSpe"}) ChercheBoite<QuelLoi>(GetParam(), chooser);
    ApercuImpression apercu([](Imprimante& imprimante) { imprimante.Ecrit("une page"); }, "page");
    apercu.show();
    ChercheFeuilles(apercu, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Langues, LegendesDeToutEcran,
                         testing::Values("Français", "Español", "English", NomLangueLongue));
