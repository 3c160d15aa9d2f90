// The first page: one click to every study, and room for what stands on a small display.
#include "app/CameType.h"
#include "app/Ecrans.h"
#include "app/PageAccueil.h"
#include "laws/ChoixLois.h"
#include "outils/FenetrePrincipale.h"
#include "studies/TypesEtude.h"
#include "widgets/BoutonImage.h"

#include <QDialogButtonBox>
#include <QMdiArea>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>

namespace {

class Accueil : public FenetrePrincipale {
protected:
    QWidget& Page() { return *Controle<QWidget>(*mdi_, "Accueil"); }
    QStringList Liens(const char* nom) {
        QStringList textes;
        for (const auto* lien : Page().findChildren<QPushButton*>(nom)) textes << lien->text();
        return textes;
    }
    static void Clique(QWidget* controle) {
        QTest::mouseClick(controle, Qt::LeftButton);
        LaisseFaire();
    }
    /// Brings the window to the room that a display leaves below a title bar.
    void Retrecit(int largeur, int hauteur) {
        mdi_->resize(largeur, hauteur);
        LaisseFaire();
    }
    static void AttendSansBarre(QScrollArea& feuille, const std::string& quoi) {
        EXPECT_FALSE(feuille.verticalScrollBar()->isVisible()) << quoi;
        EXPECT_FALSE(feuille.horizontalScrollBar()->isVisible()) << quoi;
    }
    /// The screen stands on the desk of a small display whole, and no sheet of it scrolls.
    void AttendTient(const char* ecran, const std::string& quoi) {
        Retrecit(1280, 690);
        QWidget* cadre = Ecran(ecran).parentWidget();
        const QRect bureau = Controle<QMdiArea>(*mdi_, "Bureau")->viewport()->rect();
        cadre->setGeometry(bureau);
        LaisseFaire();
        for (QScrollArea* feuille : Ecran(ecran).findChildren<QScrollArea*>()) AttendSansBarre(*feuille, quoi);
        EXPECT_TRUE(bureau.contains(cadre->geometry())) << quoi;
    }
};

} // namespace

TEST_F(Accueil, AKindOfStudyIsOneClickAway) {
    ASSERT_TRUE(Page().isVisible());
    for (const ChoixEtude& choix : LesChoixEtude()) {
        auto* image = Controle<BoutonImage>(Page(), (std::string("Accueil") + choix.image).c_str());
        EXPECT_EQ(image->isEnabled(), choix.Disponible()) << choix.image;
        if (!choix.Disponible()) continue;
        Clique(image);
        EXPECT_TRUE(Ouvert(choix.Ecran())) << choix.image;
        EXPECT_FALSE(Page().isVisible());
        mdi_->FermeEcrans();
        LaisseFaire();
        EXPECT_TRUE(Page().isVisible()) << "the page is back when the desk is empty";
    }
}

TEST_F(Accueil, ExamplesAndRecentFilesAreOneClickAway) {
    EXPECT_EQ(Liens("Exemple"), (QStringList{"Balancier.Osc", "Barillet.Cyl", "Conjuguees.Cjg", "Deux-tours.Cyl",
                                             "Exemple.Ang", "Plateau.Ine", "Translation.Lin"}));
    EXPECT_TRUE(Liens("Recent").isEmpty());
    Clique(Page().findChildren<QPushButton*>("Exemple")[1]);
    EXPECT_EQ(etude.donnees.NomFichier, "Barillet.Cyl");
    // Results that hide a data screen are no empty desk.
    CliqueSur(Ecran("Resultat"), "Quitter");
    EXPECT_FALSE(Page().isVisible());
    TapeDans(Ecran("DoCyl"), "Text3", "41");
    CliqueSur(Ecran("DoCyl"), "Retour");
    EXPECT_EQ(Liens("Recent"), QStringList{"Barillet.Cyl"});
    Clique(Controle<QPushButton>(Page(), "AccueilFichierReprendre"));
    EXPECT_TRUE(Ouvert("DoCyl")) << "what was given up is one click away too";
    mdi_->FermeEcrans();
    Clique(Page().findChildren<QPushButton*>("Recent")[0]);
    EXPECT_TRUE(Ouvert("Resultat"));
}

TEST_F(Accueil, ASmallDisplayHasRoomInEveryLanguage) {
    for (const auto& [langue, annuler] :
         {std::pair{"Français", "Annuler"}, {"Español", "Cancelar"}, {"English", "Cancel"}}) {
        mdi_->ChangeLangue(langue);
        Retrecit(1280, 690);
        for (const auto& coupee : LegendesCoupees(Page())) ADD_FAILURE() << langue << " " << coupee;
        AttendSansBarre(*qobject_cast<QScrollArea*>(&Page()), langue);
        QDialogButtonBox boite(QDialogButtonBox::Cancel);
        EXPECT_EQ(S(boite.button(QDialogButtonBox::Cancel)->text().remove('&')), annuler) << "the toolkit's own text";
        for (const ChoixLoi& choix : LesChoixLois()) {
            Lance(choix.cle);
            AttendTient(choix.ecran, std::string(langue) + " " + choix.cle);
        }
        for (const std::filesystem::path& exemple : LesExemples()) {
            mdi_->OuvreAutre(exemple);
            const TypeEtude* type = TrouveTypeFichier(exemple);
            AttendTient(type != nullptr ? type->ecranResultats : TrouveEcranFichier(exemple)->nom,
                        langue + exemple.filename().string());
            if (type == nullptr) Ecran(TrouveEcranFichier(exemple)->nom).parentWidget()->close(); // a list stays open
        }
        mdi_->FermeEcrans();
    }
}

TEST_F(Accueil, TheStatusLineStaysOnTheDisplay) {
    // Half of 1280 x 720 is what a scale of 200 % leaves of it.
    Retrecit(640, 330);
    Ouvre("Exemple.Ang");
    Retrecit(640, 330);
    EXPECT_LE(mdi_->height(), 330);
    EXPECT_LE(mdi_->width(), 640);
    EXPECT_GE(mdi_->statusBar()->geometry().height(), 15);
    // A window that grows for its child stays on the display with its frame.
    Lance("MSPerso");
    EXPECT_TRUE(mdi_->screen()->availableGeometry().contains(mdi_->frameGeometry()));
}
