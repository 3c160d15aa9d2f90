// The language editor, typed into.
#include "languages/screens/Persona.h"

#include "core/FichierEntier.h"
#include "data/Textes.h"
#include "languages/Langues.h"
#include "languages/TextesLangues.h"
#include "outils/BaseAEcrire.h"
#include "outils/Clavier.h"
#include "outils/EcranDeSaisie.h"
#include "widgets/Chaines.h"

#include <QClipboard>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>

namespace {

struct CatalogueAEcrire {
    BaseAEcrire base;
};

class EcranPersona : public CatalogueAEcrire, public EcranDeSaisie<Persona> {
protected:
    JeuEnregistrements Disque() { return LaBase.OuvreTable(TableTextes); }
    std::string SurDisque(const std::string& langue, long numero) {
        JeuEnregistrements textes = Disque();
        return TexteDeLangue(textes, langue, numero);
    }
    template <class T> T& De(const char* nom) { return *Controle<T>(*ecran, nom); }
    QScrollBar& Barre() { return De<QScrollBar>("HScroll1"); }
    std::string Position() { return S(De<QLabel>("Label7").text()); }
    std::string Traduction() { return S(De<QPlainTextEdit>("Text4").toPlainText()); }
    std::string Nom() { return S(De<QLineEdit>("Text3").text()); }
    std::string Maximum() { return std::to_string(Disque().NombreEnregistrements()); }
    /// The pairs that show a language, as "name: wording".
    QStringList Paires() {
        const auto noms = ecran->findChildren<QLabel*>("Label5"), textes = ecran->findChildren<QLabel*>("Label6");
        EXPECT_GE(noms.size(), 10);
        EXPECT_EQ(noms.size(), textes.size());
        QStringList paires;
        for (qsizetype i = 0; i < noms.size(); ++i)
            if (!noms[i]->text().isEmpty()) paires << noms[i]->text() + ": " + textes[i]->text();
        return paires;
    }
    void Choisit(const char* langue) {
        auto& liste = De<QListWidget>("List2");
        const auto* ligne = liste.findItems(langue, Qt::MatchExactly).value(0);
        ASSERT_NE(ligne, nullptr) << langue;
        QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, liste.visualItemRect(ligne).center());
        LaisseFaire();
    }
    void Cree(const char* langue) {
        dialogues.reponses.push_back(true);
        FrappeDans(*ecran, "Text3", langue);
        Retour(*ecran);
    }
    void Efface(const char* champ) {
        QTest::keySequence(&De<QWidget>(champ), QKeySequence::SelectAll);
        QTest::keyClick(&De<QWidget>(champ), Qt::Key_Delete);
    }
    void TapeTraduction(const char* texte) {
        FrappeDans(*ecran, "Text4", "");
        Efface("Text4");
        Frappe(*ecran, texte);
    }
    bool Actif(const char* nom) { return De<QWidget>(nom).isEnabled(); }
};

} // namespace

TEST_F(EcranPersona, ItOpensOnNoLanguageAndTheDeliveredOnesAreReadOnly) {
    EXPECT_EQ(De<QListWidget>("List2").count(), 3);
    EXPECT_EQ(Position(), "1/" + Maximum());
    EXPECT_EQ(Nom() + Traduction(), "");
    for (const char* langue : {"Français", "Español", "English"}) {
        Choisit(langue);
        EXPECT_EQ(Nom(), langue);
        EXPECT_EQ(Traduction(), SurDisque(langue, 1));
        for (const char* nom : {"Text4", "Sauver", "SupprimeLangue", "Importer"}) EXPECT_FALSE(Actif(nom)) << nom;
    }
}

TEST_F(EcranPersona, ATextIsStoredInItsRow) {
    Cree("Italiano");
    Choisit("Italiano");
    Clique("Sauver");
    EXPECT_TRUE(AFocus("Text4")) << "an empty one is not stored";
    Frappe(*ecran, "Si");
    Retour(*ecran);
    EXPECT_EQ(SurDisque("Italiano", 1), "Si");
    Clique("Prochain");
    EXPECT_EQ(Position(), "2/" + Maximum());
    // Row by row no more characters than are allowed, whatever brings them in.
    for (const long numero : {2L, 38L}) {
        Barre().setValue(static_cast<int>(numero));
        JeuEnregistrements textes = Disque();
        const auto permise = LongueurPermise(textes, numero);
        TapeTraduction(std::string(static_cast<std::size_t>(permise) + 3, 'x').c_str());
        EXPECT_EQ(Traduction(), std::string(static_cast<std::size_t>(permise), 'x')) << numero;
        Efface("Text4");
        QApplication::clipboard()->setText(QString(permise + 9, QChar(0xE9)));
        QTest::keySequence(&De<QPlainTextEdit>("Text4"), QKeySequence::Paste);
        Clique("Sauver");
        EXPECT_EQ(Q(SurDisque("Italiano", numero)), QString(permise, QChar(0xE9))) << numero;
    }
    EXPECT_TRUE(De<QLabel>("Remarques").isVisible()) << "text 38 has an accelerator";
    TapeTraduction("&Schede");
    EXPECT_FALSE(De<QLabel>("Remarques").isVisible());
}

TEST_F(EcranPersona, AWordingThatIsNotStoredIsAskedFor) {
    Cree("Italiano");
    Choisit("Italiano");
    TapeTraduction("uno");
    dialogues.reponses = {true, false};
    Barre().setFocus();
    Touche(*ecran, Qt::Key_Right);
    EXPECT_EQ(SurDisque("Italiano", 1), "uno");
    EXPECT_EQ(Traduction(), "");
    TapeTraduction("due");
    const std::string travail = ecran->Travail();
    Choisit("English");
    EXPECT_EQ(SurDisque("Italiano", 2), "");
    EXPECT_TRUE(dialogues.reponses.empty());
    // What was given up with its window is taken back.
    Ouvre();
    ecran->Reprend(travail);
    Clique("Sauver");
    EXPECT_EQ(SurDisque("Italiano", 2), "due");
    EXPECT_THROW(ecran->Reprend("Italiano\t1e300\ttre"), ErreurExecution) << "damaged";
}

TEST_F(EcranPersona, TheSearchGoesFromTextToText) {
    FrappeDans(*ecran, "Cherche", "435");
    Retour(*ecran);
    EXPECT_EQ(Position(), "435/" + Maximum());
    Efface("Cherche");
    Frappe(*ecran, "langue");
    Retour(*ecran, 2);
    const std::string deuxieme = Position();
    Clique("Suivant");
    EXPECT_NE(Position(), deuxieme);
    Clique("Precedent");
    EXPECT_EQ(Position(), deuxieme);
}

TEST_F(EcranPersona, FilesGoOutAndComeBackWholeOrNotAtAll) {
    Cree("Italiano");
    Choisit("Español");
    const auto fichier = base.Dossier() / "langue.tsv";
    dialogues.fichiers = {fichier, fichier, fichier, fichier};
    Clique("Exporter");
    const std::string contenu = LitFichierEntier(fichier);
    Choisit("Italiano");
    EcritFichierEntier(fichier, contenu + "7\tdue volte\r\n");
    Clique("Importer");
    EXPECT_EQ(DerniereBoite(), Texte(TexteImportRefuse) + "\n\n" + Texte(TexteLigne) + " " +
                                   std::to_string(std::stol(Maximum()) + 2) + " : " + Texte(TexteNumeroDouble) + " 8");
    EXPECT_EQ(SurDisque("Italiano", 1), "");
    EcritFichierEntier(fichier, contenu);
    Clique("Importer");
    EXPECT_EQ(Traduction(), SurDisque("Español", 1));
    // Replacing what is translated is asked for.
    EcritFichierEntier(fichier, "Numero\tItaliano\n1\tuno\n2\t" + SurDisque("Español", 2) + "\n");
    dialogues.reponses = {false};
    Clique("Importer");
    EXPECT_EQ(dialogues.demandes.back(), Texte(TexteRemplacerTextes) + " 1");
    EXPECT_EQ(SurDisque("Italiano", 1), SurDisque("Español", 1));
}

TEST_F(EcranPersona, MoreThanTenOthersScroll) {
    for (int i = 0; i < 11; ++i) LaBase.AjouteChamp(TableTextes, {"Lingua" + std::to_string(i), false, 60});
    Ouvre();
    Choisit("Lingua10");
    const QStringList paires = Paires();
    ASSERT_EQ(paires.size(), 13);
    EXPECT_EQ(paires[1], "Español: " + Q(SurDisque("Español", 1)));
    EXPECT_EQ(paires[12], "Lingua9: ") << "a missing wording is empty";
    EXPECT_EQ(LegendesCoupees(*ecran), std::vector<std::string>{});
}
