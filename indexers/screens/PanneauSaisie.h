// A group of inputs of a calculator: number fields, and where the group has a catalogue the list of its keys, which
// fills the fields from a row and stores them as a new one.
#pragma once

#include "core/Champ.h"
#include "indexers/Catalogue.h"
#include "indexers/FauteSaisie.h"

#include <QGroupBox>

#include <string>
#include <vector>

class ChampNombre;
class ListeCles;
class QGridLayout;
class QPushButton;

/// Label, field and unit of a group of inputs, in the order of entry.
class PanneauSaisie : public QGroupBox {
    Q_OBJECT

public:
    /// The button that stores the inputs of a group as a new row of its catalogue.
    struct Garde {
        const char* controle;
        int texte;
    };

    /// @param titre text number of the caption
    /// @param champs bound to the record of the screen, which outlives the panel; a row without a control is a value of
    ///        the catalogue that no field shows
    PanneauSaisie(const char* nom, int titre, const std::vector<ChampLie>& champs, QWidget* parent = nullptr);

    /// As above, with a list in place of the field of its key.
    PanneauSaisie(const char* nom, int titre, const std::vector<ChampLie>& champs, const Catalogue& catalogue,
                  Garde garde, QWidget* parent = nullptr);

    /// From the fields to the record.
    /// @throws ErreurExecution overflow.
    void Lit();

    /// The control of an input; none when the panel does not have it.
    QWidget* Controle(const std::string& membre) const;
    /// The text as it stands in the field of an input; empty when the panel does not have it.
    std::string Saisi(const std::string& membre) const;

    /// The controls in the order of entry.
    std::vector<QWidget*> Controles() const;

signals:
    void Modifie();                         ///< an input is another
    void Remplie();                         ///< a row of the catalogue has filled the fields
    void Refusee(const FauteSaisie& faute); ///< the inputs make no new row
    void Gardee(const QString& cle);        ///< they are one

private:
    struct Ligne {
        ChampLie champ;
        ChampNombre* nombre = nullptr; ///< none for a text, and for a value without a field
        ListeCles* liste = nullptr;
    };

    void AjouteLigne(QGridLayout& grille, const ChampLie& champ);
    void Remplit();
    void GardeLigne();

    const Catalogue* catalogue_ = nullptr;
    std::vector<Ligne> lignes_;
    ListeCles* cles_ = nullptr;
};
