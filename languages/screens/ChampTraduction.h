// The field for one wording: several lines on the screen, of a length that is set text by text.
#pragma once

#include <QPlainTextEdit>

#include <string>

class ChampTraduction : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit ChampTraduction(QWidget* parent = nullptr);

    /// Characters beyond this are not taken. A wording that is longer already can only be shortened.
    void PoseLongueur(long longueur) { longueur_ = longueur; }

    /// Shows the wording of a text, which then stands there unchanged.
    void Montre(const std::string& texte);
    std::string Traduction() const;
    bool Modifie() const { return document()->isModified(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void Valide(); ///< Return was pressed; a line break takes Shift with it

protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void focusInEvent(QFocusEvent* evenement) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void RetientLongueur();

    long longueur_ = 0;
    long longueurAvant_ = 0; ///< characters before the change that is under way
};
