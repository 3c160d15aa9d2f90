// The inertia calculator beside the studies of the main window.
#include "inertia/screens/Inerties.h"
#include "app/MdiCamA.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "inertia/TextesInertie.h"
#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "outils/Ecrans.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

class InertiesAuBureau : public testing::Test {
protected:
    DialoguesScript dialogues_;
    MdiCamA mdi_{Configuration{{}, LangueTravail}};

    InertiesAuBureau() {
        mdi_.show();
        LaisseFaire();
        Lance("FichierClasiquesInerties");
        Ecran().OuvreListe(std::filesystem::path(VELORIN_DOSSIER) / NomDossierEtudes / "Plateau.Ine");
    }
    ~InertiesAuBureau() override {
        ChoisitLangue("Français");
        etude = Etude{};
    }
    void Lance(const char* commande) {
        Controle<QAction>(mdi_, commande)->trigger();
        LaisseFaire();
    }
    Inerties& Ecran() { return dynamic_cast<Inerties&>(*mdi_.EcranOuvert("Inerties")); }
    std::string Etat() { return S(Controle<QLabel>(mdi_, "Etat")->text()); }
};

} // namespace

TEST_F(InertiesAuBureau, TheListOutlivesStudiesLanguagesAndAnotherCallOfTheCommand) {
    mdi_.OuvreFichier(std::filesystem::path(VELORIN_DOSSIER) / NomDossierEtudes / "Exemple.Ang");
    mdi_.FermeEcrans();
    EXPECT_EQ(mdi_.EcranOuvert("Resultat"), nullptr);
    mdi_.ChangeLangue("English");
    EXPECT_EQ(S(Ecran().windowTitle()), "Inertia Calculation");
    Lance("Inerties");
    EXPECT_EQ(Ecran().Liste().lignes.size(), 5U);
    EXPECT_TRUE(Ecran().EnAvant());
    Controle<QAbstractButton>(Ecran(), "Ok")->click();
    LaisseFaire();
    EXPECT_EQ(mdi_.EcranOuvert("Inerties"), nullptr);
}

TEST_F(InertiesAuBureau, TheTotalGoesIntoTheFieldThatAsksForAnInertia) {
    Controle<QAction>(Ecran(), "ListeTransmettre")->trigger();
    EXPECT_EQ(Etat(), Texte(TexteAucunChampInertie));
    for (const auto& [ecran, champ] : {std::pair{"DoCylOsc", "Text6"},
                                       {"CylindriqueIndexeur", "Text3"},
                                       {"GlobiqueIndexeur", "Text3"},
                                       {"GlobiqueOscillateur", "Text3"}}) {
        mdi_.FermeEcrans();
        FenetreEnfant* calcul = mdi_.OuvreEcran(ecran);
        Controle<QAction>(Ecran(), "ListeTransmettre")->trigger();
        EXPECT_NEAR(Controle<ChampNombre>(*calcul, champ)->Valeur(), 10.5972, 1e-4) << ecran;
        EXPECT_TRUE(calcul->EnAvant()) << ecran;
    }
}

TEST_F(InertiesAuBureau, SavingAndPrintingAreItsOwnWhileItIsInFront) {
    DossierTemporaire dossier;
    dialogues_.fichiers = {dossier / "copie.Ine"};
    Lance("FichierSauvegarde");
    EXPECT_EQ(LitBrut(dossier / "copie.Ine"),
              LitBrut(std::filesystem::path(VELORIN_DOSSIER) / NomDossierEtudes / "Plateau.Ine"));
    bool vu = false;
    QTimer::singleShot(0, [&vu] {
        auto* apercu = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        vu = apercu != nullptr;
        if (vu) apercu->reject();
    });
    Lance("FicImprimerImprimer");
    EXPECT_TRUE(vu);
    // Behind a study they are the study's again.
    mdi_.OuvreEcran("DatoCama");
    Lance("FichierSauvegarde");
    EXPECT_EQ(dialogues_.boites.back().texte, Texte(23));
}
