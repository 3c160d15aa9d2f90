#include "inertia/screens/GrillesInertie.h"

#include "core/Nombres.h"
#include "drawing/FiguresSolides.h"
#include "widgets/Chaines.h"
#include "widgets/DessinQt.h"
#include "widgets/Grille.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace {

constexpr QSize TailleImage(44, 33);

/// What the tip of a row says: the solid, and its values in full precision.
QString Bulle(const LigneAssemblage& ligne) {
    QString bulle = Q(NomSolide(*TrouveSolide(ligne.saisie.TypeSolide)));
    for (std::size_t i = 0; i < ligne.exactes.size(); ++i) {
        const GrandeurInertie& grandeur = LesGrandeurs()[i];
        bulle += "\n" + QTexte(grandeur.texte) + " = " + Q(StrTrim(ligne.exactes[i])) + " " + QTexte(grandeur.unite);
    }
    return bulle;
}

/// Draws the pictures of the first column and shows the tips.
class PeintreListe : public QStyledItemDelegate {
public:
    PeintreListe(const Assemblage& assemblage, QObject* parent)
        : QStyledItemDelegate(parent), assemblage_(assemblage) {}

    void paint(QPainter* peintre, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyledItemDelegate::paint(peintre, option, index);
        const LigneAssemblage* ligne = Ligne(index);
        if (ligne == nullptr || index.column() != 0) return;
        DessinQt dessin(*peintre, QRectF(option.rect), option.palette);
        DessineSolide(dessin, ligne->saisie.TypeSolide, {false, {}});
    }

    bool helpEvent(QHelpEvent* evenement, QAbstractItemView* vue, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        const LigneAssemblage* ligne = Ligne(index);
        if (ligne == nullptr || evenement->type() != QEvent::ToolTip)
            return QStyledItemDelegate::helpEvent(evenement, vue, option, index);
        QToolTip::showText(evenement->globalPos(), Bulle(*ligne), vue);
        return true;
    }

private:
    const LigneAssemblage* Ligne(const QModelIndex& index) const {
        const auto rang = static_cast<std::size_t>(index.row());
        return index.isValid() && rang < assemblage_.lignes.size() ? &assemblage_.lignes[rang] : nullptr;
    }

    const Assemblage& assemblage_;
};

} // namespace

void PrepareListe(Grille& grille, const Assemblage& assemblage) {
    grille.setItemDelegate(new PeintreListe(assemblage, &grille));
    RemplitListe(grille, assemblage);
    for (int colonne = 0; colonne < grille.NombreColonnes(); ++colonne)
        grille.setColumnHidden(colonne, ColonneCachee(colonne));
    grille.setSelectionBehavior(QAbstractItemView::SelectRows);
    grille.setSelectionMode(QAbstractItemView::SingleSelection);
    grille.verticalHeader()->setDefaultSectionSize(TailleImage.height());
}

void RemplitListe(Grille& grille, const Assemblage& assemblage) {
    TableTexte table = TableListe(assemblage);
    // A picture has no text: the heading of its column keeps it wide enough.
    table.colonnes.front().titre =
        std::string(static_cast<std::size_t>(TailleImage.width() / grille.fontMetrics().horizontalAdvance(' ')), ' ');
    grille.Remplit(std::move(table));
}

void RemplitTotaux(Grille& grille, const Assemblage& assemblage) {
    constexpr int colonneNoms = 2;
    grille.Remplit(TableTotaux(assemblage));
    grille.horizontalHeader()->moveSection(grille.horizontalHeader()->visualIndex(colonneNoms), 0);
}
