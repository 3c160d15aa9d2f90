#include "widgets/Grille.h"

#include "core/ErreurExecution.h"
#include "outils/Ecrans.h"
#include "widgets/Chaines.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QTest>
#include <gtest/gtest.h>

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
    EXPECT_EQ(S(QGuiApplication::clipboard()->text()), "1.0\t1.1\n2.0\t2.1\n");
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
