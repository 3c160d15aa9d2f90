// What the tests of the calculators' screens have in common: lists that are opened and typed into, and the sheets.
#pragma once

#include "indexers/screens/ListeCles.h"
#include "outils/EcranDeSaisie.h"

#include <QAbstractItemView>

template <class Ecran> class EcranDeCalculateur : public EcranDeSaisie<Ecran> {
protected:
    template <class T> T* Le(const char* nom) { return Controle<T>(*this->ecran, nom); }
    std::string Valeur(const char* label) { return S(Le<QLabel>(label)->text()); }

    /// Opens a list and takes an entry with the keys of a keyboard; without one it is left with Escape.
    void Deroule(const char* nom, const char* entree) {
        auto* liste = Le<QComboBox>(nom);
        liste->setFocus();
        liste->showPopup();
        LaisseFaire();
        QTest::keyClick(liste->view(), Qt::Key_Home);
        for (int i = entree == nullptr ? 0 : liste->findText(entree); i > 0; --i)
            QTest::keyClick(liste->view(), Qt::Key_Down);
        QTest::keyClick(liste->view(), entree == nullptr ? Qt::Key_Escape : Qt::Key_Return);
        LaisseFaire();
    }
    void TapeCle(const char* nom, const char* cle, Qt::Key touche = Qt::Key_Return) {
        auto* saisie = Le<QComboBox>(nom)->lineEdit();
        saisie->setFocus();
        saisie->selectAll();
        QTest::keyClicks(saisie, cle);
        QTest::keyClick(saisie, touche);
        LaisseFaire();
    }
    void Revient() { Le<QTabWidget>("SSTab1")->setCurrentIndex(0); }
    bool Offert() { return Le<QWidget>("Frame8")->isEnabled() && Le<QTabWidget>("SSTab1")->isTabEnabled(1); }

    /// What stands there is refused with that text and the focus on that control.
    void Refuse(const std::string& texte, const char* champ) {
        const auto avant = this->dialogues.boites.size();
        this->Clique("Calculer");
        ASSERT_EQ(this->dialogues.boites.size(), avant + 1) << champ;
        EXPECT_EQ(this->dialogues.boites.back().icone, Icone::Avertissement) << champ;
        EXPECT_EQ(this->DerniereBoite(), texte) << champ;
        EXPECT_TRUE(this->AFocus(champ)) << champ;
        EXPECT_FALSE(Offert()) << champ;
    }
};
