// The boxes themselves are driven by keys, as a user does.
#include "widgets/DialoguesQt.h"

#include "outils/DossierTemporaire.h"
#include "outils/Ecrans.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

#include <deque>
#include <functional>

namespace {

/// Does one step on each modal window, in order, once it has the keyboard. One that nobody expected is a failure, and
/// closed.
class Doigts : public QObject {
public:
    using Geste = std::function<void(QWidget&)>;

    explicit Doigts(std::deque<Geste> gestes) : gestes_(std::move(gestes)) {
        connect(&minuterie_, &QTimer::timeout, this, &Doigts::Fait);
        minuterie_.start(20);
    }
    ~Doigts() override { EXPECT_TRUE(gestes_.empty()) << gestes_.size() << " boxes did not come"; }

private:
    void Fait() {
        auto* fenetre = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (fenetre == nullptr || !fenetre->isActiveWindow()) return;
        if (gestes_.empty()) {
            ADD_FAILURE() << "one window too many: " << S(fenetre->windowTitle());
            return fenetre->reject();
        }
        const Geste geste = gestes_.front();
        gestes_.pop_front();
        geste(*fenetre);
    }

    std::deque<Geste> gestes_;
    QTimer minuterie_;
};

void Accepte(QWidget& boite) {
    QTest::keyClick(&boite, Qt::Key_Return);
}
void Echappe(QWidget& boite) {
    QTest::keyClick(&boite, Qt::Key_Escape);
}
/// Types into the line of a box over what it holds.
Doigts::Geste Ecrit(const char* texte, const char* attendu) {
    return [texte, attendu](QWidget& boite) {
        auto* ligne = boite.findChild<QLineEdit*>();
        EXPECT_EQ(S(ligne->text()), attendu);
        // The list of files comes from another thread, and writes what it selects into a line without the focus.
        ligne->setFocus();
        ligne->selectAll();
        QTest::keyClicks(ligne, texte);
        QTest::keyClick(ligne, Qt::Key_Return);
    };
}

} // namespace

TEST(DialoguesQt, MessageEtQuestion) {
    DialoguesQt dialogues;
    const Doigts doigts({[](QWidget& boite) {
                             auto& message = dynamic_cast<QMessageBox&>(boite);
                             EXPECT_EQ(S(message.text()), "a < b & c");
                             EXPECT_EQ(S(message.windowTitle()), "Velorin");
                             EXPECT_EQ(message.icon(), QMessageBox::Critical);
                             Accepte(boite);
                         },
                         Accepte, Echappe});
    dialogues.Message(Icone::Critique, "a < b & c");
    EXPECT_TRUE(dialogues.Question("?"));
    EXPECT_FALSE(dialogues.Question("?"));
}

TEST(DialoguesQt, SaisieAnnuleeOuRemplie) {
    DialoguesQt dialogues;
    const Doigts doigts({Ecrit("33", "50"), Echappe});
    EXPECT_EQ(dialogues.Saisie("Titre", "Pourcentage", "50"), "33");
    EXPECT_EQ(dialogues.Saisie("Titre", "Pourcentage", "50"), std::nullopt);
}

TEST(DialoguesQt, LExtensionDuFiltre) {
    for (const auto& [nom, complet] : {std::pair{"a/came", "a/came.Ang"},
                                       {"a.b/came", "a.b/came.Ang"},
                                       {"a/came.", "a/came.Ang"},
                                       {"a/came 2.5", "a/came 2.5.Ang"}})
        EXPECT_EQ(AvecExtension(nom, "*.Ang"), complet);
    EXPECT_EQ(AvecExtension("a/came", "*.*"), "a/came");
}

TEST(DialoguesQt, SauverDemandeAvantDeRemplacer) {
    const DossierTemporaire dossier;
    dossier.Ecrit("ancien.Ang", "x");
    DialoguesQt dialogues;
    const Doigts doigts({Ecrit("ancien", ""),
                         [](QWidget& boite) {
                             EXPECT_NE(S(dynamic_cast<QMessageBox&>(boite).text()).find("ancien.Ang"),
                                       std::string::npos);
                             Echappe(boite);
                         },
                         Ecrit("nouveau", "ancien.Ang")});
    const auto choisi = dialogues.FichierASauver({"Sauver", dossier.Chemin(), "", {{"Came plate (*.ang)", "*.Ang"}}});
    EXPECT_EQ(choisi, dossier / "nouveau.Ang");
}
