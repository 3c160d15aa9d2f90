#include "widgets/PanneauChamps.h"

#include "core/ErreurExecution.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Legendes.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace {

constexpr ChampSaisie Table[] = {
    {"Text1", 152, 18, &DonneesEtude::CoteA},
    {"Text2", 153, 18, &DonneesEtude::CoteB},
    {"Text18", 157, 21, &DonneesEtude::VitesseCame},
};

} // namespace

TEST(PanneauChamps, PorteLEtudeDansUnSensEtDansLAutre) {
    etude.donnees.CoteA = 120.5;
    etude.donnees.CoteB = -3;
    PanneauChamps panneau("Picture2", 151, Table);
    EXPECT_EQ(S(panneau.title()), Texte(151));
    EXPECT_EQ(panneau.Champ("Text1")->Valeur(), 120.5);
    EXPECT_EQ(S(panneau.Champ("Text18")->text()), "0");

    panneau.Champ("Text2")->setText(QStringLiteral("7,5"));
    panneau.Champ("Text18")->setText(QStringLiteral("300"));
    panneau.Lit();
    EXPECT_EQ(etude.donnees.CoteB, 7.5);
    EXPECT_EQ(etude.donnees.VitesseCame, 300);

    // A number beyond a double leaves the whole record as it was.
    panneau.Champ("Text1")->setText(QStringLiteral("1"));
    panneau.Champ("Text18")->setText(QStringLiteral("1e999"));
    EXPECT_THROW(panneau.Lit(), ErreurExecution);
    EXPECT_EQ(etude.donnees.CoteA, 120.5);

    panneau.Charge();
    EXPECT_EQ(S(panneau.Champ("Text1")->text()), "120.5");
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
