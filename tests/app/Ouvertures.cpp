// A study file is opened as it is named, dropped or chosen again.
#include "outils/FenetrePrincipale.h"

#include <QDialog>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

namespace {

class Ouvertures : public FenetrePrincipale {
protected:
    /// A worked example under another name.
    std::filesystem::path Copie(const char* exemple, const std::string& nom) const {
        return dossier_.Ecrit(nom, LitBrut(Exemple(exemple)));
    }
    std::vector<std::string> Recents() {
        std::vector<std::string> noms;
        for (const QAction* action : Controle<QMenu>(*mdi_, "FichierRecents")->actions())
            noms.push_back(S(action->text()));
        return noms;
    }
    /// Drags over the middle of the window and drops there. @return whether the window took what was dragged
    bool Glisse(const QList<QUrl>& adresses) {
        QMimeData donnees;
        adresses.isEmpty() ? donnees.setText("texte") : donnees.setUrls(adresses);
        const QPoint milieu = mdi_->rect().center();
        QDragEnterEvent entree(milieu, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        entree.ignore();
        QCoreApplication::sendEvent(mdi_.get(), &entree);
        if (!entree.isAccepted()) return false;
        QDropEvent depose(milieu, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(mdi_.get(), &depose);
        LaisseFaire();
        return true;
    }
};

} // namespace

TEST_F(Ouvertures, ADroppedFileTakesThePlaceOfWhatIsOpen) {
    Ouvre("Exemple.Ang");
    const QUrl balancier = QUrl::fromLocalFile(QChemin(Copie("Balancier.Osc", "bras & galet.osc")));
    etude.resultats.RotationEnCours = Vrai;
    ASSERT_TRUE(Glisse({balancier}));
    EXPECT_EQ(dialogues_.Derniere(), Texte(435)) << "it waits for the turning cam";
    EXPECT_EQ(etude.donnees.TypeCame, "Angulaire");
    etude.resultats.RotationEnCours = Faux;
    ASSERT_TRUE(Glisse({balancier}));
    EXPECT_EQ(etude.donnees.TypeCame, "Oscillation");
    EXPECT_EQ(Etat(), Texte(122) + " bras & galet.osc");
    EXPECT_TRUE(Ouvert("Resultat"));

    // What is no study says so; what is no single file is not taken at all.
    ASSERT_TRUE(Glisse({QUrl::fromLocalFile(Q(dossier_.Ecrit("notes.doc", "rien")))}));
    EXPECT_TRUE(Etat().starts_with(Texte(128) + " notes.doc : ")) << Etat();
    EXPECT_FALSE(Glisse({}));
    EXPECT_FALSE(Glisse({balancier, balancier}));
}

TEST_F(Ouvertures, ADroppedFileLeavesAnOpenBoxAlone) {
    Ouvre("Exemple.Ang");
    QDialog boite(mdi_.get());
    boite.open();
    ASSERT_TRUE(Glisse({QUrl::fromLocalFile(QChemin(Copie("Balancier.Osc", "b.Osc")))}));
    QTest::qWait(250);
    EXPECT_EQ(etude.donnees.TypeCame, "Angulaire") << "what the box is about stays";
    EXPECT_EQ(Etat(), Texte(990) + " b.Osc");
    boite.close();
    EXPECT_TRUE(QTest::qWaitFor([] { return etude.donnees.TypeCame == "Oscillation"; }, 1000));
}

TEST_F(Ouvertures, RecentFilesStandInTheMenuTheLastFirst) {
    mdi_->OuvreAutre(Copie("Exemple.Ang", "a&b.Ang"));
    mdi_->OuvreAutre(Copie("Barillet.Cyl", "c.Cyl"));
    mdi_->OuvreAutre(dossier_ / "absent.Ang");
    EXPECT_EQ(Recents(), (std::vector<std::string>{"&1 c.Cyl", "&2 a&&b.Ang"}));
    Controle<QMenu>(*mdi_, "FichierRecents")->actions()[1]->trigger();
    LaisseFaire();
    EXPECT_EQ(Recents(), (std::vector<std::string>{"&1 a&&b.Ang", "&2 c.Cyl"}));

    for (int i = 0; i < 12; ++i) mdi_->OuvreAutre(Copie("Exemple.Ang", "n" + std::to_string(i) + ".Ang"));
    EXPECT_EQ(Recents().size(), 9U);
    EXPECT_EQ(Recents().back(), "&9 n3.Ang");
}
