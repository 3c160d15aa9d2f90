#include "indexers/screens/PanneauResultats.h"

#include "widgets/Chaines.h"
#include "widgets/DessinQt.h"
#include "widgets/Etiquettes.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>

#include <algorithm>

namespace {

constexpr const char* GabaritValeur = "-000000.000 ??";

/// Lines of the sheet that a group takes, its title and frame among them.
std::size_t LignesOccupees(const GroupeResultats& groupe) {
    constexpr std::size_t TitreEtCadre = 2;
    return groupe.lignes.size() + TitreEtCadre;
}

void AjouteDistincte(std::vector<std::string>& notes, const std::string& note) {
    if (!note.empty() && std::find(notes.begin(), notes.end(), note) == notes.end()) notes.push_back(note);
}

} // namespace

QLabel* FaitNote(const std::string& texte) {
    QLabel* note = FaitUnite(Q(texte));
    note->setWordWrap(true);
    note->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return note;
}

PanneauResultats::PanneauResultats(std::size_t colonnes, QWidget* parent)
    : QWidget(parent), colonnes_(colonnes), disposition_(new QVBoxLayout(this)) {
    disposition_->setContentsMargins({});
}

void PanneauResultats::Montre(const std::vector<GroupeResultats>& groupes, const std::vector<TableResultats>& tables,
                              const std::vector<std::string>& notes) {
    rouges_.clear();
    while (QLayoutItem* ancien = disposition_->takeAt(0)) {
        delete ancien->widget();
        delete ancien;
    }
    if (!groupes.empty()) disposition_->addWidget(FaitColonnes(groupes));
    for (const TableResultats& table : tables) disposition_->addWidget(FaitTable(table));
    for (const std::string& note : notes) disposition_->addWidget(FaitNote(note));
    disposition_->addStretch();
}

/// Columns of about the same height: each group stands in the one that its middle falls into.
QWidget* PanneauResultats::FaitColonnes(const std::vector<GroupeResultats>& groupes) {
    auto* rangee = new QWidget;
    auto* disposition = new QHBoxLayout(rangee);
    disposition->setContentsMargins({});
    std::vector<QVBoxLayout*> piles(colonnes_);
    for (QVBoxLayout*& pile : piles) disposition->addLayout(pile = new QVBoxLayout, 1);
    std::size_t total = 0, avant = 0;
    for (const GroupeResultats& groupe : groupes) total += LignesOccupees(groupe);
    for (const GroupeResultats& groupe : groupes) {
        const std::size_t lignes = LignesOccupees(groupe);
        piles[(2 * avant + lignes) * colonnes_ / (2 * total)]->addWidget(FaitGroupe(groupe));
        avant += lignes;
    }
    for (QVBoxLayout* pile : piles) pile->addStretch();
    return rangee;
}

QWidget* PanneauResultats::FaitGroupe(const GroupeResultats& groupe) {
    auto* cadre = new QGroupBox(Q(groupe.titre));
    auto* grille = new QGridLayout(cadre);
    std::vector<std::string> notes;
    for (const LigneResultat& ligne : groupe.lignes) {
        const int rang = grille->rowCount();
        grille->addWidget(new QLabel(Q(ligne.libelle)), rang, 0);
        grille->addWidget(FaitValeurDe(ligne), rang, 1);
        grille->addWidget(FaitUnite(Q(ligne.unite)), rang, 2);
        AjouteDistincte(notes, ligne.note);
    }
    grille->setColumnStretch(0, 1);
    AjouteNotes(*grille, notes);
    return cadre;
}

QWidget* PanneauResultats::FaitTable(const TableResultats& table) {
    auto* cadre = new QGroupBox(Q(table.titre));
    auto* grille = new QGridLayout(cadre);
    int colonne = 1;
    for (const std::string& titre : table.colonnes)
        grille->addWidget(FaitUnite(Q(titre)), 0, colonne++, Qt::AlignRight | Qt::AlignVCenter);
    std::vector<std::string> notes;
    for (const TableResultats::Rangee& rangee : table.rangees) {
        const int rang = grille->rowCount();
        grille->addWidget(new QLabel(Q(rangee.libelle)), rang, 0);
        colonne = 1;
        for (const LigneResultat& cellule : rangee.cellules) {
            grille->addWidget(FaitValeurDe(cellule), rang, colonne++);
            AjouteDistincte(notes, cellule.note);
        }
    }
    grille->setColumnStretch(0, 1);
    AjouteNotes(*grille, notes);
    return cadre;
}

void PanneauResultats::AjouteNotes(QGridLayout& grille, const std::vector<std::string>& notes) {
    for (const std::string& note : notes) grille.addWidget(FaitNote(note), grille.rowCount(), 0, 1, -1);
}

QLabel* PanneauResultats::FaitValeurDe(const LigneResultat& ligne) {
    QLabel* valeur = FaitValeur(ligne.controle.c_str(), GabaritValeur);
    valeur->setText(Q(ligne.valeur) + (ligne.rouge ? QStringLiteral(" ") + MarqueRouge : QString()));
    valeur->setToolTip(Q(ligne.note));
    if (ligne.rouge) {
        rouges_.push_back(valeur);
        Colore(*valeur);
    }
    return valeur;
}

void PanneauResultats::Colore(QLabel& valeur) const {
    QPalette couleurs;
    couleurs.setColor(QPalette::WindowText, CouleurTrait(Couleur::Repere, palette()));
    valeur.setPalette(couleurs);
}

void PanneauResultats::changeEvent(QEvent* evenement) {
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange)
        for (QLabel* valeur : rouges_) Colore(*valeur);
}
