// A study file is opened as it is named, dropped or chosen again.
#include "app/MdiCamA.h"
#include "data/Demarrage.h"
#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "outils/Ecrans.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"

#include <QAction>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QUrl>

namespace {

class Ouvertures : public testing::Test {
protected:
    DialoguesScript dialogues_;
    DossierTemporaire dossier_;
    MdiCamA mdi_{Configuration{{}, LangueTravail}};

    Ouvertures() {
        mdi_.show();
        LaisseFaire();
    }
    /// A worked example under another name.
    std::filesystem::path Copie(const char* exemple, const char* nom) const {
        std::filesystem::copy(CheminAppli / NomDossierEtudes / exemple, dossier_ / nom);
        return dossier_ / nom;
    }
    std::string Etat() { return S(Controle<QLabel>(mdi_, "Etat")->text()); }
    std::vector<std::string> Recents() {
        std::vector<std::string> noms;
        for (const QAction* action : Controle<QMenu>(mdi_, "FichierRecents")->actions())
            noms.push_back(S(action->text()));
        return noms;
    }
    /// Drags over the middle of the window and drops there. @return whether the window took what was dragged
    bool Glisse(const QList<QUrl>& adresses, const QString& texte = {}) {
        QMimeData donnees;
        if (!adresses.isEmpty()) donnees.setUrls(adresses);
        if (!texte.isEmpty()) donnees.setText(texte);
        const QPoint milieu = mdi_.rect().center();
        QDragEnterEvent entree(milieu, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        entree.ignore();
        QCoreApplication::sendEvent(&mdi_, &entree);
        if (!entree.isAccepted()) return false;
        QDropEvent depose(milieu, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&mdi_, &depose);
        LaisseFaire();
        return true;
    }
};

} // namespace

TEST_F(Ouvertures, ADroppedFileTakesThePlaceOfWhatIsOpen) {
    mdi_.OuvreFichier(CheminAppli / NomDossierEtudes / "Exemple.Ang");
    const std::filesystem::path balancier = Copie("Balancier.Osc", "bras & galet.osc");
    ASSERT_TRUE(Glisse({QUrl::fromLocalFile(QChemin(balancier))}));
    EXPECT_EQ(etude.donnees.TypeCame, "Oscillation");
    EXPECT_EQ(Etat(), Texte(122) + " bras & galet.osc");
    EXPECT_NE(mdi_.EcranOuvert("Resultat"), nullptr);

    // What is no study says so; what is no single file is not taken at all.
    ASSERT_TRUE(Glisse({QUrl::fromLocalFile(QString::fromStdString(dossier_.Ecrit("notes.doc", "rien")))}));
    EXPECT_EQ(Etat().find(Texte(128) + " notes.doc : "), 0U) << Etat();
    EXPECT_FALSE(Glisse({}, "texte"));
    EXPECT_FALSE(Glisse({QUrl("https://localhost/came.Ang")}));
    const QUrl un = QUrl::fromLocalFile(QChemin(balancier));
    EXPECT_FALSE(Glisse({un, un}));
    EXPECT_TRUE(dialogues_.boites.empty());
}

TEST_F(Ouvertures, ADroppedFileWaitsForTheTurningCam) {
    mdi_.OuvreFichier(CheminAppli / NomDossierEtudes / "Exemple.Ang");
    etude.resultats.RotationEnCours = Vrai;
    ASSERT_TRUE(Glisse({QUrl::fromLocalFile(QChemin(Copie("Balancier.Osc", "b.osc")))}));
    ASSERT_EQ(dialogues_.boites.size(), 1U);
    EXPECT_EQ(dialogues_.boites[0].texte, Texte(435));
    EXPECT_EQ(etude.donnees.TypeCame, "Angulaire");
    etude.resultats.RotationEnCours = Faux;
}

TEST_F(Ouvertures, RecentFilesStandInTheMenuTheLastFirst) {
    EXPECT_FALSE(Controle<QMenu>(mdi_, "FichierRecents")->isEnabled());
    const std::filesystem::path bras = Copie("Exemple.Ang", "a&b.Ang"), cylindre = Copie("Barillet.Cyl", "c.Cyl");
    mdi_.OuvreAutre(bras);
    mdi_.OuvreAutre(cylindre);
    mdi_.OuvreAutre(dossier_ / "absent.Ang");
    EXPECT_EQ(Recents(), (std::vector<std::string>{"&1 c.Cyl", "&2 a&&b.Ang"}));
    Controle<QMenu>(mdi_, "FichierRecents")->actions()[1]->trigger();
    LaisseFaire();
    EXPECT_EQ(etude.donnees.NomFichier, "a&b.Ang");
    EXPECT_EQ(Recents(), (std::vector<std::string>{"&1 a&&b.Ang", "&2 c.Cyl"}));

    // A file that was saved stands there too.
    CliqueSur(*mdi_.EcranOuvert("Resultat"), "Quitter");
    CliqueSur(*mdi_.EcranOuvert("DatoCama"), "Calculer");
    dialogues_.fichiers.push_back(dossier_ / "neuf.Ang");
    QTimer::singleShot(0, &mdi_, [this] { CliqueSur(*Controle<QWidget>(mdi_, "SeleSauv"), "Sauvegarde"); });
    QTest::keySequence(&mdi_, QKeySequence("Ctrl+S"));
    LaisseFaire();
    EXPECT_EQ(Recents().front(), "&1 neuf.Ang");
    mdi_.ChangeLangue("English");
    EXPECT_EQ(Recents().size(), 3U);
    for (int i = 0; i < 12; ++i) mdi_.OuvreAutre(Copie("Exemple.Ang", ("n" + std::to_string(i) + ".Ang").c_str()));
    EXPECT_EQ(Recents().size(), 9U);
    EXPECT_EQ(Recents().back(), "&9 n3.Ang");
}
