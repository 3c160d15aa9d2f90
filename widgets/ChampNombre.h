// A field for one number. The decimal separator is the point; a comma typed or pasted becomes one, so that nobody loses
// decimals.
#pragma once

#include <QLineEdit>

class ChampNombre : public QLineEdit {
    Q_OBJECT

public:
    explicit ChampNombre(QWidget* parent = nullptr);

    /// The leading number of the text; 0 for an empty one.
    /// @throws ErreurExecution overflow when the number exceeds a double.
    double Valeur() const;

    /// Shows a number with its shortest digits.
    void Montre(double valeur);

    /// Whether a minus in front of the number is kept from being typed; otherwise it may be.
    void RefuseSigne(bool refuse);

    /// Outlines the field as the one at fault, with the reason in its tip; an empty reason takes the mark away.
    void MarqueFaute(const QString& raison);
    bool EnFaute() const { return enFaute_; }

signals:
    void Suivant(); ///< Return was pressed

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

    bool enFaute_ = false;
    bool vientDeLaSouris_ = false; ///< the press that gave the focus is still down
};
