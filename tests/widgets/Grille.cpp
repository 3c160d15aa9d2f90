#include "widgets/Grille.h"

#include "core/ErreurExecution.h"
#include "data/Demarrage.h"
#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "outils/Ecrans.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLocale>
#include <QMenu>
#include <QTimer>

#include <utility>

namespace {

class GrilleMontree : public testing::Test {
protected:
    Grille grille;
    int demandes = 0; ///< cells asked for

    /// A table of lines and columns whose cells name their places.
    TableTexte Nombres(int lignes) {
        const auto cellule = [this](int colonne) {
            return [this, colonne](int ligne) {
                ++demandes;
                return std::to_string(ligne) + "." + std::to_string(colonne);
            };
        };
        return {{{"Angle", "degrés", cellule(0)}, {"Rayon", "", cellule(1)}, {"Loi", "", cellule(2), Cote::Gauche}},
                lignes};
    }
    void Montre(TableTexte table) {
        grille.Remplit(std::move(table));
        grille.resize(500, 300);
        grille.show();
        LaisseFaire();
    }
    /// Opens the context menu and takes an entry of it, which is to be possible or not.
    void Choisit(int entree, bool possible) {
        QTimer::singleShot(0, &grille, [this, entree, possible] {
            auto* menu = Controle<QMenu>(grille, "MenuGrille");
            QAction* action = menu->actions()[entree];
            EXPECT_EQ(action->isEnabled(), possible) << S(action->text());
            menu->close();
            if (possible) action->trigger();
        });
        QContextMenuEvent clic(QContextMenuEvent::Mouse, {5, 5}, grille.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(grille.viewport(), &clic);
        LaisseFaire();
    }
    static std::string PressePapiers() { return S(QGuiApplication::clipboard()->text()); }
};

} // namespace

TEST_F(GrilleMontree, ALongTableIsNotReadWhole) {
    Montre(Nombres(4000));
    EXPECT_EQ(grille.Cellule(3999, 1), "3999.1");
    EXPECT_LT(demandes, 4000 * 3 / 4) << "the whole table was read";
    // The widest figure stands in the last row, and has room.
    EXPECT_GE(grille.columnWidth(1), grille.fontMetrics().horizontalAdvance(QStringLiteral("3999.1")));
}

TEST_F(GrilleMontree, KeysAndMenuCopySelectAndSave) {
    DialoguesScript dialogues;
    const DossierTemporaire dossier;
    TableTexte table = Nombres(2);
    table.colonnes[1].cellule = [](int ligne) { return ligne == 0 ? "-.5" : "."; };
    table.colonnes[2].cellule = [](int) { return "a,\"b\";1.5"; };
    Montre(std::move(table));
    Choisit(0, false);
    grille.selectionModel()->select({grille.model()->index(0, 0), grille.model()->index(1, 1)},
                                    QItemSelectionModel::Select);
    QTest::keySequence(&grille, QKeySequence::Copy);
    EXPECT_EQ(PressePapiers(), "Angle degrés\tRayon\n0.0\t-.5\n1.0\t.\n") << "with its headings";
    Choisit(1, true);
    Choisit(0, true);
    EXPECT_TRUE(PressePapiers().starts_with("Angle degrés\tRayon\tLoi\n0.0\t-.5\t"));
    const std::filesystem::path etudes = std::exchange(CheminEtudes, dossier / "etudes");
    dialogues.fichiers.push_back(dossier / "t.csv");
    Choisit(3, true);
    // Read as the machine that wrote it would.
    const bool virgule = QLocale::system().decimalPoint() == QLatin1String(",");
    const std::string lignes =
        virgule ? "Angle degrés;Rayon;Loi\r\n0,0;-0,5;\"a,\"\"b\"\";1.5\"\r\n1,0;0;\"a,\"\"b\"\";1.5\"\r\n"
                : "Angle degrés,Rayon,Loi\r\n0.0,-0.5,\"a,\"\"b\"\";1.5\"\r\n1.0,0,\"a,\"\"b\"\";1.5\"\r\n";
    EXPECT_EQ(LitBrut(dossier / "t.csv"), "\xEF\xBB\xBF" + lignes);
    EXPECT_EQ(dialogues.dossier, CheminEtudes) << "where the studies are";
    CheminEtudes = etudes;
}

TEST_F(GrilleMontree, HeadingsWithoutValuesAreLeftOutAndATableThatShrankBreaksNothing) {
    TableTexte table = Nombres(2);
    table.colonnes[0].cellule = [](int) -> std::string { throw ErreurExecution(NumeroErreur::IndiceHorsLimites); };
    table.colonnes[1].cellule = nullptr;
    Montre(std::move(table));
    ASSERT_EQ(grille.NombreColonnes(), 2);
    EXPECT_EQ(grille.Cellule(1, 1), "1.2");
    EXPECT_EQ(grille.Cellule(1, 0), "");
}
