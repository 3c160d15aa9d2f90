// The fields of one solid: quantity, ratio, mass or density, and the dimensions that its kind asks for.
#pragma once

#include "inertia/Solides.h"

#include <QGroupBox>

#include <vector>

class ChampNombre;
class QLabel;
class QRadioButton;

class PanneauSolide : public QGroupBox {
    Q_OBJECT

public:
    explicit PanneauSolide(QWidget* parent = nullptr);

    /// Shows the fields of a kind, empty as its choice leaves them.
    void Choisit(const GenreSolide& genre);
    /// Shows what was typed for a solid before.
    void Reprend(const SaisieSolide& saisie);
    SaisieSolide Saisie() const;

    /// Puts right what stands in the field of a member.
    void Corrige(std::string SaisieSolide::*membre, const std::string& texte);
    /// Marks one field as the one at fault; none for an empty name.
    void Marque(const std::string& controle, const std::string& raison);
    ChampNombre* Champ(const std::string& controle) const;
    /// Gives the focus to the field behind this one.
    /// @return false behind the last one
    bool PasseAuSuivant(const QString& controle);

    /// Caption of the field of the mass.
    QString NomMasse() const;

    /// The captions in the working language.
    void AppliqueTextes();

signals:
    void Modifie(const QString& controle); ///< something was typed into this field
    void Valide(const QString& controle);  ///< Return was pressed in this field
    void OptionChoisie();
    void Termine();                        ///< Return was pressed in the last field
    void CoteVisee(const QString& lettre); ///< the dimension of the field that took the focus; empty for none

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    struct Ligne {
        std::string SaisieSolide::*membre;
        ChampNombre* champ;
        QLabel *etiquette, *unite;
        const ChampSolide* cote; ///< none for quantity, ratio and mass, and for a dimension that the kind has not
    };

    void AjouteLignes();
    void AjouteOptions();
    void MontreLigne(Ligne& ligne);
    void ChoisitOption();
    void AppliqueMasse();
    void ReserveLargeurs();

    const GenreSolide* genre_;
    std::vector<Ligne> lignes_;
    QRadioButton *masseTotal_, *masseSpecifique_;
};
