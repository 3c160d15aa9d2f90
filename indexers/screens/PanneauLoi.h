// The law of a calculator: the list of laws, the symmetry, and the panel of coefficients that the law "MS_Spe" opens.
#pragma once

#include "core/Champ.h"
#include "indexers/SourceLoi.h"

#include <QGroupBox>

#include <string>
#include <vector>

class ChampNombre;
class ListeCles;
class QLabel;
class QPushButton;

/// The inputs of a law, bound to the record of the screen.
struct SaisieLoi {
    ChampLie loi, symetrie, a, b, c;
    const char* panneau = "LoiSpeciale"; ///< the panel of coefficients, and its button
    const char* ok = "Ok";
    double maximumD = 1.0;         ///< largest share at constant speed
    Icone icone = Icone::Critique; ///< of the box that refuses the shares
};

class PanneauLoi : public QGroupBox {
    Q_OBJECT

public:
    /// @param lois the names offered, "Fichier" among them
    PanneauLoi(const char* nom, int titre, const SaisieLoi& saisie, const std::vector<std::string>& lois,
               QWidget* parent = nullptr);

    /// From the controls to the record.
    void Lit();
    QWidget* Controle(const std::string& membre) const;
    std::string Saisi(const std::string& membre) const;
    std::vector<QWidget*> Controles() const;

    /// True while the panel of coefficients waits for its Ok.
    bool Ouvert() const;

signals:
    void Modifie();
    void Bloque(bool ouvert); ///< the panel of coefficients opens, or closes
    void FichierChoisi();     ///< the law is to come from a file

private:
    QWidget* FaitCoefs();
    void Choisit();
    void Accepte();
    void OuvreCoefs(bool ouvert);
    SourceLoi Source() const;
    void MontreD();

    const SaisieLoi saisie_;
    ListeCles* lois_;
    ChampNombre *symetrie_, *coefs_[3];
    QGroupBox* panneau_;
    QPushButton* ok_;
    QLabel* d_;
};

/// Asks for a law file. @return its path; empty when the user gives up
std::string DemandeFichierLoi();

/// The names of laws that a calculator offers: those of the catalogue that rise only, and "Fichier".
std::vector<std::string> NomsLoisCalculateur();
