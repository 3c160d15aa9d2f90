// The main window in tests, as a person sits before it.
#pragma once

#include "app/MdiCamA.h"
#include "core/Etude.h"
#include "data/Demarrage.h"
#include "outils/Clavier.h"
#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "widgets/FenetreEnfant.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include <memory>

/// The program just started, in the working language, with all the reports marked.
class FenetrePrincipale : public testing::Test {
protected:
    DialoguesScript dialogues_;
    DossierTemporaire dossier_;
    std::unique_ptr<MdiCamA> mdi_;

    FenetrePrincipale() { Demarre(); }
    void Demarre() {
        mdi_.reset();
        mdi_ = std::make_unique<MdiCamA>(Configuration{{true, true, true, true, true, true, true}, LangueTravail});
        mdi_->show();
        mdi_->activateWindow();
        LaisseFaire();
    }
    QAction& Action(const char* nom) { return *Controle<QAction>(*mdi_, nom); }
    void Lance(const char* commande) {
        Action(commande).trigger();
        LaisseFaire();
    }
    /// Runs a command with a person at the dialogue that it shows. @return whether it showed one
    template <class Fait> bool Lance(const char* commande, Fait dansLeDialogue) {
        bool montre = false;
        QTimer::singleShot(0, mdi_.get(), [&] {
            auto* dialogue = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialogue == nullptr) return;
            montre = true;
            dansLeDialogue(*dialogue);
            if (dialogue->isVisible()) dialogue->reject();
        });
        Lance(commande);
        return montre;
    }
    void Raccourci(const char* touches) {
        QTest::keySequence(mdi_.get(), QKeySequence(QString::fromLatin1(touches)));
        LaisseFaire();
    }
    void Ouvre(const char* exemple) { mdi_->OuvreFichier(Exemple(exemple)); }
    /// The print command. @return whether its preview came up
    bool Imprime() {
        return Lance("FicImprimerImprimer", [](QDialog&) {});
    }
    QWidget& Ecran(const char* nom) {
        QWidget* ecran = mdi_->EcranOuvert(nom);
        if (ecran == nullptr) throw std::logic_error(std::string("not open: ") + nom);
        return *ecran;
    }
    bool Ouvert(const char* nom) { return mdi_->EcranOuvert(nom) != nullptr; }
    bool Visible(const char* nom) { return Ouvert(nom) && Ecran(nom).isVisible(); }
    std::string TexteDe(const char* ecran, const char* champ) {
        return S(Controle<QLineEdit>(Ecran(ecran), champ)->text());
    }
    /// What the status line says.
    std::string Etat() { return S(Controle<QLabel>(*mdi_, "Etat")->text()); }
};
