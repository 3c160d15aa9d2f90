// A group of fields described by rows: label left, field right of it, unit behind the field. A number has a number
// field, a text a plain one.
#pragma once

#include "core/Champ.h"

#include <QGroupBox>

#include <string_view>
#include <vector>

class ChampNombre;
class QGridLayout;
class QLineEdit;

class PanneauChamps : public QGroupBox {
    Q_OBJECT

public:
    /// @param titre text number of the caption.
    /// @param champs their record must outlive the panel.
    PanneauChamps(const char* nom, int titre, std::vector<ChampLie> champs, QWidget* parent = nullptr);

    /// From the record to the fields.
    void Charge();
    /// From the fields to the record; true when a value changed.
    /// @throws ErreurExecution overflow; the record is then as it was.
    bool Lit();

    /// The field of a number.
    /// @throws std::logic_error when there is none of that control name, with the names there are.
    ChampNombre* Champ(const char* controle) const;
    /// The field of the row of that name; none when this panel does not have it.
    QLineEdit* ChampDe(std::string_view nom) const;
    const std::vector<QLineEdit*>& Champs() const { return lesChamps_; }

signals:
    void Termine(); ///< Return was pressed in the last field

private:
    void Avance(std::size_t place);

    std::vector<ChampLie> table_;
    std::vector<QLineEdit*> lesChamps_;
};

/// Puts label, field and unit into row `ligne` of a grid. The label is the field's buddy.
/// @param texte text number of the label; `unite` that of the unit, 0 for none.
ChampNombre* AjouteLigneChamp(QGridLayout& grille, int ligne, const char* controle, int texte, int unite);
