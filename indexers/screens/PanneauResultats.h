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
    /// @param couches the groups one beside the other instead of one below the other
    explicit PanneauResultats(bool couches = false, QWidget* parent = nullptr);

    /// Shows these in place of what was shown.
    void Montre(const std::vector<GroupeResultats>& groupes, const std::vector<TableResultats>& tables = {},
                const std::vector<std::string>& notes = {});

protected:
    void changeEvent(QEvent* evenement) override;

private:
    QLabel* FaitValeurDe(const LigneResultat& ligne);
    QWidget* FaitGroupe(const GroupeResultats& groupe);
    QWidget* FaitTable(const TableResultats& table);
    void AjouteNotes(QGridLayout& grille, const std::vector<std::string>& notes);
    void Colore(QLabel& valeur) const;

    QBoxLayout* disposition_;
    QWidget* contenu_ = nullptr;
    std::vector<QLabel*> rouges_;
};

/// A text that may fill several lines, in the discreet colour.
QLabel* FaitNote(const std::string& texte);
