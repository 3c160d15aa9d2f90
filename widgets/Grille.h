// A read-only table of any length. The cells are asked for as they come into view, so that it opens at once.
#pragma once

#include "core/TableTexte.h"

#include <QTableView>

#include <string>
#include <vector>

class ModeleGrille;

class Grille : public QTableView {
    Q_OBJECT

public:
    explicit Grille(QWidget* parent = nullptr);

    /// Shows a table, without the columns that have only their heading.
    void Remplit(TableTexte table);

    /// Text of a cell, subscripts from 0; empty outside the table.
    std::string Cellule(int ligne, int colonne) const;
    int NombreLignes() const;
    int NombreColonnes() const;

    /// The selected cells below the headings of their columns, tab-separated, one row a line; empty without a
    /// selection.
    QString TexteSelection() const;

    /// The room to ask for, pixels; with less, down to the minimum size, the table scrolls.
    void Prefere(QSize taille);
    QSize sizeHint() const override;

protected:
    void contextMenuEvent(QContextMenuEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

private:
    void Copie();
    void EnregistreCsv();
    void MesureColonnes();
    void PlaceColonnes();

    ModeleGrille* modele_;
    std::vector<int> largeurs_; ///< what each column needs, pixels
    QSize preferee_;            ///< none: the toolkit's own
};
