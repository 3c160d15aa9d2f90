#include "cams/screens/ListeLois.h"

#include "laws/ChoixLois.h"
#include "widgets/Chaines.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace {

class DelegueLoi : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const int texte = TexteLoi(S(index.data().toString()));
        if (texte != 0) option->text += QStringLiteral(" \u2013 ") + QTexte(texte);
    }
};

} // namespace

void NommeLois(QComboBox& liste) {
    liste.setItemDelegate(new DelegueLoi(&liste));
    QAbstractItemView& vue = *liste.view();
    vue.setTextElideMode(Qt::ElideNone);
    vue.setMinimumWidth(vue.sizeHintForColumn(0) + vue.verticalScrollBar()->sizeHint().width());
}
