#include "widgets/Grille.h"

#include "core/ErreurExecution.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"

#include <QAbstractTableModel>
#include <QClipboard>
#include <QEvent>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>
#include <numeric>

class ModeleGrille : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void Remplit(Grille::Contenu contenu) {
        beginResetModel();
        contenu_ = std::move(contenu);
        endResetModel();
    }

    const Grille::Contenu& Contenu() const { return contenu_; }
    bool EstTexte(int colonne) const {
        return static_cast<std::size_t>(colonne) < contenu_.texte.size() &&
               contenu_.texte[static_cast<std::size_t>(colonne)];
    }

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : contenu_.lignes; }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(contenu_.entetes.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid()) return {};
        if (role == Qt::DisplayRole) return Q(Cellule(index.row(), index.column()));
        if (role == Qt::TextAlignmentRole)
            return QVariant((EstTexte(index.column()) ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
        return {};
    }

    QVariant headerData(int section, Qt::Orientation sens, int role) const override {
        if (sens != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
        if (role == Qt::DisplayRole) return Q(contenu_.entetes[static_cast<std::size_t>(section)]);
        return {};
    }

    std::string Cellule(int ligne, int colonne) const {
        if (ligne < 0 || ligne >= rowCount() || colonne < 0 || colonne >= columnCount()) return {};
        try {
            return contenu_.cellule(ligne, colonne);
        } catch (const ErreurExecution&) {
            // The tables behind were made anew, smaller; their owner fills this grid again right after.
            return {};
        }
    }

private:
    Grille::Contenu contenu_;
};

namespace {

/// Rows looked at to size a column.
constexpr int LignesEchantillon = 40;

} // namespace

Grille::Grille(QWidget* parent) : QTableView(parent), modele_(new ModeleGrille(this)) {
    setModel(modele_);
    setFont(PoliceTabulaire(font()));
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setSelectionMode(ContiguousSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + fontMetrics().height() / 3);
}

void Grille::Remplit(Contenu contenu) {
    modele_->Remplit(std::move(contenu));
    MesureColonnes();
    PlaceColonnes();
}

std::string Grille::Cellule(int ligne, int colonne) const {
    return modele_->Cellule(ligne, colonne);
}
int Grille::NombreLignes() const {
    return modele_->rowCount();
}
int Grille::NombreColonnes() const {
    return modele_->columnCount();
}

void Grille::MesureColonnes() {
    const QFontMetrics cellules(font());
    const QFontMetrics entetes(horizontalHeader()->font());
    const int marge =
        2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this) + cellules.horizontalAdvance('0');
    const int lignes = modele_->rowCount();
    const int pas = std::max(1, lignes / LignesEchantillon);
    largeurs_.assign(static_cast<std::size_t>(modele_->columnCount()), 0);
    for (int colonne = 0; colonne < modele_->columnCount(); ++colonne) {
        int largeur = 0;
        for (const QString& morceau : Q(modele_->Contenu().entetes[static_cast<std::size_t>(colonne)]).split('\n'))
            largeur = std::max(largeur, entetes.horizontalAdvance(morceau));
        for (int ligne = 0; ligne < lignes; ligne += pas)
            largeur = std::max(largeur, cellules.horizontalAdvance(Q(Cellule(ligne, colonne))));
        if (lignes > 0) largeur = std::max(largeur, cellules.horizontalAdvance(Q(Cellule(lignes - 1, colonne))));
        largeurs_[static_cast<std::size_t>(colonne)] = largeur + marge;
    }
}

void Grille::PlaceColonnes() {
    const int colonnes = static_cast<int>(largeurs_.size());
    if (colonnes == 0) return;
    const int reste = std::max(0, viewport()->width() - std::accumulate(largeurs_.begin(), largeurs_.end(), 0));
    for (int colonne = 0; colonne < colonnes; ++colonne) {
        const int supplement = reste / colonnes + (colonne < reste % colonnes ? 1 : 0);
        setColumnWidth(colonne, largeurs_[static_cast<std::size_t>(colonne)] + supplement);
    }
}

QString Grille::TexteSelection() const {
    const QItemSelection selection = selectionModel()->selection();
    QStringList lignes;
    for (const QItemSelectionRange& plage : selection)
        for (int ligne = plage.top(); ligne <= plage.bottom(); ++ligne) {
            QStringList cellules;
            for (int colonne = plage.left(); colonne <= plage.right(); ++colonne)
                cellules << Q(Cellule(ligne, colonne));
            lignes << cellules.join('\t');
        }
    return lignes.isEmpty() ? QString() : lignes.join('\n') + '\n';
}

void Grille::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->matches(QKeySequence::Copy)) {
        const QString texte = TexteSelection();
        if (!texte.isEmpty()) QGuiApplication::clipboard()->setText(texte);
        evenement->accept();
        return;
    }
    QTableView::keyPressEvent(evenement);
}

void Grille::resizeEvent(QResizeEvent* evenement) {
    QTableView::resizeEvent(evenement);
    PlaceColonnes();
}

void Grille::changeEvent(QEvent* evenement) {
    QTableView::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange) {
        verticalHeader()->setDefaultSectionSize(fontMetrics().height() + fontMetrics().height() / 3);
        MesureColonnes();
        PlaceColonnes();
    }
}
