// A group of number fields described by a table: label left, field right of it, unit behind the field.
#pragma once

#include "core/Etude.h"

#include <QGroupBox>

#include <span>
#include <vector>

class ChampNombre;
class QGridLayout;

/// One field: its control name, the number of its label and of its unit, and its member of the study record.
struct ChampSaisie {
    const char* controle;
    int texte;
    int unite; ///< text number, 0 for none
    double DonneesEtude::*membre;
};

class PanneauChamps : public QGroupBox {
    Q_OBJECT

public:
    /// @param titre text number of the caption.
    /// @param champs must outlive the panel (a constant table).
    PanneauChamps(const char* nom, int titre, std::span<const ChampSaisie> champs, QWidget* parent = nullptr);

    /// From the record to the fields.
    void Charge();
    /// From the fields to the record; true when a value changed.
    /// @throws ErreurExecution overflow; the record is then as it was.
    bool Lit();

    /// @throws std::logic_error when there is no such field, with the names there are.
    ChampNombre* Champ(const char* controle) const;
    /// The field of a member of the record; none when this panel does not have it.
    ChampNombre* ChampDe(double DonneesEtude::*membre) const;
    const std::vector<ChampNombre*>& Champs() const { return lesChamps_; }

signals:
    void Termine(); ///< Return was pressed in the last field

private:
    std::span<const ChampSaisie> table_;
    QGridLayout* disposition_;
    std::vector<ChampNombre*> lesChamps_;
};

/// Puts label, field and unit into row `ligne` of a grid. The label is the field's buddy.
/// @param texte text number of the label; `unite` that of the unit, 0 for none.
ChampNombre* AjouteLigneChamp(QGridLayout& grille, int ligne, const char* controle, int texte, int unite);
