// Work that was given up without being saved is taken back, after a command that discards it and after a kill.
#include "app/CameType.h"
#include "core/FichierEntier.h"
#include "laws/CalculLois.h"
#include "outils/FenetrePrincipale.h"

#include <QMessageBox>
#include <QProcess>

#include <csignal>

namespace {

class Reprise : public FenetrePrincipale {
protected:
    void Tape(const char* ecran, const char* champ, const char* texte) { TapeDans(Ecran(ecran), champ, texte); }
    void CommenceBras() {
        mdi_->CommenceEtude(LesChoixEtude().front());
        LaisseFaire();
    }
    bool Offert() { return Action("FichierReprendre").isEnabled(); }
    void Reprend() { Raccourci("Ctrl+Shift+T"); }
    /// The data of an arm cam, and the first two of three zones; the last field is typed and not left.
    void TapeEtude() {
        CommenceBras();
        QWidget& ecran = Ecran("DatoCama");
        TapeLigne(ecran, "Text1=80.125 Text2=30 Text3=100 Text4=70 Text6=10 Text18=300");
        TapeLigne(ecran, "Text13=3 Text14=25 Text15=40.0625 Text16=90");
        CliqueSur(ecran, "Suivante");
        TapeTout(ecran, {{"Text15", "30"}, {"Text16", "120"}});
        CliqueSur(ecran, "Suivante");
        FrappeDans(ecran, "Text9", "12,5");
    }
    void AttendEtude() {
        ASSERT_TRUE(Ouvert("DatoCama")) << Etat();
        EXPECT_EQ(TexteDe("DatoCama", "Text1"), "80.125") << "no mask rounds it";
        EXPECT_EQ(TexteDe("DatoCama", "Text9"), "12.5");
        ASSERT_EQ(etude.donnees.NombreZones, 3);
        EXPECT_EQ(etude.donnees.Zones[1].AngleFinal, 40.0625);
        EXPECT_GT(etude.donnees.Zones[2].RayonFinal, 0);
        // The third zone waits to be entered, as it did.
        EXPECT_FALSE(Controle<QAbstractButton>(Ecran("DatoCama"), "Calculer")->isEnabled());
        EXPECT_TRUE(dialogues_.boites.empty()) << "nothing is asked or told in a box";
    }
};

bool Contient(const std::filesystem::path& fichier, const char* valeur) {
    return LitBrut(fichier).find(valeur) != std::string::npos;
}

/// A box that stands for as long as the recovery file is written in.
class BoiteReelle : public DialoguesScript {
public:
    void Message(Icone icone, const std::string& texte, const std::string& titre) override {
        DialoguesScript::Message(icone, texte, titre);
        QMessageBox boite;
        QTimer::singleShot(boites.size() > 1 ? 0 : 2500, &boite, &QDialog::accept);
        boite.exec();
    }
};

/// What `Reprise.ATypedStudySurvivesAKill` runs in a process of its own.
class RepriseTuee : public Reprise {};

} // namespace

TEST_F(Reprise, ADiscardedStudyIsTakenBackByItsShortcut) {
    EXPECT_FALSE(Offert());
    CommenceBras();
    CommenceBras();
    EXPECT_FALSE(Offert()) << "nothing was entered";
    TapeEtude();
    Lance("NouveauLineaire");
    ASSERT_TRUE(Ouvert("DoProfil"));
    Tape("DoProfil", "Text3", "17");
    Reprend();
    AttendEtude();
    // What was open meanwhile is not lost either.
    Reprend();
    ASSERT_TRUE(Ouvert("DoProfil"));
    EXPECT_EQ(TexteDe("DoProfil", "Text3"), "17");
    Reprend();
    CliqueSur(Ecran("DatoCama"), "Retour");
    EXPECT_EQ(Etat(), Texte(933)) << "the status line says how it comes back";
    Reprend();
    AttendEtude();
    EXPECT_EQ(etude.resultats.EtudeModifiee, Faux);
}

TEST_F(Reprise, AZoneTypedAndNotAcceptedComesBackWithTheRest) {
    TapeEtude();
    TapeLigne(Ecran("DatoCama"), "Text14=28.5 Text15=25 Text16=150");
    FrappeDans(Ecran("DatoCama"), "Text19", ".4");
    Controle<QWidget>(Ecran("DatoCama"), "Combo2")->setFocus(Qt::TabFocusReason);
    Frappe(Ecran("DatoCama"), "5");
    CliqueSur(Ecran("DatoCama"), "Retour");
    Reprend();
    ASSERT_TRUE(Ouvert("DatoCama")) << Etat();
    for (const auto& [champ, texte] :
         {std::pair{"Text14", "28.5"}, {"Text15", "25"}, {"Text16", "150"}, {"Text19", ".4"}})
        EXPECT_EQ(TexteDe("DatoCama", champ), texte) << champ;
    EXPECT_EQ(etude.donnees.PointsParDegre, 5);
    CliqueSur(Ecran("DatoCama"), "Suivante");
    EXPECT_EQ(etude.donnees.Zones[3].AngleDepart, 28.5);
    EXPECT_TRUE(Controle<QAbstractButton>(Ecran("DatoCama"), "Calculer")->isEnabled());
    // Of a study only opened, an edit of a zone is work as well.
    Ouvre("Exemple.Ang");
    CliqueSur(Ecran("Resultat"), "Quitter");
    CliqueCellule(Ecran("DatoCama"), "Grille", 1, 1);
    FrappeDans(Ecran("DatoCama"), "Text16", "61");
    CommenceBras();
    Reprend();
    EXPECT_EQ(TexteDe("DatoCama", "Text16"), "61");
    EXPECT_EQ(etude.donnees.Zones[2].AngleCame, 60) << "not accepted yet";
}

TEST_F(Reprise, ABoxOfACalculationKeepsNoZonesInPoints) {
    const std::filesystem::path fichier = FichierReprise(CheminUtilisateur);
    Ouvre("Exemple.Ang");
    CliqueSur(Ecran("Resultat"), "Quitter");
    FrappeDans(Ecran("DatoCama"), "Text6", "80");
    BoiteReelle boites;
    CliqueSur(Ecran("DatoCama"), "Calculer");
    ASSERT_FALSE(boites.boites.empty()) << "the roller is too large";
    EXPECT_FALSE(Contient(fichier, "220")) << "110 degrees at 2 points per degree";
    EXPECT_TRUE(QTest::qWaitFor([&] { return Contient(fichier, "110"); }));
}

TEST_F(Reprise, WhatIsSavedOrOnlyOpenedIsNotOffered) {
    Ouvre("Exemple.Ang");
    CommenceBras();
    EXPECT_FALSE(Offert());
    // Changed among the results, it is.
    mdi_->FermeEcrans();
    Ouvre("Exemple.Ang");
    Tape("Resultat", "Text6", "77");
    CliqueSur(Ecran("Resultat"), "Recalcul");
    mdi_->FermeEcrans();
    ASSERT_TRUE(Offert());
    Lance("FichierReprendre");
    EXPECT_EQ(etude.donnees.VitesseCame, 77);
}

TEST_F(Reprise, AStudyWithALawFileKeepsItsLaw) {
    CommenceBras();
    QWidget& saisie = Ecran("DatoCama");
    TapeTout(saisie, {{"Text13", "1"}, {"Text15", "10"}});
    dialogues_.fichiers.push_back(Exemple("Aller-retour.Lmi"));
    Controle<QWidget>(saisie, "Combo1")->setFocus(Qt::TabFocusReason);
    Frappe(saisie, NomLoiFichier);
    Retour(saisie);
    const PointLoi milieu = etude.lois.LoiUnite[180];
    ASSERT_GT(milieu.Course, 0.1);
    mdi_->FermeEcrans();
    etude.lois.LoiUnite = {};
    ChargeLois();
    Reprend();
    ASSERT_EQ(etude.donnees.Zones[1].NomLoi, NomLoiFichier);
    EXPECT_TRUE(etude.lois.DeFichier);
    EXPECT_EQ(etude.lois.LoiUnite[180].Course, milieu.Course);
    EXPECT_EQ(etude.lois.LoiUnite[180].Accel, milieu.Accel);
}

TEST_F(Reprise, TheRecoveryFileFollowsTheEntryAndGoesWithIt) {
    const std::filesystem::path fichier = FichierReprise(CheminUtilisateur);
    TapeEtude();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Contient(fichier, "80.125"); }));
    CliqueSur(Ecran("DatoCama"), "Retour");
    EXPECT_FALSE(std::filesystem::exists(fichier));
    Reprend();
    EXPECT_TRUE(std::filesystem::exists(fichier));
    mdi_->close();
    EXPECT_FALSE(std::filesystem::exists(fichier));
    // A damaged file offers nothing, and the program starts.
    EcritFichierEntier(fichier, "DatoCama\r\n\r\n99999\r\nAngulaire");
    Demarre();
    EXPECT_FALSE(Offert());
    // One with a window that there is no more says so when it is taken back.
    EcritFichierEntier(fichier, "Absente\r\n\r\n3\r\nabc");
    Demarre();
    Reprend();
    EXPECT_EQ(Etat(), Texte(128) + " " + Texte(725) + " (Absente)");
    // A folder that cannot be made is told.
    std::filesystem::remove_all(fichier.parent_path());
    EcritFichierEntier(fichier.parent_path(), "a file where the folder should be");
    TapeEtude();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Etat().starts_with(Texte(934)); }, 5000));
}

TEST_F(RepriseTuee, DISABLED_TypesAndIsKilled) {
    TapeEtude();
    ASSERT_TRUE(QTest::qWaitFor([] { return Contient(FichierReprise(CheminUtilisateur), "12.5"); }, 10000));
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

    Demarre();
    EXPECT_TRUE(Offert());
    EXPECT_EQ(Etat(), Texte(933));
    EXPECT_FALSE(Ouvert("DatoCama")) << "offered, not forced";
    Reprend();
    AttendEtude();
    // Left in order, it leaves nothing behind.
    mdi_->close();
    Demarre();
    EXPECT_FALSE(Offert());
}
