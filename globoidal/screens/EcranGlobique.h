// What the two globoidal screens share: casing, roller and laws out of their catalogues, and the sheets of results.
#pragma once

#include "core/Etude.h"
#include "globoidal/RapportGlobique.h"
#include "indexers/screens/EcranCalculateur.h"

class PanneauResultats;
class QComboBox;
class QLabel;
class ZoneDessin;

class EcranGlobique : public EcranCalculateur {
    Q_OBJECT

public:
    bool PretAEnregistrer() const override { return false; }
    void Imprime(Imprimante& imprimante) const override;

protected:
    /// @param mecanisme the record of the screen, which need not be made yet
    EcranGlobique(const char* nom, int titre, Booleen16 DonneesEtude::*active, const MecanismeGlobique& mecanisme,
                  QWidget* parent);

    /// The groups of inputs, made by the screen.
    struct Groupes {
        PanneauSaisie *boitier, *mouvement, *galet;
        std::vector<PanneauLoi*> lois;
    };
    /// Lays out the screen. The symmetry of each law begins at one half.
    void ComposeGlobique(const Groupes& groupes);

    std::optional<FauteSaisie> ChercheFaute() final;
    void MontreResultats() override;
    void SauveResultats() override {}

    /// Asks for a law file; a screen that gets none has no law. @return whether there is one
    bool DemandeFichier(std::string& fichier);
    /// No law in a list.
    void VideLoi(const char* membre);
    virtual std::optional<FauteSaisie> ChercheFauteDonnees() const = 0;
    virtual RapportGlobique Rapport() const = 0;
    /// A list of laws says "Fichier".
    virtual void ChoisitFichier() = 0;

    ResultatGlobique resultat_;

private:
    QWidget* FaitFeuilleParcours();
    /// Another name in a list leaves no size of the last row behind; one that has a row takes its own.
    void VideAvecLeNom(const char* liste, const std::vector<std::string>& membres);
    void RevientAuxSymetries(const std::vector<PanneauLoi*>& lois);

    const MecanismeGlobique& mecanisme_;
    bool nomSeTape_ = false;
    PanneauResultats *capacites_ = nullptr, *geometrie_ = nullptr;
    ZoneDessin *section_ = nullptr, *parcours_ = nullptr, *limites_ = nullptr;
    QComboBox* part_ = nullptr;
    QLabel* fichier_ = nullptr;
};
