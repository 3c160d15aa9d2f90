#include "app/MdiCamA.h"

#include "app/Aide.h"
#include "app/BaseProvisoire.h"
#include "app/CameType.h"
#include "app/Ecrans.h"
#include "app/Propos.h"
#include "app/Version.h"
#include "core/Etude.h"
#include "core/FichierEntier.h"
#include "outils/DialoguesScript.h"
#include "outils/Ecrans.h"
#include "studies/TypesEtude.h"
#include "widgets/BoutonImage.h"
#include "widgets/ChampNombre.h"
#include "widgets/FenetreEnfant.h"

#include <QAction>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <gtest/gtest.h>

#include <set>

namespace {

constexpr const char* Langues[] = {"Français", "Español", "English"};

Configuration Marques() {
    Configuration configuration;
    configuration.imprime = {true, true, false, true, true, true, false};
    configuration.langue = LangueTravail;
    return configuration;
}

std::filesystem::path Exemple() {
    return std::filesystem::path(VELORIN_DOSSIER) / "Profils" / "Exemple.Ang";
}

class Fenetre : public testing::Test {
protected:
    DialoguesScript dialogues_;
    MdiCamA mdi_{Marques()};

    Fenetre() {
        mdi_.show();
        LaisseFaire();
    }

    QAction* Action(const char* nom) { return Controle<QAction>(mdi_, nom); }
    std::string Etat() { return S(Controle<QLabel>(mdi_, "Etat")->text()); }
    void Clique(QWidget& ecran, const char* bouton) {
        Controle<QAbstractButton>(ecran, bouton)->click();
        LaisseFaire();
    }
    bool Visible(const char* nom) {
        QWidget* ecran = mdi_.EcranOuvert(nom);
        return ecran && ecran->isVisible();
    }
};

} // namespace

TEST_F(Fenetre, UneEntreeSansEcranEstInactive) {
    std::set<std::string> inactives;
    for (const QAction* action : mdi_.findChildren<QAction*>())
        if (!action->isEnabled() && !action->menu()) inactives.insert(S(action->objectName()));
    EXPECT_TRUE(inactives.contains("FichierGenerateursCroixMalte"));
    for (const char* nom :
         {"FichierNouveau", "FicImprimerProfil", "FichierClasiquesLoisSpe", "Hesser", "MSPerso", "NouveauCylindre",
          "NouveauGlobiqueIndexeur", "NouveauGlobiqueOscillateur", "NouveauConjug", "ProfilCylindriqueOsc",
          "ProfilConjugueesOsc", "Quitter", "FichierClasiquesInerties", "Inerties", "FichierLanguesModification"})
        EXPECT_FALSE(inactives.contains(nom)) << nom;
    for (const QAction* action : Controle<QToolBar>(mdi_, "Toolbar1")->actions())
        if (!action->isSeparator()) {
            EXPECT_FALSE(action->icon().isNull()) << S(action->objectName());
        }
    // A kind that can be calculated has its screens.
    for (const TypeEtude& type : LesTypesEtude())
        for (const char* ecran : {type.ecranSaisie, type.ecranResultats})
            EXPECT_EQ(TrouveEcran(ecran) != nullptr, type.Disponible()) << type.nom << " " << ecran;
    // A kind that cannot be calculated cannot be opened either.
    const QList<QAction*> ouvertures = Action("Ouvre")->menu()->actions();
    for (qsizetype i = 0; i < ouvertures.size(); ++i)
        EXPECT_EQ(ouvertures[i]->isEnabled(), LesTypesEtude()[static_cast<std::size_t>(i)].Disponible());
}

TEST_F(Fenetre, LegendesDansLesTroisLangues) {
    std::vector<std::string> vues;
    for (const char* langue : Langues) {
        mdi_.ChangeLangue(langue);
        for (const QAction* action : mdi_.findChildren<QAction*>())
            if (!action->objectName().isEmpty() && !action->isSeparator()) {
                EXPECT_FALSE(action->text().isEmpty()) << S(action->objectName());
            }
        for (const QAction* menu : mdi_.menuBar()->actions()) EXPECT_FALSE(menu->text().isEmpty());
        EXPECT_EQ(S(mdi_.windowTitle()), Texte(37));
        EXPECT_EQ(S(Action("FichierOuvrir")->text()), Texte(40));
        vues.push_back(S(Action("FichierSauvegarde")->text()));
        // The same letter does not open two entries of one menu; the French letters are what they have always been.
        if (std::string_view(langue) == "Français") continue;
        for (const QMenu* menu : mdi_.findChildren<QMenu*>()) {
            std::set<QChar> lettres;
            for (const QAction* action : menu->actions()) {
                const qsizetype et = action->text().indexOf('&');
                if (et < 0) continue;
                EXPECT_TRUE(lettres.insert(action->text()[et + 1].toLower()).second) << S(action->text()) << langue;
            }
        }
    }
    EXPECT_EQ(std::set(vues.begin(), vues.end()).size(), 3U);
}

TEST_F(Fenetre, RaccourcisClavier) {
    EXPECT_EQ(Action("FichierNouveau")->shortcut(), QKeySequence("Ctrl+N"));
    EXPECT_EQ(Action("FichierOuvrir")->shortcut(), QKeySequence("Ctrl+O"));
    EXPECT_EQ(Action("FichierQuitte")->shortcut(), QKeySequence("Ctrl+Q"));
    // Ctrl+S without a calculated study says so.
    QTest::keySequence(&mdi_, QKeySequence("Ctrl+S"));
    ASSERT_EQ(dialogues_.boites.size(), 1U);
    EXPECT_EQ(dialogues_.boites[0].texte, Texte(23));
    EXPECT_EQ(dialogues_.boites[0].icone, Icone::Information);
    // F1 without the help file names it.
    ChoisitAide();
    EXPECT_EQ(FichierAide().filename(), "CamesFr.chm");
    QTest::keyClick(&mdi_, Qt::Key_F1);
    ASSERT_EQ(dialogues_.boites.size(), 2U);
    EXPECT_EQ(dialogues_.boites[1].texte, Texte(138) + " CamesFr.chm");
}

TEST_F(Fenetre, MarquesEtConfiguration) {
    const BaseProvisoire provisoire;
    EXPECT_TRUE(Action("FicImprimerProfil")->isChecked());
    EXPECT_FALSE(Action("FicImprimerFicImprimerGraph")->isChecked());
    Action("FicImprimerProfil")->trigger();
    Action("FicImprimerPointsRemarq")->trigger();
    Action("FicImprimerSauveImpre")->trigger();
    EXPECT_EQ(LitFichierEntier(CheminAppli / NomConfiguration),
              "#FALSE#\n#TRUE#\n#FALSE#\n#TRUE#\n#TRUE#\n#TRUE#\n#TRUE#\nFrançais\n");
    EXPECT_EQ(Etat(), Texte(130));
}

TEST_F(Fenetre, UnFichierIllisibleEstDitDansLaLigneDEtat) {
    const QTemporaryDir dossier;
    const std::filesystem::path chemin = Chemin(dossier.path());
    const std::string bon = LitFichierEntier(Exemple());
    const std::pair<const char*, std::string> fichiers[] = {
        {"Vide.Ang", ""}, {"Coupe.Ang", bon.substr(0, bon.size() / 2)}, {"Binaire.Ang", std::string(5000, '\0')}};
    for (const auto& [nom, contenu] : fichiers) {
        EcritFichierEntier(chemin / nom, contenu);
        dialogues_.fichiers.push_back(chemin / nom);
        Action("FichierOuvrir")->trigger();
        EXPECT_EQ(Etat().rfind(Texte(128) + " " + nom + " : ", 0), 0U) << Etat();
        EXPECT_GT(Etat().size(), (Texte(128) + " " + nom + " : ").size());
        EXPECT_EQ(etude.resultats.ResultatsPrets, Faux);
    }
    dialogues_.fichiers.push_back(chemin / "Absent.Ang");
    Action("FichierOuvrir")->trigger();
    EXPECT_NE(Etat().find("Absent.Ang"), std::string::npos);
    EXPECT_TRUE(dialogues_.boites.empty()) << "no box";

    // The program is as usable as before.
    dialogues_.fichiers.push_back(Exemple());
    Action("ProfilPlatAngulaire")->trigger();
    EXPECT_TRUE(Visible("Resultat"));
    EXPECT_EQ(Etat(), Texte(122) + " Exemple.Ang");
    EXPECT_EQ(dialogues_.demandes.back(), Texte(125) + " " + Texte(85));
}

TEST_F(Fenetre, UneEtudeQuiNeSeCalculePasSOuvreSurSaSaisie) {
    // A diameter of 0, turns that overlap once the track comes back down, and a cam at rest.
    const std::string bon = LitFichierEntier(Exemple().parent_path() / "Deux-tours.Cyl");
    const std::pair<const char*, const char*> changements[] = {
        {"110.\r\n", ".\r\n"}, {"90.\r\n90.\r\n", "90.\r\n.\r\n"}, {"\r\n90.\r\n", "\r\n.\r\n"}};
    const int attendus[] = {419, 126, 200}, vitesses[] = {90, 90, 0};
    const QTemporaryDir dossier;
    for (std::size_t i = 0; i < std::size(changements); ++i) {
        std::string contenu = bon;
        contenu.replace(contenu.find(changements[i].first), std::string_view(changements[i].first).size(),
                        changements[i].second);
        const std::filesystem::path chemin = Chemin(dossier.path()) / "essai.Cyl";
        EcritFichierEntier(chemin, contenu);
        mdi_.FermeEcrans();
        mdi_.OuvreFichier(chemin);
        ASSERT_FALSE(dialogues_.boites.empty());
        EXPECT_EQ(dialogues_.boites.back().texte.find(Texte(attendus[i])), 0U) << dialogues_.boites.back().texte;
        EXPECT_TRUE(Visible("DoCyl"));
        EXPECT_EQ(etude.resultats.ResultatsPrets, Faux);
        EXPECT_EQ(Controle<ChampNombre>(*mdi_.EcranOuvert("DoCyl"), "Text1")->Valeur(), vitesses[i]);
    }
}

TEST_F(Fenetre, UneCameCylindriqueOuverteRevientASonEcranDeSaisie) {
    for (const auto& [fichier, ecran] : {std::pair{"Barillet.Cyl", "DoCyl"}, {"Balancier.Osc", "DoCylOsc"}}) {
        mdi_.FermeEcrans();
        mdi_.OuvreFichier(Exemple().parent_path() / fichier);
        ASSERT_TRUE(Visible("Resultat")) << Etat();
        Clique(*mdi_.EcranOuvert("Resultat"), "Quitter");
        ASSERT_TRUE(Visible(ecran));
        Clique(*mdi_.EcranOuvert(ecran), "Calculer");
        EXPECT_TRUE(Visible("Resultat"));
        EXPECT_FALSE(Visible(ecran));
        EXPECT_EQ(etude.resultats.EtudeModifiee, Vrai);
    }
}

TEST_F(Fenetre, FermeEcransLaisseLaFenetreSeule) {
    mdi_.OuvreFichier(Exemple());
    Clique(*mdi_.EcranOuvert("Resultat"), "Quitter");
    mdi_.OuvreEcran("Resultat");
    mdi_.FermeEcrans();
    LaisseFaire();
    EXPECT_EQ(mdi_.EcranOuvert("DatoCama"), nullptr);
    EXPECT_EQ(mdi_.EcranOuvert("Resultat"), nullptr);
    EXPECT_TRUE(mdi_.findChildren<QMdiSubWindow*>().isEmpty());
    EXPECT_TRUE(mdi_.isVisible());
    EXPECT_EQ(mdi_.OuvreEcran("Inexistant"), nullptr) << "a screen that is not built";
}

TEST_F(Fenetre, LaCroixDUnEnfantEstSonRetour) {
    mdi_.CommenceEtude(LesChoixEtude().front());
    etude.donnees.ZoneCourante = 1;
    mdi_.findChild<QMdiSubWindow*>()->close();
    LaisseFaire();
    EXPECT_EQ(mdi_.EcranOuvert("DatoCama"), nullptr);
    EXPECT_EQ(etude.donnees.ZoneCourante, 0) << "what the screen's own way back does was done";
}

TEST_F(Fenetre, UneRotationEmpecheDOuvrir) {
    mdi_.OuvreFichier(Exemple());
    etude.resultats.RotationEnCours = Vrai;
    auto* onglets = Controle<QTabWidget>(*mdi_.EcranOuvert("Resultat"), "SSTab1");
    onglets->setCurrentIndex(0);
    Action("FichierOuvrir")->trigger();
    Action("NouveauAngulaire")->trigger();
    Controle<QAction>(mdi_, "FichierLanguesDisponibles")->trigger();
    ASSERT_EQ(dialogues_.boites.size(), 3U);
    for (const auto& boite : dialogues_.boites) EXPECT_EQ(boite.texte, Texte(435));
    EXPECT_EQ(onglets->currentIndex(), 4);
    EXPECT_TRUE(Visible("Resultat"));
    EXPECT_EQ(LangueTravail, "Français");

    mdi_.RefuseSiRotation();
    EXPECT_EQ(etude.resultats.Erreur, Vrai);
    etude.resultats.RotationEnCours = Faux;
    mdi_.RefuseSiRotation();
    EXPECT_EQ(etude.resultats.Erreur, Faux);
}

TEST_F(Fenetre, UneNouvelleEtudeEffaceLAncienne) {
    mdi_.OuvreFichier(Exemple());
    QTimer::singleShot(0, &mdi_, [this] {
        auto* choix = Controle<CameType>(mdi_, "CameType");
        EXPECT_TRUE(Visible("Resultat")) << "nothing is lost before the choice";
        QTest::keyClick(Controle<QAbstractButton>(*choix, "Image1"), Qt::Key_Return);
    });
    Action("Nouveau")->trigger();
    EXPECT_TRUE(Visible("DatoCama"));
    EXPECT_EQ(mdi_.EcranOuvert("Resultat"), nullptr);
    EXPECT_EQ(etude.donnees.TypeCame, "Angulaire");
    EXPECT_EQ(etude.donnees.NomFichier, "");
    EXPECT_EQ(etude.donnees.CoteA, 0);
    EXPECT_EQ(etude.resultats.ResultatsPrets, Faux);
    EXPECT_GT(etude.lois.NombreLois, 10) << "the catalogue of laws stays";
}

TEST_F(Fenetre, LesEnfantsTiennentDansLeBureau) {
    for (const char* langue : Langues) {
        mdi_.ChangeLangue(langue);
        mdi_.OuvreFichier(Exemple());
        LaisseFaire();
        const QMdiSubWindow* enfant = mdi_.findChild<QMdiSubWindow*>();
        EXPECT_TRUE(Controle<QMdiArea>(mdi_, "Bureau")->viewport()->rect().contains(enfant->geometry())) << langue;
        EXPECT_LE(mdi_.width(), mdi_.screen()->availableSize().width());
    }
}

TEST(Langues, UneLangueIncompleteNEstPasOfferte) {
    const BaseProvisoire provisoire;
    DialoguesScript dialogues;
    MdiCamA mdi{Marques()};
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
    dialogues.saisies.push_back(std::nullopt);
    italien->trigger();
    EXPECT_EQ(FichierAide().filename(), "CamesFr.chm");
    EXPECT_EQ(LangueTravail, "Italiano");
    EXPECT_TRUE(italien->isChecked());
    EXPECT_EQ(S(mdi.windowTitle()), "testo");
}

TEST(CameType, ChoixAuClavierEtTypesInactifs) {
    CameType choix;
    choix.show();
    LaisseFaire();
    for (const ChoixEtude& c : LesChoixEtude()) {
        auto* image = Controle<BoutonImage>(choix, c.image);
        EXPECT_EQ(image->isEnabled(), TrouveEcran(c.Ecran()) != nullptr) << c.image;
        EXPECT_EQ(S(image->text()), Texte(c.Texte()));
    }
    auto* premiere = Controle<BoutonImage>(choix, "Image1");
    EXPECT_EQ(choix.focusWidget(), premiere);
    const QImage dessin = premiere->grab().toImage();
    EXPECT_NE(dessin, Controle<BoutonImage>(choix, "Image2")->grab().toImage());
    QTest::keyClick(premiere, Qt::Key_Space);
    ASSERT_NE(choix.Choisi(), nullptr);
    EXPECT_STREQ(choix.Choisi()->typeCame, "Angulaire");
    EXPECT_EQ(choix.result(), QDialog::Accepted);

    CameType quitte;
    quitte.show();
    Controle<QPushButton>(quitte, "Quitter")->click();
    EXPECT_EQ(quitte.Choisi(), nullptr);
    CameType echappe;
    echappe.show();
    QTest::keyClick(&echappe, Qt::Key_Escape);
    EXPECT_FALSE(echappe.isVisible());
}

TEST(Propos, MontreLaVersionDuProgramme) {
    const Propos propos;
    EXPECT_EQ(S(propos.findChild<QLabel*>("Label2")->text()), Texte(9) + " " + VersionProgramme);
    const std::string projet = LitFichierEntier(std::filesystem::path(VELORIN_SOURCES) / "CMakeLists.txt");
    EXPECT_NE(projet.find(std::string("VERSION ") + VersionProgramme + " "), std::string::npos);
}
