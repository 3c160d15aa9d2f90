// What the tests of the data screens have in common.
#pragma once

#include "core/Etude.h"
#include "outils/Clavier.h"
#include "outils/DialoguesScript.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>

#include <memory>

/// A data screen, typed into by control names.
template <class Ecran> class EcranDeSaisie : public testing::Test {
protected:
    DialoguesScript dialogues;
    std::unique_ptr<Ecran> ecran;

    EcranDeSaisie() { Ouvre(); }
    void Ouvre() {
        ecran = std::make_unique<Ecran>();
        ecran->show();
        ecran->activateWindow();
        LaisseFaire();
    }
    template <class T> T* Le(const char* nom) { return Controle<T>(*ecran, nom); }
    std::string TexteDe(const char* champ) { return S(Le<QLineEdit>(champ)->text()); }
    std::string Cellule(int ligne, int colonne, const char* grille = "Grille") {
        return Le<Grille>(grille)->Cellule(ligne, colonne);
    }
    void TapeLigne(const std::string& saisies) { ::TapeLigne(*ecran, saisies); }
    void Tape(const Saisies& saisies) { TapeTout(*ecran, saisies); }
    void Clique(const char* bouton) { CliqueSur(*ecran, bouton); }
    std::string DerniereBoite() { return dialogues.Derniere(); }
    bool AFocus(const char* champ) {
        auto* widget = Controle<QWidget>(*ecran, champ);
        return widget->hasFocus() || widget->isAncestorOf(ecran->focusWidget());
    }
    /// Return walks the fields in this order, once.
    void SuitReturn(const std::vector<const char*>& ordre) {
        Controle<QWidget>(*ecran, ordre.front())->setFocus();
        for (const char* champ : ordre) {
            EXPECT_TRUE(AFocus(champ)) << champ;
            QTest::keyClick(ecran->focusWidget(), Qt::Key_Return);
        }
    }
};
