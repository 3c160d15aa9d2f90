// The box of a file to save is driven by keys, as a user does.
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

using Geste = std::function<void(QDialog&)>;

/// Types into the line of a box over what it holds.
Geste Ecrit(const char* texte, const char* attendu) {
    return [texte, attendu](QDialog& boite) {
        auto* ligne = boite.findChild<QLineEdit*>();
        EXPECT_EQ(S(ligne->text()), attendu);
        // The list of files comes from another thread, and writes what it selects into a line without the focus.
        ligne->setFocus();
        ligne->selectAll();
        QTest::keyClicks(ligne, texte);
        QTest::keyClick(ligne, Qt::Key_Return);
    };
}

void RefuseDeRemplacer(QDialog& boite) {
    EXPECT_TRUE(dynamic_cast<QMessageBox&>(boite).text().contains("ancien.Ang"));
    QTest::keyClick(&boite, Qt::Key_Escape);
}

} // namespace

TEST(DialoguesQt, LExtensionDuFiltre) {
    for (const auto& [nom, complet] :
         {std::pair{"a.b/came", "a.b/came.Ang"}, {"came.", "came.Ang"}, {"2.5", "2.5.Ang"}})
        EXPECT_EQ(AvecExtension(nom, "*.Ang"), complet);
    EXPECT_EQ(AvecExtension("a/came", "*.*"), "a/came");
}

TEST(DialoguesQt, SauverDemandeAvantDeRemplacer) {
    const DossierTemporaire dossier;
    dossier.Ecrit("ancien.Ang", "x");
    std::deque<Geste> gestes{Ecrit("ancien", ""), RefuseDeRemplacer, Ecrit("nouveau", "ancien.Ang")};
    QTimer minuterie;
    QObject::connect(&minuterie, &QTimer::timeout, [&gestes] {
        auto* boite = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (boite == nullptr || !boite->isActiveWindow() || gestes.empty()) return;
        const Geste geste = gestes.front();
        gestes.pop_front();
        geste(*boite);
    });
    minuterie.start(20);
    DialoguesQt dialogues;
    const auto choisi = dialogues.FichierASauver({"Sauver", dossier.Chemin(), "", {{"Came plate (*.ang)", "*.Ang"}}});
    EXPECT_EQ(choisi, dossier / "nouveau.Ang");
}
