#include "widgets/PanneauChamps.h"

#include "core/ErreurExecution.h"
#include "outils/Ecrans.h"
#include "widgets/ChampNombre.h"
#include "widgets/Legendes.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>

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

} // namespace

TEST(PanneauChamps, CarriesAnyRecordToTheFieldsAndBack) {
    Fiche fiche;
    PanneauChamps panneau("Picture2", 151, LieChamps(table, fiche));
    EXPECT_EQ(panneau.Champ("Text1")->Valeur(), 120.5);
    EXPECT_EQ(S(panneau.ChampDe("repere")->text()), "A 12");
    EXPECT_FALSE(panneau.Lit()) << "nothing was typed";

    panneau.Champ("Text2")->setText(QStringLiteral("7,5"));
    panneau.ChampDe("repere")->setText(QStringLiteral("Élan, 3 %"));
    EXPECT_TRUE(panneau.Lit());
    EXPECT_EQ(fiche.hauteur, 7.5);
    EXPECT_EQ(fiche.repere, "Élan, 3 %") << "a text keeps what no number has";

    // A number beyond a double leaves the whole record as it was, texts too.
    panneau.Champ("Text1")->setText(QStringLiteral("1"));
    panneau.ChampDe("repere")->setText(QStringLiteral("B"));
    panneau.Champ("Text18")->setText(QStringLiteral("1e999"));
    EXPECT_THROW(panneau.Lit(), ErreurExecution);
    EXPECT_EQ(fiche.cote, 120.5);
    EXPECT_EQ(fiche.repere, "Élan, 3 %");
    panneau.Charge();
    EXPECT_EQ(S(panneau.Champ("Text1")->text()), "120.5");
}

TEST(PanneauChamps, ReturnWalksNumbersAndTextsAndLeavesTheLast) {
    Fiche fiche;
    QWidget ecran;
    auto* bouton = new QPushButton(&ecran);
    bouton->setDefault(true);
    auto* panneau = new PanneauChamps("Picture2", 151, LieChamps(table, fiche), &ecran);
    QSignalSpy clique(bouton, &QPushButton::clicked), termine(panneau, &PanneauChamps::Termine);
    ecran.show();
    ecran.activateWindow();
    LaisseFaire();
    panneau->Champs().front()->setFocus();
    for (QLineEdit* champ : panneau->Champs()) {
        EXPECT_EQ(ecran.focusWidget(), champ);
        QTest::keyClick(champ, Qt::Key_Return);
    }
    EXPECT_EQ(termine.count(), 1);
    EXPECT_EQ(clique.count(), 0);
}

TEST(Legendes, CaptionsGoToControlsByNameAndPlaceAndAWrongNameIsTold) {
    QWidget ecran;
    auto* onglets = new QTabWidget(&ecran);
    onglets->setObjectName("SSTab1");
    onglets->addTab(new QWidget, QString());
    onglets->addTab(new QWidget, QString());
    QLabel premiere(&ecran), seconde(&ecran);
    for (QLabel* etiquette : {&premiere, &seconde}) etiquette->setObjectName("Label5");
    const Legende legendes[] = {{"SSTab1", 1, 144}, {"Label5", 1, 7}};
    AppliqueLegendes(ecran, legendes);
    EXPECT_EQ(S(onglets->tabText(1)), Texte(144));
    EXPECT_EQ(S(premiere.text()), "");
    EXPECT_EQ(S(seconde.text()), Texte(7));
    for (const Legende& faute : {Legende{"Calculez", 0, 11}, Legende{"SSTab1", 2, 145}, Legende{"Label5", 2, 7}})
        EXPECT_THROW(AppliqueLegendes(ecran, std::span(&faute, 1)), std::logic_error) << faute.controle;
}
