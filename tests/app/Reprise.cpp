// Work that was given up without being saved is taken back, after a command that discards it and after a kill.
#include "app/CameType.h"
#include "app/MdiCamA.h"
#include "core/FichierEntier.h"
#include "data/Demarrage.h"
#include "laws/CalculLois.h"
#include "laws/ChoixLois.h"
#include "outils/DialoguesScript.h"
#include "outils/Ecrans.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QRadioButton>
#include <QTest>

#include <csignal>

namespace {

class Reprise : public testing::Test {
protected:
    DialoguesScript dialogues_;
    std::unique_ptr<MdiCamA> mdi_;

    Reprise() { Ouvre(); }
    void Ouvre() {
        mdi_.reset();
        mdi_ = std::make_unique<MdiCamA>(Configuration{{}, LangueTravail});
        mdi_->show();
        mdi_->activateWindow();
        LaisseFaire();
    }
    QAction* Action(const char* nom) { return Controle<QAction>(*mdi_, nom); }
    QWidget& Ecran(const char* nom) { return *mdi_->EcranOuvert(nom); }
    std::string Etat() { return S(Controle<QLabel>(*mdi_, "Etat")->text()); }
    std::string Champ(const char* ecran, const char* champ) {
        return S(Controle<QLineEdit>(Ecran(ecran), champ)->text());
    }
    void Tape(const char* ecran, const char* champ, const char* texte) { TapeDans(Ecran(ecran), champ, texte); }
    void Raccourci(const char* touches) {
        QTest::keySequence(mdi_.get(), QKeySequence(QString::fromLatin1(touches)));
        LaisseFaire();
    }
    void CommenceBras() {
        mdi_->CommenceEtude(LesChoixEtude().front());
        LaisseFaire();
    }
    /// The data of an arm cam, and the first two of three zones; the last field is typed and not left.
    void TapeEtude() {
        CommenceBras();
        for (const auto& [champ, texte] : {std::pair{"Text1", "80.125"},
                                           {"Text2", "30"},
                                           {"Text3", "100"},
                                           {"Text4", "70"},
                                           {"Text6", "10"},
                                           {"Text18", "300"},
                                           {"Text13", "3"},
                                           {"Text14", "25"},
                                           {"Text15", "40.0625"},
                                           {"Text16", "90"}})
            Tape("DatoCama", champ, texte);
        CliqueSur(Ecran("DatoCama"), "Suivante");
        Tape("DatoCama", "Text15", "30");
        Tape("DatoCama", "Text16", "120");
        CliqueSur(Ecran("DatoCama"), "Suivante");
        auto* masse = Controle<QLineEdit>(Ecran("DatoCama"), "Text9");
        masse->setFocus();
        masse->selectAll();
        QTest::keyClicks(masse, "12,5");
    }
    void AttendEtude() {
        ASSERT_NE(mdi_->EcranOuvert("DatoCama"), nullptr) << Etat();
        EXPECT_EQ(Champ("DatoCama", "Text1"), "80.125") << "no mask rounds it";
        EXPECT_EQ(Champ("DatoCama", "Text9"), "12.5");
        ASSERT_EQ(etude.donnees.NombreZones, 3);
        EXPECT_EQ(etude.donnees.Zones[1].AngleFinal, 40.0625);
        EXPECT_GT(etude.donnees.Zones[2].RayonFinal, 0);
        // The third zone waits to be entered, as it did.
        EXPECT_FALSE(Controle<QAbstractButton>(Ecran("DatoCama"), "Calculer")->isEnabled());
        EXPECT_TRUE(dialogues_.boites.empty()) << "nothing is asked or told in a box";
    }
};

/// What `Reprise.ATypedStudySurvivesAKill` runs in a process of its own.
class RepriseTuee : public Reprise {};

} // namespace

TEST_F(Reprise, ADiscardedStudyIsTakenBackByItsShortcut) {
    EXPECT_FALSE(Action("FichierReprendre")->isEnabled());
    CommenceBras();
    CommenceBras();
    EXPECT_FALSE(Action("FichierReprendre")->isEnabled()) << "nothing was entered";
    TapeEtude();
    Action("NouveauLineaire")->trigger();
    LaisseFaire();
    ASSERT_NE(mdi_->EcranOuvert("DoProfil"), nullptr);
    Tape("DoProfil", "Text3", "17");
    Raccourci("Ctrl+Shift+T");
    AttendEtude();
    EXPECT_EQ(etude.donnees.TypeCame, "Angulaire");
    EXPECT_EQ(Etat().find(Texte(932)), 0U) << Etat();
    // What was open meanwhile is not lost either.
    Raccourci("Ctrl+Shift+T");
    ASSERT_NE(mdi_->EcranOuvert("DoProfil"), nullptr);
    EXPECT_EQ(Champ("DoProfil", "Text3"), "17");
    Raccourci("Ctrl+Shift+T");
    AttendEtude();
}

TEST_F(Reprise, TheWayBackOfADataScreenLosesNothing) {
    TapeEtude();
    CliqueSur(Ecran("DatoCama"), "Retour");
    EXPECT_EQ(mdi_->EcranOuvert("DatoCama"), nullptr);
    EXPECT_EQ(Etat(), Texte(933)) << "the status line says how it comes back";
    Action("FichierReprendre")->trigger();
    AttendEtude();
    EXPECT_EQ(etude.resultats.EtudeModifiee, Faux);
    EXPECT_EQ(etude.resultats.ResultatsPrets, Faux);
}

TEST_F(Reprise, WhatIsSavedOrOnlyOpenedIsNotOffered) {
    mdi_->OuvreFichier(CheminAppli / NomDossierEtudes / "Exemple.Ang");
    CommenceBras();
    EXPECT_FALSE(Action("FichierReprendre")->isEnabled());
    // Changed among the results, it is.
    mdi_->FermeEcrans();
    mdi_->OuvreFichier(CheminAppli / NomDossierEtudes / "Exemple.Ang");
    Tape("Resultat", "Text6", "77");
    CliqueSur(Ecran("Resultat"), "Recalcul");
    mdi_->FermeEcrans();
    ASSERT_TRUE(Action("FichierReprendre")->isEnabled());
    Action("FichierReprendre")->trigger();
    EXPECT_EQ(etude.donnees.VitesseCame, 77);
    EXPECT_EQ(etude.donnees.NomFichier, "Exemple.Ang");
    CliqueSur(Ecran("DatoCama"), "Calculer");
    EXPECT_NE(mdi_->EcranOuvert("Resultat"), nullptr);
    EXPECT_EQ(etude.resultats.EtudeModifiee, Vrai);
}

TEST_F(Reprise, AStudyWithALawFileKeepsItsLaw) {
    mdi_->CommenceEtude(LesChoixEtude().front());
    LaisseFaire();
    Tape("DatoCama", "Text13", "1");
    Tape("DatoCama", "Text15", "10");
    dialogues_.fichiers.push_back(CheminAppli / NomDossierEtudes / "Aller-retour.Lmi");
    auto* loi = Controle<QComboBox>(Ecran("DatoCama"), "Combo1");
    loi->setFocus();
    loi->lineEdit()->selectAll();
    QTest::keyClicks(loi->lineEdit(), NomLoiFichier);
    QTest::keyClick(loi->lineEdit(), Qt::Key_Return);
    LaisseFaire();
    const PointLoi milieu = etude.lois.LoiUnite[180];
    ASSERT_GT(milieu.Course, 0.1);
    mdi_->FermeEcrans();
    etude.lois.LoiUnite = {};
    ChargeLois();
    Raccourci("Ctrl+Shift+T");
    ASSERT_EQ(etude.donnees.Zones[1].NomLoi, NomLoiFichier);
    EXPECT_TRUE(etude.lois.DeFichier);
    EXPECT_EQ(etude.lois.LoiUnite[180].Course, milieu.Course);
    EXPECT_EQ(etude.lois.LoiUnite[180].Accel, milieu.Accel);
}

TEST_F(Reprise, AStudyOfALawComesBackWithItsLawAndUnit) {
    mdi_->EtudieLoi(*TrouveChoixLoi("MSPerso"));
    LaisseFaire();
    Tape("LoiMouv", "Text1", "72.5");
    Controle<QRadioButton>(Ecran("LoiMouv"), "Option2")->click();
    mdi_->EtudieLoi(*TrouveChoixLoi("Hesser"));
    LaisseFaire();
    Raccourci("Ctrl+Shift+T");
    ASSERT_NE(mdi_->EcranOuvert("LoiMouv"), nullptr);
    EXPECT_EQ(etude.lois.LoiChoisie, "MS_Spe");
    EXPECT_EQ(Champ("LoiMouv", "Text1"), "72.5");
    EXPECT_TRUE(Controle<QRadioButton>(Ecran("LoiMouv"), "Option2")->isChecked());
}

TEST_F(Reprise, TheRecoveryFileFollowsTheEntryAndGoesWithIt) {
    const std::filesystem::path fichier = FichierReprise(CheminUtilisateur);
    TapeEtude();
    ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(fichier); }, 5000));
    EXPECT_NE(LitFichierEntier(fichier).find("80.125"), std::string::npos);
    CliqueSur(Ecran("DatoCama"), "Retour");
    EXPECT_FALSE(std::filesystem::exists(fichier));
    Raccourci("Ctrl+Shift+T");
    EXPECT_TRUE(std::filesystem::exists(fichier));
    mdi_->close();
    EXPECT_FALSE(std::filesystem::exists(fichier));
    // A damaged file offers nothing, and the program starts.
    EcritFichierEntier(fichier, "DatoCama\r\n\r\n99999\r\nAngulaire");
    Ouvre();
    EXPECT_FALSE(Action("FichierReprendre")->isEnabled());
    EcritFichierEntier(fichier, "DatoCama\r\n\r\n4\r\nNon\n");
    Ouvre();
    Raccourci("Ctrl+Shift+T");
    EXPECT_EQ(mdi_->EcranOuvert("DatoCama"), nullptr);
    EXPECT_EQ(Etat().find(Texte(128)), 0U) << Etat();
}

TEST_F(Reprise, AFolderThatCannotBeWrittenIsToldOnce) {
    const std::filesystem::path dossier = FichierReprise(CheminUtilisateur).parent_path();
    EcritFichierEntier(dossier, "a file where the folder should be");
    TapeEtude();
    ASSERT_TRUE(QTest::qWaitFor([this] { return Etat().starts_with(Texte(934)); }, 5000));
    EXPECT_TRUE(dialogues_.boites.empty());
}

TEST_F(RepriseTuee, DISABLED_TypesAndIsKilled) {
    TapeEtude();
    ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(FichierReprise(CheminUtilisateur)); }, 5000));
    QTest::qWait(3000); // the field typed last is in it too
    std::raise(SIGKILL);
}

TEST_F(Reprise, ATypedStudySurvivesAKill) {
    QProcess enfant;
    QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
    environnement.insert("VELORIN_ESSAI_TUE", "1");
    enfant.setProcessEnvironment(environnement);
    enfant.start(QCoreApplication::applicationFilePath(),
                 {"--gtest_filter=RepriseTuee.DISABLED_TypesAndIsKilled", "--gtest_also_run_disabled_tests"});
    ASSERT_TRUE(enfant.waitForFinished(60000));
    ASSERT_EQ(enfant.exitStatus(), QProcess::CrashExit) << enfant.readAllStandardOutput().toStdString();

    Ouvre();
    EXPECT_TRUE(Action("FichierReprendre")->isEnabled());
    EXPECT_EQ(Etat(), Texte(933));
    EXPECT_EQ(mdi_->EcranOuvert("DatoCama"), nullptr) << "offered, not forced";
    Raccourci("Ctrl+Shift+T");
    AttendEtude();
    // Left in order, it leaves nothing behind.
    mdi_->close();
    Ouvre();
    EXPECT_FALSE(Action("FichierReprendre")->isEnabled());
}
