#include "widgets/ChampNombre.h"

#include "core/Nombres.h"
#include "data/Textes.h"
#include "data/TextesSaisie.h"
#include "platform/Dialogues.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"
#include "widgets/DessinQt.h"
#include "widgets/ReprendSaisie.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QRegularExpression>
#include <QStyleOptionFrame>
#include <QValidator>

#include <algorithm>
#include <cmath>

namespace {

constexpr int ChiffresVisibles = 10;

/// Background of the field that has the focus; the same on a light and on a dark palette, as is its black text.
const QColor FondFocus(0x00, 0xFF, 0xFF);

/// One entry of the context menu; the toolkit's own are not in the working language.
struct EntreeContexte {
    int texte;
    void (*commande)(QLineEdit& champ);
    QKeySequence::StandardKey raccourci;
};
constexpr EntreeContexte LesEntrees[] = {
    {755, [](QLineEdit& champ) { champ.undo(); }, QKeySequence::Undo},
    {756, [](QLineEdit& champ) { champ.cut(); }, QKeySequence::Cut},
    {754, [](QLineEdit& champ) { champ.copy(); }, QKeySequence::Copy},
    {757, [](QLineEdit& champ) { champ.paste(); }, QKeySequence::Paste},
    {758, [](QLineEdit& champ) { champ.clear(); }, QKeySequence::UnknownKey},
    {753, [](QLineEdit& champ) { champ.selectAll(); }, QKeySequence::SelectAll},
};

/// Lets through what is a number, or the beginning of one.
class ValidateurNombre : public QValidator {
public:
    using QValidator::QValidator;

    static bool TientDansUnDouble(const QString& texte) {
        try {
            Val(S(texte));
            return true;
        } catch (const ErreurExecution&) {
            return false;
        }
    }

    State validate(QString& texte, int& curseur) const override {
        static const QRegularExpression etranger(QStringLiteral("[^0-9+\\-.eE]"));
        static const QRegularExpression debutNombre(
            QRegularExpression::anchoredPattern(QStringLiteral("[+-]?[0-9]*\\.?[0-9]*([eE][+-]?[0-9]*)?")));
        const auto nettoie = [](QString partie) { return partie.replace(',', '.').remove(etranger); };
        const QString avant = nettoie(texte.left(curseur));
        texte = avant + nettoie(texte.mid(curseur));
        curseur = static_cast<int>(avant.size());
        if (sansSigne && texte.startsWith('-')) return Invalid;
        return debutNombre.match(texte).hasMatch() && TientDansUnDouble(texte) ? Acceptable : Invalid;
    }

    bool sansSigne = false;
};

} // namespace

ChampNombre::ChampNombre(QWidget* parent) : QLineEdit(parent) {
    setValidator(new ValidateurNombre(this));
    setAlignment(Qt::AlignRight);
    setFont(PoliceTabulaire(font()));
    PrendLargeur();
}

double ChampNombre::Valeur() const {
    return Val(S(text()));
}

void ChampNombre::Montre(double valeur) {
    const QString texte = Q(StrTrim(valeur));
    // Whoever is in the field goes on typing in it as long as its value stays.
    if (texte == text() || (hasFocus() && Valeur() == valeur)) return;
    setText(texte);
    setCursorPosition(0);
    if (hasFocus()) selectAll();
}

bool ChampNombre::RefuseHorsLimite() {
    if (std::abs(Valeur()) <= limite_) return false;
    LesDialogues().Message(Icone::Avertissement, Texte(TexteNombreTropGrand));
    ReprendSaisie(*this);
    return true;
}

void ChampNombre::RefuseSigne(bool refuse) {
    auto* sansSigne = new ValidateurNombre(this);
    sansSigne->sansSigne = refuse;
    delete validator();
    setValidator(sansSigne);
}

void ChampNombre::MarqueFaute(const QString& raison) {
    enFaute_ = !raison.isEmpty();
    setToolTip(raison);
    update();
}

void ChampNombre::paintEvent(QPaintEvent* evenement) {
    QLineEdit::paintEvent(evenement);
    if (!enFaute_) return;
    constexpr double epaisseur = 2; // pixels
    QPainter peintre(this);
    peintre.setPen(QPen(CouleurTrait(Couleur::Repere, QGuiApplication::palette()), epaisseur));
    peintre.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
}

void ChampNombre::PrendLargeur() {
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QSize chiffres(fontMetrics().horizontalAdvance(QString(ChiffresVisibles, '0')) +
                             2 * fontMetrics().averageCharWidth(),
                         fontMetrics().height());
    setFixedWidth(style()->sizeFromContents(QStyle::CT_LineEdit, &option, chiffres, this).width());
}

void ChampNombre::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter) {
        evenement->accept(); // the default button of the screen must not go off
        if (!RefuseHorsLimite()) emit Suivant();
        return;
    }
    QLineEdit::keyPressEvent(evenement);
}

void ChampNombre::focusInEvent(QFocusEvent* evenement) {
    QPalette couleurs;
    couleurs.setColor(QPalette::Base, FondFocus);
    couleurs.setColor(QPalette::Text, Qt::black);
    setPalette(couleurs);
    QLineEdit::focusInEvent(evenement);
    vientDeLaSouris_ = evenement->reason() == Qt::MouseFocusReason;
    if (evenement->reason() != Qt::PopupFocusReason) selectAll();
}

void ChampNombre::focusOutEvent(QFocusEvent* evenement) {
    if (evenement->reason() != Qt::PopupFocusReason) setPalette(QPalette());
    QLineEdit::focusOutEvent(evenement);
}

void ChampNombre::mouseReleaseEvent(QMouseEvent* evenement) {
    QLineEdit::mouseReleaseEvent(evenement);
    if (vientDeLaSouris_ && !hasSelectedText()) selectAll();
    vientDeLaSouris_ = false;
}

void ChampNombre::changeEvent(QEvent* evenement) {
    QLineEdit::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange || evenement->type() == QEvent::StyleChange) PrendLargeur();
}

void ChampNombre::contextMenuEvent(QContextMenuEvent* evenement) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const EntreeContexte& entree : LesEntrees) {
        QAction* action = menu->addAction(QTexte(entree.texte), this, [this, &entree] { entree.commande(*this); });
        action->setShortcut(entree.raccourci);
    }
    menu->popup(evenement->globalPos());
}

void PoseLimites(QWidget& ecran, double limite) {
    for (auto* champ : ecran.findChildren<ChampNombre*>()) champ->PoseLimite(limite);
}

bool RefuseHorsLimite(QWidget& ecran) {
    const auto champs = ecran.findChildren<ChampNombre*>();
    return std::any_of(champs.begin(), champs.end(),
                       [](ChampNombre* champ) { return champ->isVisible() && champ->RefuseHorsLimite(); });
}
