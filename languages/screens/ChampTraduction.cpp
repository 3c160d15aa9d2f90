#include "languages/screens/ChampTraduction.h"

#include "core/Utf8.h"
#include "widgets/Chaines.h"

#include <QKeyEvent>
#include <QMimeData>

#include <algorithm>

namespace {

constexpr int Lignes = 4, Colonnes = 44;

/// More than any wording has.
constexpr qsizetype TexteCollableMax = 10000;

} // namespace

ChampTraduction::ChampTraduction(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &ChampTraduction::RetientLongueur);
}

void ChampTraduction::Montre(const std::string& texte) {
    const QSignalBlocker muet(this);
    setPlainText(Q(texte));
    longueurAvant_ = Caracteres(texte);
    if (hasFocus()) selectAll();
}

std::string ChampTraduction::Traduction() const {
    // As it stands: the plain text would change special spaces.
    return S(document()->toRawText().replace(QChar::ParagraphSeparator, '\n').replace(QChar::LineSeparator, '\n'));
}

/// What was just put in ends at the cursor, and gives up its end.
void ChampTraduction::RetientLongueur() {
    const long longueur = Caracteres(Traduction());
    const long trop = longueur - std::max(longueur_, longueurAvant_);
    longueurAvant_ = longueur;
    if (trop <= 0) return;
    QTextCursor curseur = textCursor();
    curseur.joinPreviousEditBlock();
    for (long i = 0; i < trop; ++i) curseur.deletePreviousChar();
    curseur.endEditBlock();
}

void ChampTraduction::keyPressEvent(QKeyEvent* evenement) {
    const bool retour = evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter;
    if (!retour || evenement->modifiers().testFlag(Qt::ShiftModifier)) return QPlainTextEdit::keyPressEvent(evenement);
    evenement->accept();
    emit Valide();
}

/// What is typed first replaces what stands there, as in any other field.
void ChampTraduction::focusInEvent(QFocusEvent* evenement) {
    QPlainTextEdit::focusInEvent(evenement);
    if (evenement->reason() == Qt::TabFocusReason || evenement->reason() == Qt::BacktabFocusReason) selectAll();
}

/// A tab would end the wording in a file.
void ChampTraduction::insertFromMimeData(const QMimeData* source) {
    insertPlainText(source->text().left(TexteCollableMax).replace('\t', ' '));
}

QSize ChampTraduction::sizeHint() const {
    const int bord = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    return {Colonnes * fontMetrics().averageCharWidth() + bord, Lignes * fontMetrics().lineSpacing() + bord};
}

QSize ChampTraduction::minimumSizeHint() const {
    return sizeHint();
}
