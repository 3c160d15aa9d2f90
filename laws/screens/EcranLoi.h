// The screen of a law study: fields, unit of the output, results, graphs, table. Which study it is, is a row of the
// table of law studies.
#pragma once

#include "laws/EtudesLois.h"
#include "laws/RapportLoi.h"
#include "widgets/FenetreEnfant.h"

#include <vector>

class ChampNombre;
class Grille;
class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;
class ZoneDessin;

class EcranLoi : public FenetreEnfant {
    Q_OBJECT

public:
    /// Opens on the inputs of the study record.
    explicit EcranLoi(const EtudeLoi& loi, QWidget* parent = nullptr);
    ~EcranLoi() override;

    bool Active() const override;

    /// Saves the law as a listing or as a law file, as the user answers.
    void Enregistrer() override;

    void Imprime(Imprimante& imprimante) const override;

    std::string Travail() const override;
    void Reprend(const std::string& contenu) override;

    /// A law study lives on its screen only.
    void Ferme() override;

private:
    /// What the printout is made from.
    RapportLoi Rapport() const;
    QWidget* FaitDonnees();
    QWidget* FaitUnites();
    QWidget* FaitResultats();
    QWidget* FaitOnglets();
    QLayout* FaitBoutons();
    void RelieChamps();
    void MiseJourUnites();
    void ChoisitUnites();
    void LitDonnees();
    void PerimeResultats();
    void MontreFaute(const FauteLoi& faute);
    void Calculer();
    void MontreResultats();
    void RemplitGrille();
    bool Calculee() const;
    void Retour();

    const EtudeLoi& loi_;
    ResultatLoi resultat_;
    Tableau<PointLoi> apercu_; ///< unit law drawn until the study is calculated
    struct Ligne {
        const ChampLoi* champ;
        ChampNombre* zone;
    };
    std::vector<Ligne> champs_; ///< the fields that the law asks for
    std::vector<QLabel*> libelles_, valeurs_;
    QLabel* notes_ = nullptr;
    QComboBox* pointsParDegre_ = nullptr;
    QRadioButton *option1_ = nullptr, *option2_ = nullptr;
    Grille* grille_ = nullptr;
    ZoneDessin* courbes_ = nullptr;
    QPushButton *calculer_ = nullptr, *enregistrer_ = nullptr, *imprimer_ = nullptr, *retour_ = nullptr;
};
