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

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
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
    QStringList Liste() {
        QStringList noms;
        for (int i = 0; i < De<QListWidget>("List2").count(); ++i) noms << De<QListWidget>("List2").item(i)->text();
        return noms;
    }
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
    void TapeTraduction(const char* texte) {
        FrappeDans(*ecran, "Text4", "");
        QTest::keySequence(&De<QPlainTextEdit>("Text4"), QKeySequence::SelectAll);
        Frappe(*ecran, texte);
    }
    bool Actif(const char* nom) { return De<QWidget>(nom).isEnabled(); }
};

/// Boxes under which the events go on, as on a desktop.
class DialoguesOuverts : public DialoguesScript {
public:
    bool Question(const std::string& texte) override {
        const bool reponse = DialoguesScript::Question(texte);
        LaisseFaire();
        return reponse;
    }
};

} // namespace

TEST_F(EcranPersona, ItOpensOnNoLanguageAndTheDeliveredOnesAreReadOnly) {
    EXPECT_EQ(Liste(), (QStringList{"Français", "Español", "English"}));
    EXPECT_EQ(Position(), "1/" + Maximum());
    EXPECT_EQ(Barre().minimum(), 1);
    EXPECT_EQ(Nom() + Traduction(), "");
    EXPECT_TRUE(Paires().isEmpty());
    for (const char* nom : {"Text4", "Sauver", "SupprimeLangue", "Importer", "Exporter"})
        EXPECT_FALSE(Actif(nom)) << nom;
    Barre().setFocus();
    Touche(*ecran, Qt::Key_Right);
    EXPECT_EQ(Position(), "2/" + Maximum());
    EXPECT_EQ(Paires().size(), 3) << "without a language of its own all are others";
    for (const char* langue : {"Français", "Español", "English"}) {
        Choisit(langue);
        EXPECT_EQ(Nom(), langue);
        EXPECT_EQ(Position(), "1/" + Maximum()) << "back to the first text";
        EXPECT_EQ(Traduction(), SurDisque(langue, 1));
        EXPECT_EQ(Paires().size(), 2);
        EXPECT_FALSE(Paires().join(' ').contains(QString(langue) + ":"));
        for (const char* nom : {"Text4", "Sauver", "SupprimeLangue", "Importer"}) EXPECT_FALSE(Actif(nom)) << nom;
        EXPECT_TRUE(Actif("Exporter"));
    }
}

TEST_F(EcranPersona, ANewNameOffersToMakeTheLanguage) {
    dialogues.reponses = {false};
    FrappeDans(*ecran, "Text3", "Italiano");
    Retour(*ecran);
    EXPECT_EQ(dialogues.demandes.back(), Texte(68) + "\nItaliano");
    EXPECT_EQ(Nom(), "");
    EXPECT_TRUE(AFocus("Text3"));
    EXPECT_EQ(Liste().size(), 3);

    dialogues.reponses = {true};
    Frappe(*ecran, " Italiano ");
    Touche(*ecran, Qt::Key_Tab);
    EXPECT_EQ(Liste().back(), "Italiano");
    EXPECT_EQ(Nom(), "") << "it opened anew";
    EXPECT_TRUE(ExisteLangue(Disque(), "Italiano"));
    EXPECT_TRUE(AFocus("List2"));
    Touche(*ecran, Qt::Key_Space);
    EXPECT_EQ(Nom(), "Italiano") << "one key takes it";
    EXPECT_TRUE(Actif("Text4") && Actif("Sauver") && Actif("SupprimeLangue"));

    // A name of the list is chosen by typing it, too.
    FrappeDans(*ecran, "Text3", "");
    Touche(*ecran, Qt::Key_A);
    QTest::keySequence(&De<QLineEdit>("Text3"), QKeySequence::SelectAll);
    Frappe(*ecran, "English");
    Touche(*ecran, Qt::Key_Tab);
    EXPECT_FALSE(Actif("Text4"));
    EXPECT_EQ(dialogues.demandes.size(), 2U);
}

TEST_F(EcranPersona, ABadNameIsToldAndNothingIsLost) {
    for (const char* faux : {"numero", "it\"aliano", "Italiano[1]", "ENGLISH", "1",
                             "una lingua dal nome davvero troppo lungo per un menu"}) {
        FrappeDans(*ecran, "Text3", faux);
        Retour(*ecran);
        EXPECT_EQ(DerniereBoite(), *FauteNomLangue(Disque(), faux)) << faux;
        EXPECT_EQ(Nom(), faux) << "still there";
        EXPECT_TRUE(AFocus("Text3"));
    }
    EXPECT_EQ(Disque().NombreChamps(), 5);
    // The way back asks nothing about it.
    FrappeDans(*ecran, "Text3", "Nuova");
    Clique("Retour");
    EXPECT_TRUE(dialogues.demandes.empty());
}

TEST_F(EcranPersona, AClickThatLeavesTheNameAsksOnce) {
    Cree("Italiano");
    Choisit("Italiano");
    TapeTraduction("uno");
    DialoguesOuverts ouverts;
    ouverts.reponses = {false, false};
    FrappeDans(*ecran, "Text3", "");
    QTest::keySequence(&De<QLineEdit>("Text3"), QKeySequence::SelectAll);
    Frappe(*ecran, "Nuova");
    Clique("Sauver");
    EXPECT_EQ(ouverts.demandes,
              (std::vector<std::string>{Texte(68) + "\nNuova", Texte(TexteGarderTraduction) + "\nuno"}));
    EXPECT_EQ(Nom(), "");
    EXPECT_EQ(SurDisque("Italiano", 1), "");
}

TEST_F(EcranPersona, ATextIsStoredInItsRow) {
    Cree("Italiano");
    Choisit("Italiano");
    EXPECT_EQ(Traduction(), "");
    TapeTraduction("");
    Clique("Sauver");
    EXPECT_TRUE(AFocus("Text4")) << "an empty one is not stored";
    EXPECT_EQ(NombreATraduire(*std::make_unique<JeuEnregistrements>(Disque()), "Italiano"), std::stol(Maximum()));
    const QString aTraduire = De<QLabel>("ATraduire").text();
    Frappe(*ecran, "S");
    Frappe(*ecran, "i");
    Retour(*ecran);
    EXPECT_EQ(SurDisque("Italiano", 1), "Si");
    EXPECT_NE(De<QLabel>("ATraduire").text(), aTraduire);
    EXPECT_EQ(Position(), "1/" + Maximum()) << "it stays";

    // Row by row no more characters than are allowed, whatever brings them in.
    Clique("Prochain");
    EXPECT_EQ(Position(), "2/" + Maximum());
    for (const long numero : {2L, 38L}) {
        Barre().setValue(static_cast<int>(numero));
        JeuEnregistrements textes = Disque();
        const auto permise = static_cast<std::size_t>(LongueurPermise(textes, numero));
        TapeTraduction(std::string(permise + 3, 'x').c_str());
        EXPECT_EQ(Traduction(), std::string(permise, 'x')) << numero;
        De<QPlainTextEdit>("Text4").setPlainText("");
        De<QPlainTextEdit>("Text4").insertPlainText(QString(static_cast<qsizetype>(permise) + 9, QChar(0xE9)));
        EXPECT_EQ(Traduction().size(), 2 * permise) << numero;
        Clique("Sauver");
        EXPECT_EQ(SurDisque("Italiano", numero).size(), 2 * permise);
    }
    EXPECT_TRUE(De<QLabel>("Remarques").isVisible()) << "text 38 has an accelerator";
    TapeTraduction("&Schede");
    EXPECT_FALSE(De<QLabel>("Remarques").isVisible());
    for (const char* livree : {"Français", "Español", "English"}) EXPECT_NE(SurDisque(livree, 38), "&Schede");
}

TEST_F(EcranPersona, AWordingThatIsNotStoredIsAskedFor) {
    Cree("Italiano");
    Choisit("Italiano");
    TapeTraduction("uno");
    dialogues.reponses = {true};
    Barre().setFocus();
    Touche(*ecran, Qt::Key_Right);
    EXPECT_EQ(SurDisque("Italiano", 1), "uno");
    EXPECT_EQ(Traduction(), "");
    TapeTraduction("due");
    dialogues.reponses = {false};
    Choisit("English");
    EXPECT_EQ(SurDisque("Italiano", 2), "");
    EXPECT_EQ(Nom(), "English");
    Choisit("Italiano");
    EXPECT_EQ(Traduction(), "uno");
    // What is given up with the window can be taken back.
    Barre().setValue(2);
    TapeTraduction("du\te");
    const std::string travail = ecran->Travail();
    Ouvre();
    EXPECT_EQ(ecran->Travail(), "");
    ecran->Reprend(travail);
    EXPECT_EQ(Position(), "2/" + Maximum());
    EXPECT_EQ(ecran->Travail(), travail);
    Clique("Sauver");
    EXPECT_NE(SurDisque("Italiano", 2), "");
    EXPECT_THROW(ecran->Reprend("English\t2\tx"), ErreurExecution);
}

TEST_F(EcranPersona, ALanguageIsDeletedAfterAQuestion) {
    Cree("Italiano");
    Cree("Deutsch");
    Choisit("Italiano");
    dialogues.reponses = {false};
    Clique("SupprimeLangue");
    EXPECT_EQ(dialogues.demandes.back(), Texte(66) + "\nItaliano");
    EXPECT_TRUE(ExisteLangue(Disque(), "Italiano"));
    dialogues.reponses = {true};
    Clique("SupprimeLangue");
    EXPECT_FALSE(ExisteLangue(Disque(), "Italiano"));
    EXPECT_EQ(Liste(), (QStringList{"Français", "Español", "English", "Deutsch"}));
    EXPECT_EQ(Nom() + Traduction(), "");
    EXPECT_FALSE(Actif("SupprimeLangue"));
    Choisit("Deutsch");
    EXPECT_EQ(Paires().size(), 3);
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

TEST_F(EcranPersona, TheSearchGoesFromTextToText) {
    Choisit("English");
    FrappeDans(*ecran, "Cherche", "435");
    Retour(*ecran);
    EXPECT_EQ(Position(), "435/" + Maximum());
    QTest::keySequence(&De<QLineEdit>("Cherche"), QKeySequence::SelectAll);
    Frappe(*ecran, "travailler sur UNE langue");
    Retour(*ecran);
    EXPECT_EQ(Position(), "687/" + Maximum());
    EXPECT_EQ(Traduction(), SurDisque("English", 687));
    QTest::keySequence(&De<QLineEdit>("Cherche"), QKeySequence::SelectAll);
    Frappe(*ecran, "langue");
    Retour(*ecran, 2);
    const std::string deuxieme = Position();
    Clique("Suivant");
    EXPECT_NE(Position(), deuxieme);
    Clique("Precedent");
    EXPECT_EQ(Position(), deuxieme);
    Frappe(*ecran, "zzz");
    Retour(*ecran);
    EXPECT_EQ(Position(), deuxieme);
    EXPECT_FALSE(Actif("Suivant"));
}

TEST_F(EcranPersona, FilesGoOutAndComeBackWholeOrNotAtAll) {
    Cree("Italiano");
    Choisit("Español");
    const auto fichier = base.Dossier() / "langue.tsv";
    dialogues.fichiers = {fichier};
    Clique("Exporter");
    const std::string contenu = LitFichierEntier(fichier);
    Choisit("Italiano");
    const std::string fautif = contenu + "7\tdue volte\r\n";
    EcritFichierEntier(fichier, fautif);
    dialogues.fichiers = {fichier};
    Clique("Importer");
    const auto derniere = std::count(fautif.begin(), fautif.end(), '\n');
    EXPECT_NE(DerniereBoite().find(Texte(TexteLigne) + " " + std::to_string(derniere) + " : "), std::string::npos);
    EXPECT_NE(DerniereBoite().find(Texte(TexteNumeroDouble) + " 8"), std::string::npos) << DerniereBoite();
    EXPECT_EQ(SurDisque("Italiano", 1), "");

    EcritFichierEntier(fichier, contenu);
    dialogues.fichiers = {fichier};
    Clique("Importer");
    EXPECT_EQ(dialogues.boites.size(), 1U);
    EXPECT_EQ(Traduction(), SurDisque("Español", 1));
    EXPECT_EQ(LanguesCompletes(LaBase).back(), "Italiano");
    EXPECT_FALSE(Actif("Prochain"));

    // Replacing what is translated is asked for.
    EcritFichierEntier(fichier, "Numero\tItaliano\n1\tuno\n2\t" + SurDisque("Español", 2) + "\n");
    dialogues.fichiers = {fichier, fichier};
    dialogues.reponses = {false, true};
    Clique("Importer");
    EXPECT_EQ(dialogues.demandes.back(), Texte(TexteRemplacerTextes) + " 1");
    EXPECT_EQ(SurDisque("Italiano", 1), SurDisque("Español", 1));
    Clique("Importer");
    EXPECT_EQ(SurDisque("Italiano", 1), "uno");
}
