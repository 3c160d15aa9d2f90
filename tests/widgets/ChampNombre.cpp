#include "widgets/ChampNombre.h"

#include "outils/Ecrans.h"
#include "widgets/Chaines.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

/// A dialogue with a field and a default button, as a data screen has them.
struct Fenetre {
    QDialog dialogue;
    ChampNombre* champ = new ChampNombre;
    ChampNombre* autre = new ChampNombre;
    QPushButton* bouton = new QPushButton(QStringLiteral("Calculer"));

    Fenetre() {
        auto* colonne = new QVBoxLayout(&dialogue);
        colonne->addWidget(champ);
        colonne->addWidget(autre);
        colonne->addWidget(bouton);
        bouton->setDefault(true);
        dialogue.show();
        dialogue.activateWindow();
        autre->setFocus();
        LaisseFaire();
    }

    void Prend(ChampNombre* c) {
        c->setFocus(Qt::TabFocusReason);
        LaisseFaire();
    }
};

} // namespace

TEST(ChampNombre, UneVirguleTapeeDonneUnPoint) {
    Fenetre f;
    f.Prend(f.champ);
    QTest::keyClicks(f.champ, "-12,75");
    EXPECT_EQ(S(f.champ->text()), "-12.75");
    EXPECT_EQ(f.champ->Valeur(), -12.75);
}

TEST(ChampNombre, SeulUnNombreEntre) {
    Fenetre f;
    f.Prend(f.champ);
    // Letters and a second point are not taken, and nothing typed before is lost.
    QTest::keyClicks(f.champ, "1a.5.,2x3e-1e");
    EXPECT_EQ(S(f.champ->text()), "1.523e-1");

    const std::pair<const char*, const char*> colles[] = {
        {"1 234,5 mm", "1234.5"}, {"\t 7,25\r\n", "7.25"}, {"abc", ""}, {"1.234,5", ""}};
    for (const auto& [texte, attendu] : colles) {
        f.champ->clear();
        QGuiApplication::clipboard()->setText(QString::fromUtf8(texte));
        QTest::keySequence(f.champ, QKeySequence::Paste);
        EXPECT_EQ(S(f.champ->text()), attendu) << texte;
    }
}

TEST(ChampNombre, RetourPasseAuSuivantSansLeBoutonParDefaut) {
    Fenetre f;
    QSignalSpy clics(f.bouton, &QPushButton::clicked);
    QSignalSpy suivants(f.champ, &ChampNombre::Suivant);
    f.Prend(f.champ);
    QTest::keyClick(f.champ, Qt::Key_Return);
    QTest::keyClick(f.champ, Qt::Key_Enter);
    EXPECT_EQ(suivants.count(), 2);
    EXPECT_EQ(clics.count(), 0);
}

TEST(ChampNombre, LeFocusColoreEtSelectionne) {
    Fenetre f;
    const QColor repos = f.champ->palette().color(QPalette::Base);
    EXPECT_EQ(repos, QApplication::palette().color(QPalette::Base));
    f.champ->Montre(3.5);
    f.Prend(f.champ);
    EXPECT_EQ(f.champ->palette().color(QPalette::Base), QColor(0x00, 0xFF, 0xFF));
    EXPECT_EQ(f.champ->palette().color(QPalette::Text), QColor(Qt::black));
    EXPECT_EQ(S(f.champ->selectedText()), "3.5");
    QTest::keyClicks(f.champ, "8"); // replaces what was selected
    f.Prend(f.autre);
    EXPECT_EQ(S(f.champ->text()), "8");
    EXPECT_EQ(f.champ->palette().color(QPalette::Base), repos);

    QTest::mouseClick(f.champ, Qt::LeftButton);
    EXPECT_EQ(S(f.champ->selectedText()), "8");
}

TEST(ChampNombre, MontreEtRelitLaMemeValeur) {
    ChampNombre champ;
    for (const double valeur : {0.0, -0.25, 1.0 / 3.0, 1e-7, 123456.789, -3.2e20}) {
        champ.Montre(valeur);
        EXPECT_EQ(champ.Valeur(), valeur);
    }
    champ.Montre(0);
    EXPECT_EQ(S(champ.text()), "0");
    champ.clear();
    EXPECT_EQ(champ.Valeur(), 0.0);
    EXPECT_GE(champ.width(), champ.fontMetrics().horizontalAdvance(QStringLiteral("0123456789")));
}
