// The inertia calculator beside the studies of the main window.
#include "inertia/screens/Inerties.h"

#include "inertia/TextesInertie.h"
#include "outils/FenetrePrincipale.h"
#include "widgets/ChampNombre.h"

namespace {

class InertiesAuBureau : public FenetrePrincipale {
protected:
    InertiesAuBureau() { mdi_->OuvreAutre(Exemple("Plateau.Ine")); }
    Inerties& Calculateur() { return dynamic_cast<Inerties&>(Ecran("Inerties")); }
};

} // namespace

TEST_F(InertiesAuBureau, TheListOutlivesStudiesAndIsSavedWhileItIsInFront) {
    Ouvre("Exemple.Ang");
    EXPECT_FALSE(Action("FichierReprendre").isEnabled()) << "a list that was only opened is no lost work";
    dialogues_.fichiers = {Exemple("Plateau.Ine")};
    Lance("FichierOuvrir");
    EXPECT_TRUE(Ouvert("Resultat")) << "the study stays beside the list";
    EXPECT_TRUE(Calculateur().EnAvant());
    dialogues_.fichiers = {dossier_ / "copie.Ine"};
    Lance("FichierSauvegarde");
    EXPECT_EQ(LitBrut(dossier_ / "copie.Ine"), LitBrut(Exemple("Plateau.Ine")));
    EXPECT_TRUE(Imprime());
    mdi_->OuvreAutre(dossier_.Ecrit("FAUSSE.INE", "TypeSolide\n"));
    EXPECT_NE(Etat().find("FAUSSE.INE"), std::string::npos);
    mdi_->FermeEcrans();
    EXPECT_EQ(Calculateur().Liste().lignes.size(), 5U);
    // Behind a study the commands are the study's again.
    mdi_->OuvreEcran("DatoCama");
    Lance("FichierSauvegarde");
    EXPECT_EQ(dialogues_.Derniere(), Texte(23));
}

TEST_F(InertiesAuBureau, TheTotalGoesIntoTheFieldThatAsksForAnInertia) {
    Lance("ListeTransmettre");
    EXPECT_EQ(Etat(), Texte(TexteAucunChampInertie));
    for (const auto& [ecran, champ] : {std::pair{"DoCylOsc", "Text6"},
                                       {"CylindriqueIndexeur", "Text3"},
                                       {"GlobiqueIndexeur", "Text3"},
                                       {"GlobiqueOscillateur", "Text3"}}) {
        mdi_->FermeEcrans();
        const FenetreEnfant* calcul = mdi_->OuvreEcran(ecran);
        Lance("ListeTransmettre");
        EXPECT_NEAR(Controle<ChampNombre>(Ecran(ecran), champ)->Valeur(), 10.5972, 1e-4) << ecran;
        EXPECT_TRUE(calcul->EnAvant()) << ecran;
    }
}
