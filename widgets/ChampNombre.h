// A field for one number. The decimal separator is the point; a comma typed or pasted becomes one, so that nobody loses
// decimals.
#pragma once

#include <QLineEdit>

#include <limits>

class ChampNombre : public QLineEdit {
    Q_OBJECT

public:
    explicit ChampNombre(QWidget* parent = nullptr);

    /// The leading number of the text; 0 for an empty one.
    /// @throws ErreurExecution overflow when the number exceeds a double.
    double Valeur() const;

    /// Shows a number with its shortest digits. A field with the focus is left as it is typed when it has that value
    /// already; otherwise the number stands in it selected.
    void Montre(double valeur);

    /// Whether a minus in front of the number is kept from being typed; otherwise it may be.
    void RefuseSigne(bool refuse);

    /// The greatest magnitude that the field takes; none until one is set.
    void PoseLimite(double limite) { limite_ = limite; }

    /// True after a box that says that the number is beyond the limit; the field then has the focus, selected.
    bool RefuseHorsLimite();

    /// Outlines the field as the one at fault, with the reason in its tip; an empty reason takes the mark away.
    void MarqueFaute(const QString& raison);
    bool EnFaute() const { return enFaute_; }

signals:
    void Suivant(); ///< Return was pressed, on a number that the field takes

protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void focusInEvent(QFocusEvent* evenement) override;
    void focusOutEvent(QFocusEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;
    void contextMenuEvent(QContextMenuEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;

private:
    void PrendLargeur();

    double limite_ = std::numeric_limits<double>::max();
    bool enFaute_ = false;
    bool vientDeLaSouris_ = false; ///< the press that gave the focus is still down
};

/// Sets the limit of every number field of a screen.
void PoseLimites(QWidget& ecran, double limite);

/// Looks for a number beyond its field's limit among the visible fields of a screen; true after the box about the
/// first.
bool RefuseHorsLimite(QWidget& ecran);
