#include "globoidal/screens/EcranGlobique.h"

#include "core/Nombres.h"
#include "data/Textes.h"
#include "globoidal/DessinsGlobiques.h"
#include "globoidal/TextesGlobiques.h"
#include "indexers/screens/ListeCles.h"
#include "indexers/screens/PanneauLoi.h"
#include "indexers/screens/PanneauResultats.h"
#include "indexers/screens/PanneauSaisie.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Etiquettes.h"
#include "widgets/Nomme.h"
#include "widgets/ZoneDefilante.h"
#include "widgets/ZoneDessin.h"

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QStyle>
#include <QTimer>

#include <filesystem>

namespace {

constexpr int TexteResultats = 330, TexteGeometrie = 574;
constexpr double Symetrique = 0.5;

/// A sheet of results, as far off the edges of its tab as the fields are.
QWidget* FeuilleResultats(PanneauResultats* contenu) {
    const int marge = contenu->style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    contenu->layout()->setContentsMargins(marge, marge, marge, marge);
    return new ZoneDefilante(contenu);
}

} // namespace

EcranGlobique::EcranGlobique(const char* nom, int titre, Booleen16 DonneesEtude::*active,
                             const MecanismeGlobique& mecanisme, QWidget* parent)
    : EcranCalculateur(nom, titre, active, parent), mecanisme_(mecanisme) {}

void EcranGlobique::ComposeGlobique(const Groupes& groupes) {
    capacites_ = new PanneauResultats;
    geometrie_ = new PanneauResultats(2);
    section_ = Nomme(new ZoneDessin, "Section");
    limites_ = Nomme(new ZoneDessin, "Limites");
    fichier_ = Nomme(FaitNote({}), "FichierLoi");

    Composition composition;
    composition.colonnes = {{groupes.boitier, groupes.mouvement}, {groupes.galet}};
    for (PanneauLoi* loi : groupes.lois) composition.colonnes.back().push_back(loi);
    composition.colonnes.back().push_back(fichier_);
    if (groupes.lois.size() > 1) {
        composition.colonnes = {{groupes.boitier}, {groupes.mouvement, groupes.galet}, {}};
        for (PanneauLoi* loi : groupes.lois) composition.colonnes.back().push_back(loi);
        composition.colonnes.back().push_back(fichier_);
    }
    composition.panneaux = {groupes.boitier, groupes.mouvement, groupes.galet};
    composition.lois = groupes.lois;
    composition.bloques = {groupes.boitier, groupes.mouvement, groupes.galet};
    for (PanneauSaisie* panneau : composition.panneaux)
        for (QWidget* controle : panneau->Controles()) composition.ordre.push_back(controle);
    for (PanneauLoi* loi : groupes.lois)
        for (QWidget* controle : loi->Controles()) composition.ordre.push_back(controle);
    composition.resultats = {{FeuilleResultats(capacites_), TexteResultats},
                             {FeuilleResultats(geometrie_), TexteGeometrie},
                             {section_, TexteSection},
                             {FaitFeuilleParcours(), TexteParcours},
                             {limites_, TexteBarres}};
    composition.imprimer = "ImprimeCapacites";
    composition.sauvegarde = false;
    composition.derouleVide = true;
    Compose(composition);

    VideAvecLeNom("Modele", {"Entraxe", "RayonTourelle", "InertieTourelle"});
    VideAvecLeNom("ReferenceGalet", {"DiametreGalet", "HauteurGalet", "CapaciteB10", "CapaciteLimite"});
    const auto mene = [this](PanneauSaisie* panneau, QWidget* controle) {
        connect(panneau, &PanneauSaisie::Remplie, this, [this, controle] {
            if (!nomSeTape_) controle->setFocus(Qt::TabFocusReason);
        });
    };
    mene(groupes.boitier, ControleDe("Precontrainte"));
    mene(groupes.galet, groupes.lois.front()->Controles().front());
    RevientAuxSymetries(groupes.lois);
    for (PanneauLoi* loi : groupes.lois) connect(loi, &PanneauLoi::FichierChoisi, this, [this] { ChoisitFichier(); });
}

QWidget* EcranGlobique::FaitFeuilleParcours() {
    parcours_ = Nomme(new ZoneDessin, "Parcours");
    part_ = Nomme(new QComboBox, "PartInertie");
    for (std::size_t k = 0; k < NombreParts; ++k) part_->addItem(Q(TexteCourt(PartInertie(k))) + " %");
    part_->setCurrentIndex(static_cast<int>(NombreParts / 2));
    connect(part_, &QComboBox::currentIndexChanged, parcours_, [this] { parcours_->update(); });
    auto* feuille = new QWidget;
    auto* pile = new QVBoxLayout(feuille);
    auto* rangee = new QHBoxLayout;
    rangee->addWidget(new QLabel(QTexte(TextePartMontree)));
    rangee->addWidget(part_);
    rangee->addStretch();
    pile->addLayout(rangee);
    pile->addWidget(parcours_, 1);
    return feuille;
}

void EcranGlobique::VideAvecLeNom(const char* liste, const std::vector<std::string>& membres) {
    auto* noms = qobject_cast<ListeCles*>(ControleDe(liste));
    connect(noms, &QComboBox::editTextChanged, this, [this, noms, membres] {
        for (const std::string& membre : membres)
            if (auto* champ = qobject_cast<ChampNombre*>(ControleDe(membre))) champ->clear();
        if (noms->findText(noms->currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive) < 0) return;
        nomSeTape_ = true; // a longer name may follow: the focus stays
        emit noms->Choisie();
        nomSeTape_ = false;
    });
}

/// A symmetry that no law can have is not left by the keys.
void EcranGlobique::RevientAuxSymetries(const std::vector<PanneauLoi*>& lois) {
    for (PanneauLoi* loi : lois) {
        auto* champ = qobject_cast<ChampNombre*>(loi->Controles().back());
        champ->Montre(Symetrique);
        connect(qApp, &QApplication::focusChanged, champ, [this, champ](QWidget* avant, QWidget* apres) {
            const bool dansEcran =
                apres != nullptr && isAncestorOf(apres) && apres->objectName() != QStringLiteral("Quitter");
            if (avant != champ || !dansEcran || !champ->isEnabled()) return;
            const double symetrie = champ->Valeur();
            if (symetrie <= 0.0 || symetrie >= 1.0)
                QTimer::singleShot(0, champ, [champ] { champ->setFocus(Qt::OtherFocusReason); });
        });
    }
}

bool EcranGlobique::DemandeFichier(std::string& fichier) {
    fichier = DemandeFichierLoi();
    const std::filesystem::path chemin(fichier);
    fichier_->setText(fichier.empty() ? QString() : QTexte(279) + " : " + QChemin(chemin.filename()));
    fichier_->setToolTip(Q(fichier));
    return !fichier.empty();
}

void EcranGlobique::VideLoi(const char* membre) {
    auto* liste = qobject_cast<ListeCles*>(ControleDe(membre));
    liste->Montre({});
    liste->setFocus(Qt::OtherFocusReason);
}

/// A turret too large for its casing is blanked.
std::optional<FauteSaisie> EcranGlobique::ChercheFaute() {
    auto faute = ChercheFauteDonnees();
    if (faute && mecanisme_.RayonTourelle / 2 > mecanisme_.Entraxe)
        if (auto* champ = qobject_cast<ChampNombre*>(ControleDe("RayonTourelle"))) champ->clear();
    return faute;
}

void EcranGlobique::MontreResultats() {
    const RapportGlobique rapport = Rapport();
    capacites_->Montre({}, rapport.capacites, rapport.notes);
    geometrie_->Montre(rapport.geometrie);
    section_->Peint(rapport.section);
    parcours_->Peint([this](Dessin& dessin) {
        DessineParcours(dessin, mecanisme_, resultat_, static_cast<std::size_t>(part_->currentIndex()));
    });
    limites_->Peint([this](Dessin& dessin) { DessineCapacites(dessin, resultat_); });
}

void EcranGlobique::Imprime(Imprimante& imprimante) const {
    ImprimeCapacites(imprimante, Rapport(), mecanisme_, resultat_);
}
