// The main window: its marks, files that cannot be read or calculated, and a cam that turns.
#include "outils/FenetrePrincipale.h"
#include "widgets/ChampNombre.h"

#include <QTabWidget>

using Fenetre = FenetrePrincipale;

TEST_F(Fenetre, MarquesEtConfiguration) {
    const std::filesystem::path ancien = std::exchange(CheminUtilisateur, dossier_.Chemin());
    for (const char* nom : {"FicImprimerProfil", "FicImprimerPointsRemarq", "FicImprimerSauveImpre"}) Lance(nom);
    CheminUtilisateur = ancien;
    EXPECT_EQ(LitBrut(dossier_ / NomConfiguration),
              "#FALSE#\n#TRUE#\n#TRUE#\n#TRUE#\n#TRUE#\n#TRUE#\n#FALSE#\nFrançais\n");
}

TEST_F(Fenetre, UnFichierIllisibleEstDitDansLaLigneDEtat) {
    const std::string bon = LitBrut(Exemple("Exemple.Ang"));
    dossier_.Ecrit("Vide.Ang", "");
    dossier_.Ecrit("Coupe.Ang", bon.substr(0, bon.size() / 2));
    dossier_.Ecrit("Binaire.Ang", std::string(5000, '\0'));
    for (const char* nom : {"Vide.Ang", "Coupe.Ang", "Binaire.Ang", "Absent.Ang"}) {
        mdi_->OuvreAutre(dossier_ / nom);
        const std::string debut = Texte(128) + " " + nom + " : ";
        EXPECT_TRUE(Etat().starts_with(debut) && Etat().size() > debut.size()) << Etat();
        EXPECT_EQ(etude.resultats.ResultatsPrets, Faux);
    }
    EXPECT_TRUE(dialogues_.boites.empty()) << "no box";

    // The program is as usable as before.
    dialogues_.fichiers.push_back(Exemple("Exemple.Ang"));
    Lance("ProfilPlatAngulaire");
    EXPECT_TRUE(Visible("Resultat"));
    EXPECT_EQ(Etat(), Texte(122) + " Exemple.Ang");
}

TEST_F(Fenetre, UneEtudeQuiNeSeCalculePasSOuvreSurSaSaisie) {
    // A diameter of 0, turns that overlap once the track comes back down, and a cam at rest.
    const struct {
        const char *de, *a;
        int texte, vitesse;
    } cas[] = {{"110.\r\n", ".\r\n", 419, 90},
               {"90.\r\n90.\r\n", "90.\r\n.\r\n", 126, 90},
               {"\r\n90.\r\n", "\r\n.\r\n", 200, 0}};
    for (const auto& c : cas) {
        std::string contenu = LitBrut(Exemple("Deux-tours.Cyl"));
        contenu.replace(contenu.find(c.de), std::string_view(c.de).size(), c.a);
        mdi_->OuvreAutre(dossier_.Ecrit("essai.Cyl", contenu));
        EXPECT_TRUE(dialogues_.Derniere().starts_with(Texte(c.texte))) << dialogues_.Derniere();
        ASSERT_TRUE(Visible("DoCyl"));
        EXPECT_EQ(etude.resultats.ResultatsPrets, Faux);
        EXPECT_EQ(Controle<ChampNombre>(Ecran("DoCyl"), "Text1")->Valeur(), c.vitesse);
    }
}

TEST_F(Fenetre, UneRotationEmpecheDOuvrir) {
    Ouvre("Exemple.Ang");
    etude.resultats.RotationEnCours = Vrai;
    auto* onglets = Controle<QTabWidget>(Ecran("Resultat"), "SSTab1");
    onglets->setCurrentIndex(0);
    for (const char* commande : {"FichierOuvrir", "NouveauAngulaire", "FichierLanguesDisponibles"}) {
        dialogues_.boites.clear();
        Lance(commande);
        EXPECT_EQ(dialogues_.Derniere(), Texte(435)) << commande;
    }
    EXPECT_EQ(onglets->currentIndex(), 4);
    EXPECT_TRUE(Visible("Resultat"));
    etude.resultats.RotationEnCours = Faux;
}
