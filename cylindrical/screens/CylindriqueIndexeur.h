// The screen of the drum cam of an indexer: casing, motion, law and roller; the developed cam with its sizes; the table
// of the roller centres.
#pragma once

#include "cylindrical/IndexeurCylindrique.h"
#include "indexers/screens/EcranCalculateur.h"

class Grille;
class PanneauResultats;
class QCheckBox;
class QRadioButton;
class ZoneDessin;

class CylindriqueIndexeur : public EcranCalculateur {
    Q_OBJECT

public:
    explicit CylindriqueIndexeur(QWidget* parent = nullptr);

    bool PrepareImpression() override;
    void Imprime(Imprimante& imprimante) const override;

protected:
    void LitAutres() override;
    bool Demande() override;
    std::optional<FauteSaisie> ChercheFaute() override;
    void CalculeResultats() override;
    void MontreResultats() override;
    void SauveResultats() override;

private:
    QWidget* FaitSens();
    QWidget* FaitDeveloppee();
    QWidget* FaitTable();
    bool EcritFichier(const std::string& libelle, const char* extension, const std::string& titre,
                      const std::string& contenu);

    IndexeurCylindrique donnees_;
    ResultatIndexeurCylindrique resultat_;
    std::string nom_; ///< of the files saved last, without extension
    std::string designation_;
    bool avecTable_ = false;

    QRadioButton *droite_ = nullptr, *gauche_ = nullptr;
    QCheckBox *points_ = nullptr, *script_ = nullptr;
    PanneauResultats *dimensions_ = nullptr, *notes_ = nullptr;
    ZoneDessin* dessin_ = nullptr;
    Grille* grille_ = nullptr;
};
