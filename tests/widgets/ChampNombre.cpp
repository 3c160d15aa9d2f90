#include "widgets/ChampNombre.h"

#include "outils/Ecrans.h"

#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

/// A dialogue with two fields and a default button, as a data screen has them; the first field has the focus.
class Champs : public testing::Test {
protected:
    QDialog dialogue;
    ChampNombre *champ = new ChampNombre, *autre = new ChampNombre;
    QPushButton* bouton = new QPushButton(QStringLiteral("Calculer"));

    Champs() {
        auto* colonne = new QVBoxLayout(&dialogue);
        for (QWidget* widget :
             {static_cast<QWidget*>(champ), static_cast<QWidget*>(autre), static_cast<QWidget*>(bouton)})
            colonne->addWidget(widget);
        bouton->setDefault(true);
        dialogue.show();
        dialogue.activateWindow();
        champ->setFocus(Qt::TabFocusReason);
        LaisseFaire();
    }
};

} // namespace

TEST_F(Champs, OnlyANumberIsTakenAndACommaIsAPoint) {
    QTest::keyClicks(champ, "-12,75");
    EXPECT_EQ(S(champ->text()), "-12.75");
    EXPECT_EQ(champ->Valeur(), -12.75);
    // Letters and a second point are not taken, and nothing typed before is lost.
    champ->clear();
    QTest::keyClicks(champ, "1a.5.,2x3e-1e");
    EXPECT_EQ(S(champ->text()), "1.523e-1");
    for (const auto& [texte, attendu] :
         {std::pair{"1 234,5 mm", "1234.5"}, {"\t 7,25\r\n", "7.25"}, {"abc", ""}, {"1.234,5", ""}}) {
        champ->clear();
        QGuiApplication::clipboard()->setText(QString::fromUtf8(texte));
        QTest::keySequence(champ, QKeySequence::Paste);
        EXPECT_EQ(S(champ->text()), attendu) << texte;
    }
}

TEST_F(Champs, ReturnGoesOnWithoutTheDefaultButton) {
    QSignalSpy clics(bouton, &QPushButton::clicked), suivants(champ, &ChampNombre::Suivant);
    QTest::keyClick(champ, Qt::Key_Return);
    QTest::keyClick(champ, Qt::Key_Enter);
    EXPECT_EQ(suivants.count(), 2);
    EXPECT_EQ(clics.count(), 0);
}

TEST_F(Champs, TheFieldThatIsEnteredIsColouredAndSelected) {
    const QColor repos = autre->palette().color(QPalette::Base);
    autre->Montre(3.5);
    autre->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(autre->palette().color(QPalette::Base), QColor(0x00, 0xFF, 0xFF));
    EXPECT_EQ(autre->palette().color(QPalette::Text), QColor(Qt::black));
    QTest::keyClicks(autre, "8"); // replaces what was selected
    QTest::mouseClick(champ, Qt::LeftButton);
    EXPECT_EQ(autre->palette().color(QPalette::Base), repos);
    QTest::mouseClick(autre, Qt::LeftButton);
    EXPECT_EQ(S(autre->selectedText()), "8");
}

TEST_F(Champs, WhatIsShownIsReadAgain) {
    for (const double valeur : {0.0, -0.25, 1.0 / 3.0, 1e-7, 123456.789, -3.2e20}) {
        champ->Montre(valeur);
        EXPECT_EQ(champ->Valeur(), valeur);
    }
    champ->clear();
    EXPECT_EQ(champ->Valeur(), 0.0);
}
