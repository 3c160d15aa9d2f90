#include "widgets/Grille.h"

#include "core/ErreurExecution.h"
#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "outils/Ecrans.h"
#include "widgets/Chaines.h"
#include "widgets/Etiquettes.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <cmath>

namespace {

TableTexte Nombres(int lignes, int* demandes = nullptr) {
    const auto cellule = [demandes](int colonne) {
        return [demandes, colonne](int ligne) {
            if (demandes) ++*demandes;
            return std::to_string(ligne) + "." + std::to_string(colonne);
        };
    };
    return {{{"Angle", "degrés", cellule(0)}, {"Rayon", "", cellule(1)}, {"Loi", "", cellule(2), Cote::Gauche}},
            lignes};
}

int LargeurColonnes(const Grille& grille) {
    int somme = 0;
    for (int colonne = 0; colonne < grille.NombreColonnes(); ++colonne) somme += grille.columnWidth(colonne);
    return somme;
}

} // namespace

TEST(Grille, QuatreMilleLignesSansLesDemanderToutes) {
    Grille grille;
    int demandes = 0;
    grille.Remplit(Nombres(4000, &demandes));
    grille.resize(500, 300);
    grille.show();
    LaisseFaire();
    EXPECT_EQ(grille.NombreLignes(), 4000);
    EXPECT_EQ(grille.Cellule(3999, 1), "3999.1");
    EXPECT_EQ(grille.Cellule(4000, 0), "");
    EXPECT_GT(demandes, 0);
    EXPECT_LT(demandes, 4000 * 3 / 4) << "the whole table was read";
    // The widest figure stands in the last row, and has room.
    EXPECT_GE(grille.columnWidth(1), grille.fontMetrics().horizontalAdvance(QStringLiteral("3999.1")));
}

TEST(Grille, LesColonnesPrennentLaLargeur) {
    Grille grille;
    grille.Remplit(Nombres(3));
    grille.resize(900, 200);
    grille.show();
    LaisseFaire();
    EXPECT_EQ(LargeurColonnes(grille), grille.viewport()->width());
    grille.resize(60, 200);
    LaisseFaire();
    EXPECT_GT(LargeurColonnes(grille), grille.viewport()->width()) << "captions and figures are not squeezed";
}

TEST(Grille, CopieLaSelection) {
    Grille grille;
    grille.Remplit(Nombres(5));
    grille.show();
    QGuiApplication::clipboard()->setText(QStringLiteral("avant"));
    QTest::keySequence(&grille, QKeySequence::Copy);
    EXPECT_EQ(S(QGuiApplication::clipboard()->text()), "avant") << "nothing was selected";
    grille.selectionModel()->select({grille.model()->index(1, 0), grille.model()->index(2, 1)},
                                    QItemSelectionModel::Select);
    QTest::keySequence(&grille, QKeySequence::Copy);
    EXPECT_EQ(S(QGuiApplication::clipboard()->text()), "Angle degrés\tRayon\n1.0\t1.1\n2.0\t2.1\n");
}

TEST(Grille, UneTableRefaitePlusPetiteNeCasseRien) {
    Grille grille;
    grille.Remplit(
        {{{"A", "", [](int) -> std::string { throw ErreurExecution(NumeroErreur::IndiceHorsLimites); }}}, 10});
    grille.show();
    LaisseFaire();
    EXPECT_EQ(grille.Cellule(0, 0), "");
    grille.Remplit(Nombres(2));
    EXPECT_EQ(grille.Cellule(1, 1), "1.1");
}

TEST(Grille, LeMenuCopieSelectionneEtEnregistre) {
    DialoguesScript dialogues;
    const DossierTemporaire dossier;
    Grille grille;
    TableTexte table = Nombres(2);
    table.colonnes[1].cellule = [](int ligne) { return ligne == 0 ? "-.5" : "."; };
    table.colonnes[2].cellule = [](int) { return "a,\"b\";1.5"; };
    grille.Remplit(std::move(table));
    grille.show();
    const auto choisit = [&grille](int entree, bool possible) {
        QTimer::singleShot(0, &grille, [&grille, entree, possible] {
            auto* menu = Controle<QMenu>(grille, "MenuGrille");
            QAction* action = menu->actions()[entree];
            EXPECT_EQ(action->isEnabled(), possible) << S(action->text());
            if (possible) action->trigger();
            menu->close();
        });
        QContextMenuEvent clic(QContextMenuEvent::Mouse, {5, 5}, grille.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(grille.viewport(), &clic);
        LaisseFaire();
    };
    QGuiApplication::clipboard()->setText(QStringLiteral("avant"));
    choisit(0, false);
    choisit(1, true);
    choisit(0, true);
    EXPECT_EQ(S(QGuiApplication::clipboard()->text()).substr(0, 32), "Angle degrés\tRayon\tLoi\n0.0\t-.5\t");
    dialogues.fichiers.push_back(dossier / "t.csv");
    choisit(3, true);
    std::string csv = LitBrut(dossier / "t.csv");
    ASSERT_EQ(csv.substr(0, 3), "\xEF\xBB\xBF");
    // Read as the machine that wrote it would.
    const bool virgule = QLocale::system().decimalPoint() == QLatin1String(",");
    EXPECT_EQ(csv.substr(3),
              virgule ? "Angle degrés;Rayon;Loi\r\n0,0;-0,5;\"a,\"\"b\"\";1.5\"\r\n1,0;0;\"a,\"\"b\"\";1.5\"\r\n"
                      : "Angle degrés,Rayon,Loi\r\n0.0,-0.5,\"a,\"\"b\"\";1.5\"\r\n1.0,0,\"a,\"\"b\"\";1.5\"\r\n");
    grille.Remplit(Nombres(0));
    choisit(3, false);
}

TEST(Etiquettes, UnitsAreLegibleOnADarkPalette) {
    const auto luminance = [](const QColor& couleur) {
        const auto lineaire = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
        return 0.2126 * lineaire(couleur.redF()) + 0.7152 * lineaire(couleur.greenF()) +
               0.0722 * lineaire(couleur.blueF());
    };
    const std::pair<QColor, QColor> palettes[] = {{QColor(50, 50, 50), Qt::white}, {QColor(239, 239, 239), Qt::black}};
    for (const auto& [fond, encre] : palettes) {
        QWidget ecran;
        QLabel* unite = FaitUnite("mm");
        unite->setParent(&ecran);
        ecran.setPalette(QPalette(encre, fond, fond, fond, fond, encre, encre, fond, fond));
        QColor couleur = unite->palette().color(unite->foregroundRole());
        const double part = couleur.alphaF();
        couleur = QColor::fromRgbF(static_cast<float>(part * couleur.redF() + (1 - part) * fond.redF()),
                                   static_cast<float>(part * couleur.greenF() + (1 - part) * fond.greenF()),
                                   static_cast<float>(part * couleur.blueF() + (1 - part) * fond.blueF()));
        const double a = luminance(couleur), b = luminance(fond);
        EXPECT_GE((std::max(a, b) + 0.05) / (std::min(a, b) + 0.05), 4.5) << S(fond.name());
    }
}

TEST(Grille, AHeadingWithoutValuesIsLeftOut) {
    Grille grille;
    TableTexte table = Nombres(2);
    table.colonnes[1].cellule = nullptr;
    grille.Remplit(std::move(table));
    ASSERT_EQ(grille.NombreColonnes(), 2);
    EXPECT_EQ(grille.Cellule(1, 1), "1.2");
}
