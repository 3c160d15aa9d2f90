// The results of a calculator as lines in groups: caption, value, unit. A value beyond its limit is red and bears the
// mark that paper gives it; what a value does not say stands below its group.
#pragma once

#include "indexers/LigneResultat.h"

#include <QWidget>

#include <vector>

class QBoxLayout;
class QGridLayout;
class QGroupBox;
class QLabel;

class PanneauResultats : public QWidget {
    Q_OBJECT

public:
    /// @param colonnes that the groups fill, one after the other
    explicit PanneauResultats(std::size_t colonnes = 1, QWidget* parent = nullptr);

    /// Shows these in place of what was shown.
    void Montre(const std::vector<GroupeResultats>& groupes, const std::vector<TableResultats>& tables = {},
                const std::vector<std::string>& notes = {});

protected:
    void changeEvent(QEvent* evenement) override;

private:
    QLabel* FaitValeurDe(const LigneResultat& ligne);
    QWidget* FaitColonnes(const std::vector<GroupeResultats>& groupes);
    QWidget* FaitGroupe(const GroupeResultats& groupe);
    QWidget* FaitTable(const TableResultats& table);
    void AjouteNotes(QGridLayout& grille, const std::vector<std::string>& notes);
    void Colore(QLabel& valeur) const;

    std::size_t colonnes_;
    QBoxLayout* disposition_;
    std::vector<QLabel*> rouges_;
};

/// A text that may fill several lines, in the discreet colour.
QLabel* FaitNote(const std::string& texte);
