#include "widgets/Grille.h"

#include "core/ErreurExecution.h"
#include "core/FichierEntier.h"
#include "data/Demarrage.h"
#include "platform/Dialogues.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"
#include "widgets/TextesWidgets.h"

#include <QAbstractTableModel>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QEvent>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QMenu>

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

enum NumerosTexte { TexteCopier = 754, TexteToutSelectionner = 753 };

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
    // On paper some headings stand above nothing; here they would only take room.
    if (table.lignes > 0) std::erase_if(table.colonnes, [](const ColonneTexte& colonne) { return !colonne.cellule; });
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

void Grille::Prefere(QSize taille) {
    preferee_ = taille;
    updateGeometry();
}

QSize Grille::sizeHint() const {
    return preferee_.isValid() ? preferee_ : QTableView::sizeHint();
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
    for (const QItemSelectionRange& plage : selection) {
        const PlageTable cellules{plage.top(), plage.height(), plage.left(), plage.width()};
        AjouteEnTetes(texte, modele_->Table(), cellules, '\t', "\n");
        AjouteCellules(texte, modele_->Table(), cellules, '\t', "\n");
    }
    return Q(texte);
}

void Grille::Copie() {
    const QString texte = TexteSelection();
    if (!texte.isEmpty()) QGuiApplication::clipboard()->setText(texte);
}

/// A spreadsheet reads such a file right by a double click: the separators are those of the machine's settings.
void Grille::EnregistreCsv() {
    const auto chemin =
        LesDialogues().FichierASauver({Texte(TexteTableCsv), CheminEtudes, "table.csv", {{"CSV (*.csv)", "*.csv"}}});
    if (!chemin || chemin->empty()) return;
    const bool virgule = QLocale::system().decimalPoint() == QLatin1String(",");
    const std::string utf8 = "\xEF\xBB\xBF";
    EcritFichierEntier(*chemin, utf8 + ComposeCsv(modele_->Table(), virgule ? ';' : ',', virgule ? ',' : '.'));
}

void Grille::contextMenuEvent(QContextMenuEvent* evenement) {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("MenuGrille"));
    const auto ajoute = [&](int texte, bool possible, auto fait) {
        QAction* action = menu.addAction(QTexte(texte), this, fait);
        action->setEnabled(possible);
        return action;
    };
    ajoute(TexteCopier, selectionModel()->hasSelection(), [this] { Copie(); })->setShortcut(QKeySequence::Copy);
    ajoute(TexteToutSelectionner, NombreLignes() > 0, [this] { selectAll(); })->setShortcut(QKeySequence::SelectAll);
    menu.addSeparator();
    ajoute(TexteEnregistrerCsv, NombreLignes() > 0, [this] { EnregistreCsv(); });
    menu.exec(evenement->globalPos());
}

void Grille::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->matches(QKeySequence::Copy)) {
        Copie();
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
