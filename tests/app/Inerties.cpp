// The inertia calculator beside the studies of the main window.
#include "inertia/screens/Inerties.h"

#include "inertia/TextesInertie.h"
#include "outils/FenetrePrincipale.h"
#include "widgets/ChampNombre.h"

namespace {

class InertiesAuBureau : public FenetrePrincipale {
protected:
    InertiesAuBureau() {
        Lance("FichierClasiquesInerties");
        Calculateur().OuvreListe(Exemple("Plateau.Ine"));
    }
    Inerties& Calculateur() { return dynamic_cast<Inerties&>(Ecran("Inerties")); }
};

} // namespace

TEST_F(InertiesAuBureau, TheListOutlivesStudiesLanguagesAndAnotherCallOfTheCommand) {
    Ouvre("Exemple.Ang");
    mdi_->FermeEcrans();
    EXPECT_FALSE(Ouvert("Resultat"));
    mdi_->ChangeLangue("English");
    EXPECT_EQ(S(Calculateur().windowTitle()), "Inertia Calculation");
    Lance("Inerties");
    EXPECT_EQ(Calculateur().Liste().lignes.size(), 5U);
    EXPECT_TRUE(Calculateur().EnAvant());
    CliqueSur(Calculateur(), "Ok");
    EXPECT_FALSE(Ouvert("Inerties"));
}

TEST_F(InertiesAuBureau, TheTotalGoesIntoTheFieldThatAsksForAnInertia) {
    Lance("ListeTransmettre");
    EXPECT_EQ(Etat(), Texte(TexteAucunChampInertie));
    for (const auto& [ecran, champ] : {std::pair{"DoCylOsc", "Text6"},
                                       {"CylindriqueIndexeur", "Text3"},
                                       {"GlobiqueIndexeur", "Text3"},
                                       {"GlobiqueOscillateur", "Text3"}}) {
        mdi_->FermeEcrans();
        FenetreEnfant* calcul = mdi_->OuvreEcran(ecran);
        Lance("ListeTransmettre");
        EXPECT_NEAR(Controle<ChampNombre>(*calcul, champ)->Valeur(), 10.5972, 1e-4) << ecran;
        EXPECT_TRUE(calcul->EnAvant()) << ecran;
    }
}

TEST_F(InertiesAuBureau, SavingAndPrintingAreItsOwnWhileItIsInFront) {
    dialogues_.fichiers = {dossier_ / "copie.Ine"};
    Lance("FichierSauvegarde");
    EXPECT_EQ(LitBrut(dossier_ / "copie.Ine"), LitBrut(Exemple("Plateau.Ine")));
    EXPECT_TRUE(Imprime());
    // Behind a study they are the study's again.
    mdi_->OuvreEcran("DatoCama");
    Lance("FichierSauvegarde");
    EXPECT_EQ(dialogues_.Derniere(), Texte(23));
}
