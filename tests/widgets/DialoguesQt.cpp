// The boxes themselves are driven by keys, as a user does.
#include "widgets/DialoguesQt.h"

#include "core/FichierEntier.h"
#include "outils/Ecrans.h"
#include "widgets/Chaines.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <deque>
#include <functional>

namespace {

/// Does one step on each modal window that comes up, in order.
class Doigts : public QObject {
public:
    explicit Doigts(std::deque<std::function<void(QWidget&)>> gestes) : gestes_(std::move(gestes)) {
        connect(&minuterie_, &QTimer::timeout, this, &Doigts::Geste);
        minuterie_.start(20);
    }
    ~Doigts() override { EXPECT_TRUE(gestes_.empty()) << gestes_.size() << " boxes did not come"; }

private:
    void Geste() {
        QWidget* fenetre = QApplication::activeModalWidget();
        if (!fenetre || !fenetre->isVisible() || gestes_.empty()) return;
        const auto geste = gestes_.front();
        gestes_.pop_front();
        geste(*fenetre);
    }

    std::deque<std::function<void(QWidget&)>> gestes_;
    QTimer minuterie_;
};

void Tape(QWidget& fenetre, Qt::Key touche) {
    QTest::keyClick(&fenetre, touche);
}

} // namespace

TEST(DialoguesQt, MessageEtQuestion) {
    DialoguesQt dialogues;
    std::string vu, titre;
    {
        Doigts doigts({[&](QWidget& boite) {
            auto& message = dynamic_cast<QMessageBox&>(boite);
            vu = S(message.text());
            titre = S(message.windowTitle());
            EXPECT_EQ(message.icon(), QMessageBox::Critical);
            Tape(boite, Qt::Key_Return);
        }});
        dialogues.Message(Icone::Critique, "a < b & c");
    }
    EXPECT_EQ(vu, "a < b & c");
    EXPECT_EQ(titre, "Velorin");
    {
        Doigts doigts(
            {[](QWidget& boite) { Tape(boite, Qt::Key_Return); }, [](QWidget& boite) { Tape(boite, Qt::Key_Escape); }});
        EXPECT_TRUE(dialogues.Question("?"));
        EXPECT_FALSE(dialogues.Question("?"));
    }
}

TEST(DialoguesQt, SaisieAnnuleeOuRemplie) {
    DialoguesQt dialogues;
    Doigts doigts({[](QWidget& boite) {
                       EXPECT_EQ(S(boite.findChild<QLineEdit*>()->text()), "50");
                       QTest::keyClicks(boite.findChild<QLineEdit*>(), "33");
                       Tape(boite, Qt::Key_Return);
                   },
                   [](QWidget& boite) { Tape(boite, Qt::Key_Escape); }});
    EXPECT_EQ(dialogues.Saisie("Titre", "Pourcentage", "50"), "33");
    EXPECT_EQ(dialogues.Saisie("Titre", "Pourcentage", "50"), std::nullopt);
}

TEST(DialoguesQt, LExtensionDuFiltre) {
    EXPECT_EQ(AvecExtension("a/came", "*.Ang"), "a/came.Ang");
    EXPECT_EQ(AvecExtension("a.b/came", "*.Ang"), "a.b/came.Ang");
    EXPECT_EQ(AvecExtension("a/came.", "*.Ang"), "a/came.Ang");
    EXPECT_EQ(AvecExtension("a/came 2.5", "*.Ang"), "a/came 2.5.Ang");
    EXPECT_EQ(AvecExtension("a/came", "*.*"), "a/came");
}

TEST(DialoguesQt, SauverDemandeAvantDeRemplacer) {
    const QTemporaryDir dossier;
    const std::filesystem::path chemin = Chemin(dossier.path());
    EcritFichierEntier(chemin / "ancien.Ang", "x");
    const auto nomme = [](const char* nom) {
        return [nom](QWidget& boite) {
            auto* ligne = boite.findChild<QLineEdit*>("fileNameEdit");
            ASSERT_NE(ligne, nullptr);
            ligne->setText(nom);
            dynamic_cast<QDialog&>(boite).accept();
        };
    };
    DialoguesQt dialogues;
    Doigts doigts({nomme("ancien"),
                   [](QWidget& boite) {
                       EXPECT_NE(S(dynamic_cast<QMessageBox&>(boite).text()).find("ancien.Ang"), std::string::npos);
                       Tape(boite, Qt::Key_Escape);
                   },
                   nomme("nouveau")});
    const auto choisi = dialogues.FichierASauver({"Sauver", chemin, "", {{"Came plate (*.ang)", "*.Ang"}}});
    EXPECT_EQ(choisi, chemin / "nouveau.Ang");
}
