// The tables of the main window's menus and tool bar, and their building.
#include "app/CameType.h"
#include "app/Ecrans.h"
#include "app/MdiCamA.h"
#include "data/Demarrage.h"
#include "laws/ChoixLois.h"
#include "studies/TypesEtude.h"
#include "widgets/Chaines.h"
#include "widgets/Icones.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace {

constexpr int TexteTitreFenetre = 37;
constexpr int TexteTitreBarre = 79;
constexpr const char* NomLangueMenu = "FichierLanguesDisponibles";

struct EntreeDeroulante {
    const char* cle;
    const char* cible; ///< control name of the chooser's picture, or `TypeCame`
};

constexpr EntreeDeroulante LesEtudes[] = {
    {"NouveauAngulaire", "Image1"},   {"NouveauLineaire", "Image2"},         {"NouveauCylindre", "Image3"},
    {"NouveauOscillation", "Image7"}, {"NouveauGlobiqueIndexeur", "Image8"}, {"NouveauGlobiqueOscillateur", "Image6"},
    {"NouveauConjug", "Image11"},
};

constexpr EntreeDeroulante LesOuvertures[] = {
    {"ProfilPlatAngulaire", "Angulaire"},
    {"ProfilPlatLineaire", "Lineaire"},
    {"ProfilCylindrique", "Cylindrique"},
    {"ProfilCylindriqueOsc", "Oscillation"},
    {"ProfilConjugueesOsc", "ConjuguesOscillation"},
};

// Keys of the law entries; each does what the picture of its law does.
constexpr const char* LesLoisUsuelles[] = {"MS",    "MSC15",   "MSC20",      "MSC25",    "MSC33", "MSC50", "MSC66",
                                           "MSC80", "MSPerso", "Harmonique", "Cycloide", "MT",    "MTC50"};
constexpr const char* LesLoisSpeciales[] = {"MSH",        "MSHC20",   "MSHC33",       "MSHC50",
                                            "MSHDissyme", "Liquides", "AvanceRapide", "Hesser"};

const ChoixEtude& ChoixDeLImage(const char* image) {
    for (const ChoixEtude& choix : LesChoixEtude())
        if (std::string_view(choix.image) == image) return choix;
    throw std::logic_error(std::string("no picture ") + image);
}

QAction* AjouteAction(QMenu& menu, const char* nom, const QString& texte) {
    QAction* action = menu.addAction(texte);
    action->setObjectName(QString::fromLatin1(nom));
    return action;
}

} // namespace

std::span<const MdiCamA::EntreeMenu> MdiCamA::LeMenu() {
    using E = EntreeMenu;
    // clang-format off
    static constexpr EntreeMenu menu[] = {
        {"Fichier", 0, 38, 0, E::Menu, nullptr},
        {"FichierNouveau", 1, 39, 80, E::Commande, &MdiCamA::Nouveau, "Ctrl+N"},
        {"FichierOuvrir", 1, 40, 81, E::Commande, &MdiCamA::Ouvrir, "Ctrl+O"},
        {"FichierSauvegarde", 1, 41, 82, E::Commande, &MdiCamA::Sauvegarder, "Ctrl+S"},
        {"FichierLangues", 1, 42, 0, E::Menu, nullptr, "", true},
        {"FichierLanguesTravail", 2, 43, 0, E::Menu, nullptr},
        {"FichierLanguesModification", 2, 44, 0, E::Commande, nullptr},
        {"FichierConfigImpresora", 1, 45, 0, E::Commande, &MdiCamA::ConfigureImpression},
        {"FichierPropos", 1, 46, 84, E::Commande, &MdiCamA::MontrePropos, "", true},
        {"FichierQuitte", 1, 47, 91, E::Commande, &MdiCamA::Quitter, "Ctrl+Q", true},
        {"FicImprimer", 0, 48, 0, E::Menu, nullptr},
        {"FicImprimerProfil", 1, 49, 0, E::Marque, nullptr},
        {"FicImprimerDonnees", 1, 50, 0, E::Marque, nullptr},
        {"FicImprimerFicImprimerGraph", 1, 51, 0, E::Marque, nullptr},
        {"FicImprimerGraphMouvement", 1, 52, 0, E::Marque, nullptr},
        {"FicImprimerPointForces", 1, 53, 0, E::Marque, nullptr},
        {"FicImprimerPointLoi", 1, 54, 0, E::Marque, nullptr},
        {"FicImprimerPointsRemarq", 1, 55, 0, E::Marque, nullptr},
        {"FicImprimerImprimer", 1, 56, 88, E::Commande, &MdiCamA::Imprimer, "Ctrl+P", true},
        {"FicImprimerSauveImpre", 1, 57, 0, E::Commande, &MdiCamA::SauveConfiguration},
        {"FichierClasiques", 0, 58, 0, E::Menu, nullptr},
        {"FichierClasiquesLoisStad", 1, 59, 89, E::Commande, &MdiCamA::MontreLoisUsuelles},
        {"FichierClasiquesLoisSpe", 1, 60, 90, E::Commande, &MdiCamA::MontreLoisSpeciales},
        {"FichierClasiquesInerties", 1, 61, 83, E::Commande, nullptr},
        {"FichierGenerateurs", 0, 62, 0, E::Menu, nullptr},
        {"FichierGenerateursCroixMalte", 1, 63, 0, E::Commande, nullptr},
        {"FichierGenerateursIndexeurs", 1, 64, 0, E::Commande, nullptr},
        {"FichierGenerateursBiellePiston", 1, 65, 0, E::Commande, nullptr},
        {"FichierGenerateursBielleCre", 1, 67, 0, E::Commande, nullptr},
        {"FichierGenerateursManiBieMani", 1, 70, 0, E::Commande, nullptr},
        {"FichierGenerateursEtauLimeur", 1, 71, 0, E::Commande, nullptr},
        {"FichierGenerateursExcentrique", 1, 74, 0, E::Commande, nullptr},
        {"FichierGenerateursGlissiere", 1, 76, 0, E::Commande, nullptr},
    };
    // clang-format on
    return menu;
}

std::span<const MdiCamA::BoutonBarre> MdiCamA::LaBarre() {
    // clang-format off
    static constexpr BoutonBarre barre[] = {
        {"Nouveau", "FichierNouveau", 80, &MdiCamA::AjouteEtudes},
        {"Ouvre", "FichierOuvrir", 81, &MdiCamA::AjouteOuvertures},
        {"Sauve", "FichierSauvegarde", 82},
        {"Inerties", "FichierClasiquesInerties", 83, nullptr, true},
        {"Propos", "FichierPropos", 84},
        {"Imprime", "FicImprimerImprimer", 88},
        {"LoisMouvement", "FichierClasiquesLoisStad", 89, &MdiCamA::AjouteLoisUsuelles, true},
        {"LoisMouvementSpe", "FichierClasiquesLoisSpe", 90, &MdiCamA::AjouteLoisSpeciales},
        {"Quitter", "FichierQuitte", 91, nullptr, true},
    };
    // clang-format on
    return barre;
}

void MdiCamA::ConstruitMenus() {
    std::vector<QMenu*> parents; // the open menu of each level
    for (const EntreeMenu& entree : LeMenu()) {
        parents.resize(static_cast<std::size_t>(entree.niveau));
        if (entree.separe) parents.back()->addSeparator();
        if (entree.genre == EntreeMenu::Menu) {
            auto* menu = new QMenu(this);
            menu->setObjectName(QString::fromLatin1(entree.nom));
            if (parents.empty())
                menuBar()->addMenu(menu);
            else
                parents.back()->addMenu(menu);
            parents.push_back(menu);
            continue;
        }
        QAction* action = AjouteAction(*parents.back(), entree.nom, QString());
        action->setShortcut(QKeySequence(QString::fromLatin1(entree.raccourci)));
        action->setCheckable(entree.genre == EntreeMenu::Marque);
        action->setEnabled(entree.commande || entree.genre == EntreeMenu::Marque);
        if (entree.commande) connect(action, &QAction::triggered, this, entree.commande);
    }
    ConstruitLangues(*findChild<QMenu*>(QStringLiteral("FichierLanguesTravail")));
}

void MdiCamA::ConstruitLangues(QMenu& menu) {
    auto* groupe = new QActionGroup(&menu);
    for (const std::string& langue : LanguesCompletes(LaBase)) {
        QAction* action = AjouteAction(menu, NomLangueMenu, Q(langue));
        action->setCheckable(true);
        groupe->addAction(action);
        connect(action, &QAction::triggered, this, [this, langue] { ChangeLangue(langue); });
    }
}

void MdiCamA::ConstruitBarre() {
    barre_ = addToolBar(QString());
    barre_->setObjectName(QStringLiteral("Toolbar1"));
    barre_->setMovable(false);
    barre_->setContextMenuPolicy(Qt::PreventContextMenu); // it cannot be hidden
    for (const BoutonBarre& bouton : LaBarre()) {
        if (bouton.separe) barre_->addSeparator();
        QAction* action = barre_->addAction(IconeBarre(QString::fromLatin1(bouton.cle)), QString());
        action->setObjectName(QString::fromLatin1(bouton.cle));
        QAction* entree = Action(bouton.entree);
        action->setEnabled(entree->isEnabled());
        connect(action, &QAction::triggered, entree, &QAction::trigger);
        if (bouton.sousMenu) {
            auto* menu = new QMenu(this);
            menu->setObjectName(QStringLiteral("Menu") + action->objectName());
            action->setMenu(menu);
            qobject_cast<QToolButton*>(barre_->widgetForAction(action))->setPopupMode(QToolButton::MenuButtonPopup);
        }
    }
}

void MdiCamA::AjouteEtudes(QMenu& menu) {
    for (const EntreeDeroulante& entree : LesEtudes) {
        const ChoixEtude& choix = ChoixDeLImage(entree.cible);
        QAction* action = AjouteAction(menu, entree.cle, QTexte(choix.texte));
        action->setEnabled(TrouveEcran(choix.ecran) != nullptr);
        connect(action, &QAction::triggered, this, [this, &choix] {
            if (!RotationEmpeche()) CommenceEtude(choix);
        });
    }
}

void MdiCamA::AjouteOuvertures(QMenu& menu) {
    for (const EntreeDeroulante& entree : LesOuvertures) {
        const TypeEtude* type = TrouveType(entree.cible);
        QAction* action = AjouteAction(menu, entree.cle, QTexte(type->titre));
        action->setEnabled(type->Disponible());
        connect(action, &QAction::triggered, this, [this, type] { OuvreParType(type); });
    }
}

void MdiCamA::AjouteLois(QMenu& menu, std::span<const char* const> cles) {
    for (const char* cle : cles) {
        const ChoixLoi* choix = TrouveChoixLoi(cle);
        QAction* action = AjouteAction(menu, cle, QTexte(choix->texte));
        connect(action, &QAction::triggered, this, [this, choix] { EtudieLoi(*choix); });
    }
}

void MdiCamA::AjouteLoisUsuelles(QMenu& menu) {
    AjouteLois(menu, LesLoisUsuelles);
}

void MdiCamA::AjouteLoisSpeciales(QMenu& menu) {
    AjouteLois(menu, LesLoisSpeciales);
}

void MdiCamA::AppliqueTextes() {
    setWindowTitle(QTexte(TexteTitreFenetre));
    barre_->setWindowTitle(QTexte(TexteTitreBarre));
    for (const EntreeMenu& entree : LeMenu()) {
        if (entree.genre == EntreeMenu::Menu) {
            findChild<QMenu*>(QString::fromLatin1(entree.nom))->setTitle(QTexte(entree.texte));
            continue;
        }
        Action(entree.nom)->setText(QTexte(entree.texte));
        Action(entree.nom)->setStatusTip(QTexte(entree.aide));
    }
    for (const BoutonBarre& bouton : LaBarre()) {
        QAction* action = Action(bouton.cle);
        action->setText(QTexte(bouton.aide));
        action->setToolTip(QTexte(bouton.aide));
        action->setStatusTip(QTexte(bouton.aide));
        if (!bouton.sousMenu) continue;
        action->menu()->clear();
        (this->*bouton.sousMenu)(*action->menu());
    }
    for (QAction* langue : findChildren<QAction*>(QString::fromLatin1(NomLangueMenu)))
        langue->setChecked(S(langue->text()) == LangueTravail);
}

QAction* MdiCamA::Action(const char* nom) const {
    auto* action = findChild<QAction*>(QString::fromLatin1(nom));
    if (!action) throw std::logic_error(std::string("no action ") + nom);
    return action;
}

std::vector<QAction*> MdiCamA::MarquesImpression() const {
    std::vector<QAction*> marques;
    for (const EntreeMenu& entree : LeMenu())
        if (entree.genre == EntreeMenu::Marque) marques.push_back(Action(entree.nom));
    return marques;
}
