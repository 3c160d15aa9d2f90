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

class ModeleGrille : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void Remplit(TableTexte table) {
        beginResetModel();
        table_ = std::move(table);
        endResetModel();
    }

    const TableTexte& Table() const { return table_; }

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : table_.lignes; }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(table_.colonnes.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid()) return {};
        if (role == Qt::DisplayRole) return Q(Cellule(index.row(), index.column()));
        if (role == Qt::TextAlignmentRole) {
            const bool gauche = table_.colonnes[static_cast<std::size_t>(index.column())].cote == Cote::Gauche;
            return QVariant((gauche ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
        }
        return {};
    }

    QVariant headerData(int section, Qt::Orientation sens, int role) const override {
        if (sens != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
        if (role == Qt::DisplayRole) return Q(table_.EnTete(section));
        return {};
    }

    std::string Cellule(int ligne, int colonne) const {
        try {
            return table_.Cellule(ligne, colonne);
        } catch (const ErreurExecution&) {
            // The tables behind were made anew, smaller; their owner fills this grid again right after.
            return {};
        }
    }

private:
    TableTexte table_;
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

void Grille::Remplit(TableTexte table) {
    modele_->Remplit(std::move(table));
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
        for (const QString& morceau : Q(modele_->Table().EnTete(colonne)).split('\n'))
            largeur = std::max(largeur, entetes.horizontalAdvance(morceau));
        for (int ligne = 0; ligne < lignes; ligne += pas)
            largeur = std::max(largeur, cellules.horizontalAdvance(Q(Cellule(ligne, colonne))));
        if (lignes > 0) largeur = std::max(largeur, cellules.horizontalAdvance(Q(Cellule(lignes - 1, colonne))));
        largeurs_[static_cast<std::size_t>(colonne)] = largeur + marge;
    }
}

void Grille::PlaceColonnes() {
    std::vector<int> visibles;
    for (int colonne = 0; colonne < static_cast<int>(largeurs_.size()); ++colonne)
        if (!isColumnHidden(colonne)) visibles.push_back(colonne);
    if (visibles.empty()) return;
    int besoin = 0;
    for (const int colonne : visibles) besoin += largeurs_[static_cast<std::size_t>(colonne)];
    const int nombre = static_cast<int>(visibles.size()), reste = std::max(0, viewport()->width() - besoin);
    for (int i = 0; i < nombre; ++i) {
        const int colonne = visibles[static_cast<std::size_t>(i)];
        setColumnWidth(colonne,
                       largeurs_[static_cast<std::size_t>(colonne)] + reste / nombre + (i < reste % nombre ? 1 : 0));
    }
}

QString Grille::TexteSelection() const {
    std::string texte;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange& plage : selection)
        AjouteCellules(texte, modele_->Table(), {plage.top(), plage.height(), plage.left(), plage.width()}, '\t', "\n");
    return Q(texte);
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
