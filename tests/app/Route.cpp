// The road of a study, from the chooser to paper.
#include "app/CameType.h"
#include "app/MdiCamA.h"
#include "core/Etude.h"
#include "core/FichierEntier.h"
#include "data/Textes.h"
#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "outils/Ecrans.h"
#include "studies/RapportsCames.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/FenetreEnfant.h"
#include "widgets/ImprimanteQt.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

class Route : public testing::Test {
protected:
    DialoguesScript dialogues_;
    DossierTemporaire dossier_;
    MdiCamA mdi_{Configuration{{true, true, true, true, true, true, true}, "Français"}};

    Route() {
        mdi_.show();
        LaisseFaire();
    }

    bool Visible(const char* nom) {
        const QWidget* ecran = mdi_.EcranOuvert(nom);
        return ecran != nullptr && ecran->isVisible();
    }
    void EntreEtude(QWidget& saisie) {
        Controle<QLineEdit>(saisie, "Text13")->setText("4");
        const std::pair<const char*, const char*> donnees[] = {
            {"Text1", "80"},   {"Text2", "30"},   {"Text3", "100"}, {"Text4", "70"}, {"Text5", "40"},
            {"Text6", "10"},   {"Text18", "300"}, {"Text7", "0,8"}, {"Text8", ".6"}, {"Text9", "12"},
            {"Text10", "1.5"}, {"Text13", "4"},   {"Text14", "25"}};
        for (const auto& [champ, texte] : donnees) TapeDans(saisie, champ, texte);
        const std::pair<const char*, const char*> zones[] = {{"40", "90"}, {"40", "90"}, {"25", "120"}, {"25", "60"}};
        for (const auto& [final, came] : zones) {
            TapeDans(saisie, "Text15", final);
            TapeDans(saisie, "Text16", came);
            Controle<QComboBox>(saisie, "Combo1")->setCurrentText("MS");
            CliqueSur(saisie, "Suivante");
        }
    }
};

} // namespace

TEST_F(Route, FromTheChooserToPaper) {
    QTimer::singleShot(0, &mdi_, [this] {
        QTest::keyClick(Controle<QAbstractButton>(*Controle<CameType>(mdi_, "CameType"), "Image1"), Qt::Key_Return);
    });
    Controle<QAction>(mdi_, "FichierNouveau")->trigger();
    QWidget* saisie = mdi_.EcranOuvert("DatoCama");
    ASSERT_NE(saisie, nullptr);
    mdi_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&mdi_));
    EntreEtude(*saisie);
    CliqueSur(*saisie, "Calculer");
    ASSERT_TRUE(dialogues_.boites.empty()) << dialogues_.boites.back().texte;
    ASSERT_TRUE(Visible("Resultat"));
    EXPECT_FALSE(Visible("DatoCama"));
    EXPECT_EQ(mdi_.EcranOuvert("DatoCama"), saisie) << "hidden, not closed";
    const double rayon = etude.resultats.RayonMax;

    const auto nom = [this](const char* fichier) { return dossier_.Chemin() / fichier; };
    dialogues_.fichiers = {nom("route.Ang"), nom("route.Pnt"), nom("route_Ext.Scr"), nom("route_Int.Scr")};
    QTimer::singleShot(0, &mdi_, [this] {
        auto* sauvegarde = Controle<QWidget>(mdi_, "SeleSauv");
        Controle<QLineEdit>(*sauvegarde, "Text1")->setText("route");
        Controle<QCheckBox>(*sauvegarde, "Check2")->setChecked(true);
        Controle<QCheckBox>(*sauvegarde, "Check3")->setChecked(true);
        CliqueSur(*sauvegarde, "Sauvegarde");
    });
    Controle<QAction>(mdi_, "FichierSauvegarde")->trigger();
    for (const char* fichier : {"route.Ang", "route.Pnt", "route_Ext.Scr", "route_Int.Scr"})
        EXPECT_TRUE(std::filesystem::exists(nom(fichier))) << fichier;

    EXPECT_EQ(S(Controle<QLabel>(mdi_, "Etat")->text()), Texte(127) + " route.Ang");
    EXPECT_EQ(S(mdi_.EcranOuvert("Resultat")->windowTitle()), "route.Ang " + Texte(118)) << "the name it was given";
    CliqueSur(*mdi_.EcranOuvert("Resultat"), "Quitter");
    EXPECT_EQ(mdi_.EcranOuvert("Resultat"), nullptr);
    EXPECT_TRUE(saisie->isVisible()) << "the data screen comes back";

    dialogues_.fichiers = {nom("route.Ang")};
    Controle<QAction>(mdi_, "FichierOuvrir")->trigger();
    EXPECT_EQ(S(mdi_.EcranOuvert("Resultat")->windowTitle()), "route.Ang " + Texte(118));
    EXPECT_EQ(etude.resultats.RayonMax, rayon);
    EXPECT_EQ(etude.donnees.MasseBrasO1A, 0.8);
    EXPECT_EQ(etude.resultats.EtudeModifiee, Faux);

    // From a file there is no data screen to come back to: it is opened on the record, and calculates again.
    CliqueSur(*mdi_.EcranOuvert("Resultat"), "Quitter");
    ASSERT_TRUE(Visible("DatoCama"));
    EXPECT_EQ(Controle<ChampNombre>(*mdi_.EcranOuvert("DatoCama"), "Text4")->Valeur(), 70);
    CliqueSur(*mdi_.EcranOuvert("DatoCama"), "Calculer");
    ASSERT_TRUE(Visible("Resultat"));
    EXPECT_EQ(etude.resultats.RayonMax, rayon);
    EXPECT_EQ(etude.resultats.EtudeModifiee, Vrai);

    MarquesImpression toutes;
    toutes.fill(true);
    EXPECT_TRUE(ImprimePdf(nom("route.pdf"), [&](Imprimante& i) { ImprimeRapportsCames(i, toutes); }));
    const std::string pdf = LitFichierEntier(nom("route.pdf"));
    EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
    EXPECT_NE(pdf.find("%%EOF"), std::string::npos);
    EXPECT_TRUE(dialogues_.boites.empty());
}
