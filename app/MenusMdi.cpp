// The commands of the main window, and the menus and the tool bar that are built of them.
#include "app/CameType.h"
#include "app/Ecrans.h"
#include "app/MdiCamA.h"
#include "app/TextesApp.h"
#include "data/Demarrage.h"
#include "laws/ChoixLois.h"
#include "studies/TypesEtude.h"
#include "widgets/Chaines.h"
#include "widgets/Icones.h"
#include "widgets/Nomme.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include <stdexcept>

namespace {

constexpr int TexteTitreFenetre = 37;
constexpr int TexteTitreBarre = 79;
constexpr const char* NomLangueMenu = "FichierLanguesDisponibles";

/// The buttons of the tool bar by their keys, with a line where there is none.
constexpr const char* OrdreBarre[] = {"Nouveau", "Ouvre",   "Sauve", nullptr,         "Inerties",
                                      "Propos",  "Imprime", nullptr, "LoisMouvement", "LoisMouvementSpe",
                                      nullptr,   "Quitter"};

struct EntreeDeroulante {
    const char* cle;
    const char* cible; ///< control name of the chooser's picture, or `TypeCame`
};

constexpr EntreeDeroulante LesEtudes[] = {
    {"NouveauAngulaire", "Image1"},        {"NouveauLineaire", "Image2"},
    {"NouveauCylindre", "Image3"},         {"NouveauOscillation", "Image7"},
    {"NouveauGlobiqueIndexeur", "Image8"}, {"NouveauGlobiqueOscillateur", "Image6"},
    {"NouveauConjug", "Image11"},          {"NouveauCylindriqueIndexeur", "Image9"},
    {"NouveauConjugIndexeur", "Image10"},
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

std::span<const EntreeMenu> MdiCamA::LeMenu() {
    using E = EntreeMenu;
    using M = MdiCamA;
    // clang-format off
    static constexpr EntreeMenu menu[] = {
        {"Fichier", 0, 38, E::Menu},
        {"FichierNouveau", 1, 39, E::Ordre, {.fait = &M::Nouveau, .aide = 80, .raccourci = "Ctrl+N", .cle = "Nouveau", .deroule = &M::AjouteEtudes}},
        {"FichierOuvrir", 1, 40, E::Ordre, {.fait = &M::Ouvrir, .aide = 81, .raccourci = "Ctrl+O", .cle = "Ouvre", .deroule = &M::AjouteOuvertures}},
        {"FichierSauvegarde", 1, 41, E::Ordre, {.fait = &M::Sauvegarder, .aide = 82, .raccourci = "Ctrl+S", .cle = "Sauve"}},
        {"FichierRecents", 1, TexteFichiersRecents, E::Menu},
        {"FichierReprendre", 1, TexteReprendre, E::Ordre, {.fait = &M::Reprendre, .raccourci = "Ctrl+Shift+T"}},
        {"", 1, 0, E::Trait},
        {"FichierLangues", 1, 42, E::Menu},
        {"FichierLanguesTravail", 2, 43, E::Menu},
        {"FichierLanguesModification", 2, 44, E::Ordre, {.ecran = "Persona"}},
        {"FichierConfigImpresora", 1, 45, E::Ordre, {.fait = &M::ConfigureImpression}},
        {"", 1, 0, E::Trait},
        {"FichierAide", 1, 78, E::Ordre, {.fait = &M::MontreAide, .raccourci = "F1"}},
        {"FichierPropos", 1, 46, E::Ordre, {.fait = &M::MontrePropos, .aide = 84, .cle = "Propos"}},
        {"", 1, 0, E::Trait},
        {"FichierQuitte", 1, 47, E::Ordre, {.fait = &M::Quitter, .aide = 91, .raccourci = "Ctrl+Q", .cle = "Quitter"}},
        {"FicImprimer", 0, 48, E::Menu},
        {"FicImprimerProfil", 1, 49, E::Marque},
        {"FicImprimerDonnees", 1, 50, E::Marque},
        {"FicImprimerFicImprimerGraph", 1, 51, E::Marque},
        {"FicImprimerGraphMouvement", 1, 52, E::Marque},
        {"FicImprimerPointForces", 1, 53, E::Marque},
        {"FicImprimerPointLoi", 1, 54, E::Marque},
        {"FicImprimerPointsRemarq", 1, 55, E::Marque},
        {"", 1, 0, E::Trait},
        {"FicImprimerImprimer", 1, 56, E::Ordre, {.fait = &M::Imprimer, .aide = 88, .raccourci = "Ctrl+P", .cle = "Imprime"}},
        {"FicImprimerSauveImpre", 1, 57, E::Ordre, {.fait = &M::SauveConfiguration}},
        {"FichierClasiques", 0, 58, E::Menu},
        {"FichierClasiquesLoisStad", 1, 59, E::Ordre, {.fait = &M::MontreLoisUsuelles, .aide = 89, .cle = "LoisMouvement", .deroule = &M::AjouteLoisUsuelles}},
        {"FichierClasiquesLoisSpe", 1, 60, E::Ordre, {.fait = &M::MontreLoisSpeciales, .aide = 90, .cle = "LoisMouvementSpe", .deroule = &M::AjouteLoisSpeciales}},
        {"FichierClasiquesInerties", 1, 61, E::Ordre, {.ecran = "Inerties", .aide = 83, .cle = "Inerties"}},
        {"FichierGenerateurs", 0, 62, E::Menu},
        {"FichierGenerateursCroixMalte", 1, 63, E::Ordre},
        {"FichierGenerateursIndexeurs", 1, 64, E::Ordre},
        {"FichierGenerateursBiellePiston", 1, 65, E::Ordre},
        {"FichierGenerateursBielleCre", 1, 67, E::Ordre},
        {"FichierGenerateursManiBieMani", 1, 70, E::Ordre},
        {"FichierGenerateursEtauLimeur", 1, 71, E::Ordre},
        {"FichierGenerateursExcentrique", 1, 74, E::Ordre},
        {"FichierGenerateursGlissiere", 1, 76, E::Ordre},
    };
    // clang-format on
    return menu;
}

void MdiCamA::ConstruitMenus() {
    std::vector<QMenu*> parents; // the open menu of each level
    for (const EntreeMenu& entree : LeMenu()) {
        parents.resize(static_cast<std::size_t>(entree.niveau));
        if (entree.genre == EntreeMenu::Trait) {
            parents.back()->addSeparator();
        } else if (entree.genre == EntreeMenu::Menu) {
            auto* menu = Nomme(new QMenu(this), entree.nom);
            if (parents.empty())
                menuBar()->addMenu(menu);
            else
                parents.back()->addMenu(menu);
            parents.push_back(menu);
        } else {
            ConstruitCommande(*parents.back(), entree);
        }
    }
    Action("FichierReprendre")->setEnabled(travaux_.Offerts());
    MontreRecents();
    ConstruitLangues(*findChild<QMenu*>(QStringLiteral("FichierLanguesTravail")));
}

void MdiCamA::ConstruitCommande(QMenu& menu, const EntreeMenu& entree) {
    const Commande& commande = entree.commande;
    QAction* action = AjouteAction(menu, entree.nom, QString());
    action->setShortcut(QKeySequence(QString::fromLatin1(commande.raccourci)));
    action->setCheckable(entree.genre == EntreeMenu::Marque);
    if (commande.fait != nullptr)
        connect(action, &QAction::triggered, this, commande.fait);
    else if (commande.ecran != nullptr && TrouveEcran(commande.ecran) != nullptr)
        connect(action, &QAction::triggered, this, [this, ecran = commande.ecran] { MontreEcran(ecran); });
    else
        action->setEnabled(action->isCheckable());
}

void MdiCamA::ConstruitLangues(QMenu& menu) {
    auto* groupe = new QActionGroup(&menu);
    for (const std::string& langue : LanguesCompletes()) {
        QAction* action = AjouteAction(menu, NomLangueMenu, Q(langue));
        action->setCheckable(true);
        groupe->addAction(action);
        connect(action, &QAction::triggered, this, [this, langue] { ChangeLangue(langue); });
    }
}

void MdiCamA::ConstruitBarre() {
    barre_ = Nomme(addToolBar(QString()), "Toolbar1");
    barre_->setMovable(false);
    barre_->setContextMenuPolicy(Qt::PreventContextMenu); // it cannot be hidden
    for (const char* cle : OrdreBarre) {
        if (cle == nullptr) barre_->addSeparator();
        for (const EntreeMenu& entree : LeMenu())
            if (cle != nullptr && entree.commande.cle != nullptr && std::string_view(cle) == entree.commande.cle)
                ConstruitBouton(entree);
    }
}

void MdiCamA::ConstruitBouton(const EntreeMenu& entree) {
    const char* cle = entree.commande.cle;
    QAction* bouton = Nomme(barre_->addAction(IconeBarre(QString::fromLatin1(cle)), QString()), cle);
    QAction* action = Action(entree.nom);
    bouton->setEnabled(action->isEnabled());
    connect(bouton, &QAction::triggered, action, &QAction::trigger);
    if (entree.commande.deroule == nullptr) return;
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("Menu") + bouton->objectName());
    bouton->setMenu(menu);
    qobject_cast<QToolButton*>(barre_->widgetForAction(bouton))->setPopupMode(QToolButton::MenuButtonPopup);
}

void MdiCamA::AjouteEtudes(QMenu& menu) {
    for (const EntreeDeroulante& entree : LesEtudes) {
        const ChoixEtude& choix = ChoixDeLImage(entree.cible);
        QAction* action = AjouteAction(menu, entree.cle, QTexte(choix.Texte()));
        action->setEnabled(choix.Disponible());
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
        if (entree.genre == EntreeMenu::Trait) continue;
        if (entree.genre == EntreeMenu::Menu) {
            findChild<QMenu*>(QString::fromLatin1(entree.nom))->setTitle(QTexte(entree.texte));
            continue;
        }
        Action(entree.nom)->setText(QTexte(entree.texte));
        Action(entree.nom)->setStatusTip(QTexte(entree.commande.aide));
        if (entree.commande.cle != nullptr) AppliqueTextesBouton(entree.commande);
    }
    for (QAction* langue : findChildren<QAction*>(QString::fromLatin1(NomLangueMenu)))
        langue->setChecked(S(langue->text()) == LangueTravail);
    MontreAccueil();
}

void MdiCamA::AppliqueTextesBouton(const Commande& commande) {
    QAction* bouton = Action(commande.cle);
    bouton->setText(QTexte(commande.aide));
    bouton->setToolTip(QTexte(commande.aide));
    bouton->setStatusTip(QTexte(commande.aide));
    if (commande.deroule == nullptr) return;
    bouton->menu()->clear();
    (this->*commande.deroule)(*bouton->menu());
}

QAction* MdiCamA::Action(const char* nom) const {
    auto* action = findChild<QAction*>(QString::fromLatin1(nom));
    if (!action) throw std::logic_error(std::string("no action ") + nom);
    return action;
}

std::vector<QAction*> MdiCamA::EntreesMarques() const {
    std::vector<QAction*> marques;
    for (const EntreeMenu& entree : LeMenu())
        if (entree.genre == EntreeMenu::Marque) marques.push_back(Action(entree.nom));
    return marques;
}

std::array<bool, NombreImpressions> MdiCamA::MarquesCochees() const {
    std::array<bool, NombreImpressions> marques{};
    const std::vector<QAction*> entrees = EntreesMarques();
    for (std::size_t i = 0; i < entrees.size(); ++i) marques.at(i) = entrees[i]->isChecked();
    return marques;
}
