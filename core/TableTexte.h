// A table of texts: what its columns are called and what stands in their rows, said once for the grid that shows it,
// the report that prints it and the file or clipboard that takes it. The cells are asked for as they are needed.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

enum class Cote { Gauche, Droite };

struct ColonneTexte {
    std::string titre;                             ///< heading, may hold line breaks
    std::string unite;                             ///< stands below the heading
    std::function<std::string(int ligne)> cellule; ///< row from 0; none for a column that has only its heading
    Cote cote = Cote::Droite;
    int largeur = 0; ///< least width on paper in characters, the blank that keeps it from its neighbour included
};

struct TableTexte {
    std::vector<ColonneTexte> colonnes;
    int lignes = 0;

    /// Text of a cell, subscripts from 0; empty outside the table.
    std::string Cellule(int ligne, int colonne) const;

    /// The heading of a column with its unit on a line below, where it has one.
    std::string EnTete(int colonne) const;
};

/// A column of numbers under a mask. @param valeur of a row from 0; none for a column that has only its heading
ColonneTexte ColonneNombres(std::string titre, std::string unite, std::function<double(int ligne)> valeur,
                            std::string masque, int largeur = 0);

/// A part of a table, subscripts from 0.
struct PlageTable {
    int premiereLigne = 0, lignes = 0;
    int premiereColonne = 0, colonnes = 0;
};

/// Appends the headings of the columns of a part of a table, each with its unit behind it, as one line.
void AjouteEnTetes(std::string& sortie, const TableTexte& table, const PlageTable& plage, char separateur,
                   std::string_view finDeLigne);

/// The whole table for a spreadsheet: headings, then a row a line. Texts that hold the separator or a quotation mark
/// are quoted; a number gets the decimal separator given, and figures on both sides of it ("5." is 5, "." is 0).
std::string ComposeCsv(const TableTexte& table, char separateur, char decimale);

/// Appends the cells of a part of a table, a row a line.
void AjouteCellules(std::string& sortie, const TableTexte& table, const PlageTable& plage, char separateur,
                    std::string_view finDeLigne);
