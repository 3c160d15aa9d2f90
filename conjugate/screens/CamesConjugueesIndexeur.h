// The screen of the conjugate pair: mechanism and roller, the report with what it does not say, the graphs.
#pragma once

#include "conjugate/IndexeurConjugue.h"
#include "drawing/Graphe.h"
#include "indexers/screens/EcranCalculateur.h"

#include <vector>

class Grille;
class PanneauResultats;
class ZoneDessin;

class CamesConjugueesIndexeur : public EcranCalculateur {
    Q_OBJECT

public:
    explicit CamesConjugueesIndexeur(QWidget* parent = nullptr);

    /// No flag of the study record tells this screen: while it is open, printing goes to it.
    bool Active() const override { return true; }
    bool PretAEnregistrer() const override { return false; }
    void Imprime(Imprimante& imprimante) const override;
    void Ferme() override;

protected:
    std::optional<FauteSaisie> ChercheFaute() override;
    void CalculeResultats() override {} // nothing is checked before: looking for a fault is the calculation
    void MontreResultats() override;
    void SauveResultats() override {}
    void MontreArret(const FauteSaisie& faute) override;

private:
    QWidget* FaitRapport();
    QWidget* FaitGraphiques();

    SaisieConjugue saisie_;
    ResultatConjugue resultat_;
    std::vector<Graphe> graphes_;
    Grille* grille_ = nullptr;
    PanneauResultats* notes_ = nullptr;
    std::vector<ZoneDessin*> zones_;
};
