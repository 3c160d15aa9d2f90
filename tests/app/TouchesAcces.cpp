// No access key serves two captions of one menu or of one window.
#include "app/Ecrans.h"
#include "app/MdiCamA.h"
#include "data/Demarrage.h"
#include "outils/DialoguesScript.h"
#include "outils/Ecrans.h"
#include "widgets/FenetreEnfant.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <map>
#include <memory>
#include <string_view>

namespace {

/// Keys and the captions that have them.
using Touches = std::map<QString, QString>;

class TouchesAcces : public testing::TestWithParam<const char*> {
protected:
    DialoguesScript dialogues_;
    TouchesAcces() { ChoisitLangue(GetParam()); }

    /// The French captions are settled: some share their letter with another one.
    bool Fixees() const { return GetParam() == std::string_view("Français"); }

    /// Fails for a key that another caption has already.
    void Retient(Touches& prises, const QString& legende, const QString& ou) const {
        constexpr std::string_view fixes[] = {"Points &Remarquables", "Bielle &Crémaillère", "Sauver &Châssis"};
        const QString touche = QKeySequence::mnemonic(legende).toString();
        if (touche.isEmpty() || std::ranges::find(fixes, S(legende)) != std::end(fixes)) return;
        const auto [place, neuve] = prises.emplace(touche, legende);
        EXPECT_TRUE(neuve) << GetParam() << " " << S(ou) << ": " << S(touche) << " of " << S(place->second)
                           << " and of " << S(legende);
    }
    Touches DesEntrees(const QWidget& menu, const QString& ou) const {
        Touches prises;
        for (const QAction* action : menu.actions()) Retient(prises, action->text(), ou);
        return prises;
    }
    void DesMenus(const QWidget& fenetre) const {
        for (const QMenu* menu : fenetre.findChildren<QMenu*>())
            DesEntrees(*menu, fenetre.objectName() + " " + menu->title());
    }
};

} // namespace

TEST_P(TouchesAcces, InMenus) {
    MdiCamA mdi{Configuration{{}, LangueTravail}};
    DesMenus(mdi);
    for (const EcranEnfant& ecran : LesEcrans()) DesMenus(*std::unique_ptr<FenetreEnfant>(ecran.cree(ecran.nom)));
}

/// The menu bar above a window answers to the same keys.
TEST_P(TouchesAcces, InWindowsBelowTheMenuBar) {
    MdiCamA mdi{Configuration{{}, LangueTravail}};
    const Touches barre = DesEntrees(*mdi.menuBar(), "menu bar");
    for (const EcranEnfant& ecran : LesEcrans()) {
        const std::unique_ptr<FenetreEnfant> fenetre(ecran.cree(ecran.nom));
        fenetre->show();
        LaisseFaire();
        Touches prises = Fixees() ? Touches() : barre;
        for (const auto* bouton : fenetre->findChildren<QAbstractButton*>())
            if (bouton->isVisible()) Retient(prises, bouton->text(), ecran.nom);
        for (const auto* etiquette : fenetre->findChildren<QLabel*>())
            if (etiquette->isVisible() && etiquette->buddy() != nullptr) Retient(prises, etiquette->text(), ecran.nom);
    }
}

INSTANTIATE_TEST_SUITE_P(Langues, TouchesAcces, testing::Values("Français", "Español", "English"));
