#include "app/MdiCamA.h"

#include "app/Aide.h"
#include "app/BaseProvisoire.h"
#include "app/CameType.h"
#include "app/Ecrans.h"
#include "app/Propos.h"
#include "app/Version.h"
#include "outils/FenetrePrincipale.h"
#include "studies/TypesEtude.h"
#include "widgets/ChampNombre.h"

#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>

#include <set>

namespace {

using Fenetre = FenetrePrincipale;

} // namespace

TEST_F(Fenetre, UneEntreeSansEcranEstInactive) {
    std::set<std::string> inactives;
    for (const QAction* action : mdi_->findChildren<QAction*>())
        if (!action->isEnabled() && !action->menu()) inactives.insert(S(action->objectName()));
    EXPECT_TRUE(inactives.contains("FichierGenerateursCroixMalte"));
    for (const char* nom :
         {"FichierNouveau", "FicImprimerProfil", "Hesser", "NouveauConjug", "Inerties", "FichierLanguesModification"})
        EXPECT_FALSE(inactives.contains(nom)) << nom;
    // A kind that can be calculated has its screens, and one that cannot be is not opened either.
    const QList<QAction*> ouvertures = Action("Ouvre").menu()->actions();
    for (std::size_t i = 0; i < LesTypesEtude().size(); ++i) {
        const TypeEtude& type = LesTypesEtude()[i];
        for (const char* ecran : {type.ecranSaisie, type.ecranResultats})
            EXPECT_EQ(TrouveEcran(ecran) != nullptr, type.Disponible()) << type.nom << " " << ecran;
        EXPECT_EQ(ouvertures[static_cast<qsizetype>(i)]->isEnabled(), type.Disponible()) << type.nom;
    }
}

TEST_F(Fenetre, MenusInTheThreeLanguages) {
    for (const char* langue : {"Français", "Español", "English"}) {
        mdi_->ChangeLangue(langue);
        for (const QAction* action : mdi_->findChildren<QAction*>())
            EXPECT_TRUE(action->objectName().isEmpty() || action->isSeparator() || !action->text().isEmpty())
                << S(action->objectName());
        EXPECT_EQ(S(mdi_->windowTitle()), Texte(37));
        EXPECT_EQ(S(Action("FichierOuvrir").text()), Texte(40));
        // The same letter does not open two entries of one menu; the French letters are what they have always been.
        if (std::string_view(langue) == "Français") continue;
        for (const QMenu* menu : mdi_->findChildren<QMenu*>()) {
            std::set<QChar> lettres;
            for (const QAction* action : menu->actions()) {
                const qsizetype et = action->text().indexOf('&');
                if (et < 0) continue;
                EXPECT_TRUE(lettres.insert(action->text()[et + 1].toLower()).second) << S(action->text()) << langue;
            }
        }
    }
}

TEST_F(Fenetre, RaccourcisClavier) {
    for (const auto& [nom, touches] :
         {std::pair{"FichierNouveau", "Ctrl+N"}, {"FichierOuvrir", "Ctrl+O"}, {"FichierQuitte", "Ctrl+Q"}})
        EXPECT_EQ(Action(nom).shortcut(), QKeySequence(touches));
    // Ctrl+S without a calculated study says so.
    Raccourci("Ctrl+S");
    ASSERT_EQ(dialogues_.boites.size(), 1U);
    EXPECT_EQ(dialogues_.boites[0].texte, Texte(23));
    EXPECT_EQ(dialogues_.boites[0].icone, Icone::Information);
}

TEST_F(Fenetre, MarquesEtConfiguration) {
    const BaseProvisoire provisoire;
    MdiCamA mdi{Configuration{{true, true, false, true, true, true, false}, LangueTravail}};
    for (const char* nom : {"FicImprimerProfil", "FicImprimerPointsRemarq", "FicImprimerSauveImpre"})
        Controle<QAction>(mdi, nom)->trigger();
    EXPECT_EQ(LitBrut(CheminAppli / NomConfiguration),
              "#FALSE#\n#TRUE#\n#FALSE#\n#TRUE#\n#TRUE#\n#TRUE#\n#TRUE#\nFrançais\n");
}

TEST_F(Fenetre, UnFichierIllisibleEstDitDansLaLigneDEtat) {
    const std::string bon = LitBrut(Exemple("Exemple.Ang"));
    dossier_.Ecrit("Vide.Ang", "");
    dossier_.Ecrit("Coupe.Ang", bon.substr(0, bon.size() / 2));
    dossier_.Ecrit("Binaire.Ang", std::string(5000, '\0'));
    for (const char* nom : {"Vide.Ang", "Coupe.Ang", "Binaire.Ang", "Absent.Ang"}) {
        dialogues_.fichiers.push_back(dossier_ / nom);
        Lance("FichierOuvrir");
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
    EXPECT_EQ(dialogues_.demandes.back(), Texte(125) + " " + Texte(85));
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

TEST_F(Fenetre, LaCroixDUnEnfantEstSonRetour) {
    mdi_->CommenceEtude(LesChoixEtude().front());
    etude.donnees.ZoneCourante = 1;
    mdi_->findChild<QMdiSubWindow*>()->close();
    LaisseFaire();
    EXPECT_FALSE(Ouvert("DatoCama"));
    EXPECT_EQ(etude.donnees.ZoneCourante, 0) << "what the screen's own way back does was done";
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
    mdi_->RefuseSiRotation();
    EXPECT_EQ(etude.resultats.Erreur, Vrai);
    etude.resultats.RotationEnCours = Faux;
    mdi_->RefuseSiRotation();
    EXPECT_EQ(etude.resultats.Erreur, Faux);
}

TEST(Langues, UneLangueIncompleteNEstPasOfferte) {
    const BaseProvisoire provisoire;
    ChargeTextes(LaBase);
    DialoguesScript dialogues;
    MdiCamA mdi{Configuration{{}, LangueTravail}};
    std::vector<std::string> offertes;
    QAction* italien = nullptr;
    for (QAction* action : mdi.findChildren<QAction*>("FichierLanguesDisponibles")) {
        offertes.push_back(S(action->text()));
        if (offertes.back() == "Italiano") italien = action;
    }
    EXPECT_EQ(offertes, (std::vector<std::string>{"Français", "Español", "English", "Italiano"}));

    // A language without a help file asks for another one's, every time.
    ASSERT_NE(italien, nullptr);
    for (const auto& [reponse, fichier] : {std::pair{"U", "CamesUk.chm"}, {"E", "CamesEs.chm"}, {"u", "CamesFr.chm"}}) {
        dialogues.saisies.push_back(reponse);
        italien->trigger();
        EXPECT_EQ(FichierAide(), CheminAppli / fichier);
    }
    EXPECT_EQ(LangueTravail, "Italiano");
    EXPECT_TRUE(italien->isChecked());
    EXPECT_EQ(S(mdi.windowTitle()), "testo");
}

TEST(Propos, MontreLaVersionDuProgramme) {
    const Propos propos;
    EXPECT_EQ(S(propos.findChild<QLabel*>("Label2")->text()), Texte(9) + " " + VersionProgramme);
    const std::string projet = LitBrut(std::filesystem::path(VELORIN_SOURCES) / "CMakeLists.txt");
    EXPECT_NE(projet.find(std::string("VERSION ") + VersionProgramme + " "), std::string::npos);
}
