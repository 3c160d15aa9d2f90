#include "indexers/screens/ListeCles.h"

#include "core/Nombres.h"
#include "widgets/Chaines.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

ListeCles::ListeCles(const char* nom, bool nouvelle, QWidget* parent) : QComboBox(parent) {
    setObjectName(QString::fromLatin1(nom));
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToContents);
    setMinimumContentsLength(10);
    if (nouvelle) {
        setEditable(true);
        // A new key may begin as one that is there: nothing completes it.
        setCompleter(nullptr);
        connect(lineEdit(), &QLineEdit::returnPressed, this, &ListeCles::Suivant);
    }
    connect(this, &QComboBox::activated, this, &ListeCles::Choisie);
}

void ListeCles::Offre(const std::vector<std::string>& cles) {
    const QSignalBlocker muet(this);
    const std::string gardee = Cle();
    clear();
    for (const std::string& cle : cles) addItem(Q(cle));
    Montre(gardee);
}

std::string ListeCles::Cle() const {
    return Trim(S(currentText()));
}

void ListeCles::Montre(const std::string& cle) {
    setCurrentIndex(cle.empty() ? -1 : findText(Q(cle), Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (isEditable()) setEditText(Q(cle));
}

void ListeCles::keyPressEvent(QKeyEvent* evenement) {
    if (!isEditable() && (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter)) {
        evenement->accept(); // the default button of the screen must not go off
        emit Suivant();
        return;
    }
    QComboBox::keyPressEvent(evenement);
    if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter) evenement->accept();
}

void ListeCles::wheelEvent(QWheelEvent* evenement) {
    evenement->ignore(); // it scrolls the sheet, and changes no input on its way
}
