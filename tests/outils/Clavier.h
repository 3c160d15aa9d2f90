// A person at the keyboard: keys go to whatever has the focus, and the mouse to where a control can be seen.
#pragma once

#include "outils/Ecrans.h"
#include "widgets/Grille.h"

#include <QApplication>

inline void Touche(QWidget& ecran, int touche) {
    QTest::keyClick(ecran.focusWidget() != nullptr ? ecran.focusWidget() : &ecran, static_cast<Qt::Key>(touche));
    LaisseFaire();
}

inline void Retour(QWidget& ecran, int fois = 1) {
    while (fois-- > 0) Touche(ecran, Qt::Key_Return);
}

/// Types into the field that has the focus, over what is selected there.
inline void Frappe(QWidget& ecran, const char* texte) {
    QTest::keyClicks(ecran.focusWidget(), texte);
    LaisseFaire();
}

/// Clicks into a field, and types; in the field that is worked in already all is selected first.
inline void FrappeDans(QWidget& ecran, const char* champ, const char* texte) {
    auto* zone = Controle<QWidget>(ecran, champ);
    ecran.activateWindow();
    LaisseFaire();
    if (zone->hasFocus())
        QTest::keySequence(zone, QKeySequence::SelectAll);
    else
        QTest::mouseClick(zone, Qt::LeftButton);
    Frappe(ecran, texte);
}

inline void CliqueCellule(QWidget& ecran, const char* grille, int ligne, int colonne) {
    auto* table = Controle<Grille>(ecran, grille);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                      table->visualRect(table->model()->index(ligne, colonne)).center());
    LaisseFaire();
}
