#include "cams/screens/ListeLois.h"

#include "laws/CalculLois.h"
#include "outils/Ecrans.h"
#include "widgets/Chaines.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QTest>
#include <gtest/gtest.h>

TEST(ListeLois, TheOpenedListShowsNamesAndTheFieldHoldsTheKey) {
    QComboBox liste;
    liste.setEditable(true);
    for (const std::string& loi : NomsLoisZones()) liste.addItem(Q(loi));
    NommeLois(liste);
    liste.addItem(QString::fromLatin1(NomLoiFichier));
    liste.show();
    liste.showPopup();
    LaisseFaire();
    // As wide as its widest line, which is longer than any key.
    int besoin = 0;
    for (int ligne = 0; ligne < liste.count(); ++ligne)
        besoin = std::max(besoin, liste.view()->sizeHintForIndex(liste.model()->index(ligne, 0)).width());
    EXPECT_GT(besoin, liste.fontMetrics().horizontalAdvance("MSC15 – " + QTexte(94)));
    EXPECT_GE(liste.view()->viewport()->width(), besoin);
    const int ms = liste.findText("MS", Qt::MatchFixedString | Qt::MatchCaseSensitive);
    ASSERT_GE(ms, 0);
    liste.view()->setCurrentIndex(liste.model()->index(ms, 0));
    QTest::keyClick(liste.view(), Qt::Key_Return);
    EXPECT_EQ(S(liste.currentText()), "MS");
    EXPECT_EQ(S(liste.lineEdit()->text()), "MS");
}
