// A field for a number, and the panels that are made of such fields.
#include "core/ErreurExecution.h"
#include "outils/Ecrans.h"
#include "widgets/ChampNombre.h"
#include "widgets/PanneauChamps.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {

struct Fiche {
    double cote = 120.5, hauteur = -3, vitesse = 0;
    std::string repere = "A 12";
};

constexpr Champ<Fiche> table[] = {
    {"cote", "Text1", 152, 18, &Fiche::cote},
    {"hauteur", "Text2", 153, 18, &Fiche::hauteur},
    {"repere", "Repere", 124, 0, &Fiche::repere},
    {"vitesse", "Text18", 157, 21, &Fiche::vitesse},
};

/// A panel whose first field has the focus.
class Champs : public testing::Test {
protected:
    Fiche fiche;
    QWidget ecran;
    PanneauChamps* panneau = new PanneauChamps("Picture2", 151, LieChamps(table, fiche), &ecran);
    ChampNombre* champ = panneau->Champ("Text1");

    Champs() {
        ecran.show();
        ecran.activateWindow();
        champ->setFocus(Qt::TabFocusReason);
        LaisseFaire();
    }
};

} // namespace

TEST_F(Champs, OnlyANumberIsTakenAndACommaIsAPoint) {
    QTest::keyClicks(champ, "-12,75");
    EXPECT_EQ(S(champ->text()), "-12.75") << "over what stood there";
    EXPECT_EQ(champ->Valeur(), -12.75);
    // Letters and a second point are not taken, and nothing typed before is lost.
    champ->clear();
    EXPECT_EQ(champ->Valeur(), 0);
    QTest::keyClicks(champ, "1a.5.,2x3e-1e");
    EXPECT_EQ(S(champ->text()), "1.523e-1");
    for (const auto& [texte, attendu] :
         {std::pair{"1 234,5 mm", "1234.5"}, {"\t 7,25\r\n", "7.25"}, {"abc", ""}, {"1.234,5", ""}}) {
        champ->clear();
        QGuiApplication::clipboard()->setText(QString::fromUtf8(texte));
        QTest::keySequence(champ, QKeySequence::Paste);
        EXPECT_EQ(S(champ->text()), attendu) << texte;
    }
    for (const double valeur : {-0.25, 1.0 / 3.0, 1e-7, 123456.789, -3.2e20}) {
        champ->Montre(valeur);
        EXPECT_EQ(champ->Valeur(), valeur);
    }
}

TEST_F(Champs, APanelCarriesAnyRecordToTheFieldsAndBack) {
    EXPECT_EQ(champ->Valeur(), 120.5);
    EXPECT_EQ(S(panneau->ChampDe("repere")->text()), "A 12");
    EXPECT_FALSE(panneau->Lit()) << "nothing was typed";
    panneau->Champ("Text2")->setText(QStringLiteral("7,5"));
    panneau->ChampDe("repere")->setText(QStringLiteral("Élan, 3 %"));
    EXPECT_TRUE(panneau->Lit());
    EXPECT_EQ(fiche.hauteur, 7.5);
    EXPECT_EQ(fiche.repere, "Élan, 3 %") << "a text keeps what no number has";

    // A number beyond a double leaves the whole record as it was, texts too.
    champ->setText(QStringLiteral("1"));
    panneau->ChampDe("repere")->setText(QStringLiteral("B"));
    panneau->Champ("Text18")->setText(QStringLiteral("1e999"));
    EXPECT_THROW(panneau->Lit(), ErreurExecution);
    EXPECT_EQ(fiche.cote, 120.5);
    EXPECT_EQ(fiche.repere, "Élan, 3 %");
}
