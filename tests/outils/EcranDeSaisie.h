// What the tests of the data screens have in common.
#pragma once

#include "outils/DialoguesScript.h"
#include "outils/Ecrans.h"

#include <QTest>
#include <gtest/gtest.h>

#include <memory>

using Saisies = std::vector<std::pair<const char*, const char*>>;

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
    void Tape(const Saisies& saisies) {
        for (const auto& [champ, texte] : saisies) TapeDans(*ecran, champ, texte);
    }
    void Clique(const char* bouton) { CliqueSur(*ecran, bouton); }
    std::string DerniereBoite() { return dialogues.boites.empty() ? "" : dialogues.boites.back().texte; }
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
