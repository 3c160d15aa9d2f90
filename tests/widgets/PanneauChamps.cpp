#include "widgets/PanneauChamps.h"

#include "core/ErreurExecution.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Legendes.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <gtest/gtest.h>

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
    EXPECT_EQ(S(panneau.title()), Texte(151));
    EXPECT_EQ(panneau.Champ("Text1")->Valeur(), 120.5);
    EXPECT_EQ(S(panneau.Champ("Text18")->text()), "0");
    EXPECT_EQ(S(panneau.ChampDe("repere")->text()), "A 12");
    EXPECT_FALSE(panneau.Lit()) << "nothing was typed";

    panneau.Champ("Text2")->setText(QStringLiteral("7,5"));
    panneau.Champ("Text18")->setText(QStringLiteral("300"));
    EXPECT_TRUE(panneau.Lit());
    EXPECT_EQ(fiche.hauteur, 7.5);
    EXPECT_EQ(fiche.vitesse, 300);

    panneau.ChampDe("repere")->setText(QStringLiteral("Élan, 3 %"));
    EXPECT_TRUE(panneau.Lit());
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
    EXPECT_EQ(S(panneau.ChampDe("repere")->text()), "Élan, 3 %");
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
    QTest::qWait(0);
    panneau->Champs().front()->setFocus();
    for (QLineEdit* champ : panneau->Champs()) {
        EXPECT_EQ(ecran.focusWidget(), champ);
        QTest::keyClick(champ, Qt::Key_Return);
    }
    EXPECT_EQ(termine.count(), 1);
    EXPECT_EQ(clique.count(), 0);
}

TEST(Legendes, ChaqueGenreDeControleRecoitLaSienne) {
    QWidget ecran;
    ecran.setObjectName(QStringLiteral("Ecran"));
    auto* onglets = new QTabWidget(&ecran);
    onglets->setObjectName(QStringLiteral("SSTab1"));
    onglets->addTab(new QWidget, QString());
    onglets->addTab(new QWidget, QString());
    std::vector<QLabel*> etiquettes;
    for (int i = 0; i < 2; ++i) {
        etiquettes.push_back(new QLabel(&ecran));
        etiquettes.back()->setObjectName(QStringLiteral("Label5"));
    }
    auto* bouton = new QPushButton(&ecran);
    bouton->setObjectName(QStringLiteral("Calculer"));
    auto* menu = new QMenu(&ecran);
    menu->setObjectName(QStringLiteral("Fichier"));
    QAction* action = menu->addAction(QString());
    action->setObjectName(QStringLiteral("FichierNouveau"));

    const Legende legendes[] = {{"Ecran", 0, 84},   {"SSTab1", 0, 143},  {"SSTab1", 1, 144},       {"Label5", 1, 7},
                                {"Fichier", 0, 38}, {"Calculer", 0, 11}, {"FichierNouveau", 0, 39}};
    AppliqueLegendes(ecran, legendes);
    EXPECT_EQ(S(ecran.windowTitle()), Texte(84));
    EXPECT_EQ(S(onglets->tabText(1)), Texte(144));
    EXPECT_EQ(S(etiquettes[0]->text()), "");
    EXPECT_EQ(S(etiquettes[1]->text()), Texte(7));
    EXPECT_EQ(S(bouton->text()), Texte(11));
    EXPECT_EQ(S(menu->title()), Texte(38));
    EXPECT_EQ(S(action->text()), Texte(39));

    for (const Legende& faute : {Legende{"Calculez", 0, 11}, Legende{"SSTab1", 2, 145}, Legende{"Label5", 2, 7}}) try {
            AppliqueLegendes(ecran, std::span(&faute, 1));
            ADD_FAILURE() << faute.controle;
        } catch (const std::logic_error& erreur) {
            EXPECT_NE(std::string(erreur.what()).find("Calculer"), std::string::npos) << erreur.what();
        }
}
