// The screen of a capacity calculator: a first sheet of inputs, sheets of results behind it, and below them the way
// back, what is made of the results, and the calculation. Results are those of the inputs that stand there: a change
// closes their sheets and what is made of them until they are calculated again.
#pragma once

#include "indexers/FauteSaisie.h"
#include "widgets/FenetreEnfant.h"

#include <optional>
#include <string>
#include <vector>

class PanneauLoi;
class PanneauSaisie;
class QPushButton;
class QTabWidget;

class EcranCalculateur : public FenetreEnfant {
    Q_OBJECT

public:
    ~EcranCalculateur() override;

    /// True while the results are those of the inputs.
    bool Calcule() const { return calcule_; }

    /// Saves what the calculator saves; tells that there is nothing without results.
    void Enregistrer() override;

    /// Into the inertia of the turret, where the calculator has one.
    bool PrendInertie(double inertie) override;

protected:
    /// @param titre text number of the caption
    /// @param active the flag of the screen, by which saving and printing go to it
    EcranCalculateur(const char* nom, int titre, Booleen16 DonneesEtude::*active, QWidget* parent);

    struct Feuille {
        QWidget* contenu;
        int titre; ///< text number of the tab
    };

    /// What the screen is made of.
    struct Composition {
        std::vector<std::vector<QWidget*>> colonnes; ///< of the first sheet, from the left
        std::vector<PanneauSaisie*> panneaux;        ///< groups of inputs, in the order of entry
        std::vector<PanneauLoi*> lois;
        std::vector<QWidget*> ordre;   ///< controls in the order that Return walks them
        std::vector<QWidget*> bloques; ///< what the panel of coefficients closes, with the calculation
        std::vector<Feuille> resultats;
        std::vector<QWidget*> sorties; ///< beside the print and save buttons
        bool sauvegarde = true;        ///< there is something to save
        const char* imprimer = "Imprimer";
        int quitter = 340;        ///< text number of the way back
        bool derouleVide = false; ///< a fault of an empty list drops it open
    };
    void Compose(const Composition& composition);

    /// Whoever changes an input that no group holds says so.
    void Perime();

    /// Inputs of no group, from their controls to the record.
    virtual void LitAutres() {}
    /// What the calculation asks before its checks; false when the user gives up.
    virtual bool Demande() { return true; }
    virtual std::optional<FauteSaisie> ChercheFaute() = 0;
    /// @throws ErreurExecution; there are no results then.
    virtual void CalculeResultats() = 0;
    virtual void MontreResultats() = 0;
    virtual void SauveResultats() = 0;

    QWidget* ControleDe(const std::string& membre) const;
    /// The text of an input as it stands in its field.
    std::string Saisi(const std::string& membre) const;
    void MontreFaute(const FauteSaisie& faute);
    /// What keeps it from calculating, told when it was asked to.
    virtual void MontreArret(const FauteSaisie& faute) { MontreFaute(faute); }
    /// Opens the sheets on what a calculation that stopped has left. It can be looked at, and nothing is made of it.
    void OuvreFeuilles(int feuille);
    /// Shows a text in a field without making the results those of other inputs.
    void MontreSansPerimer(const std::string& membre, double valeur);

private:
    QWidget* FaitSaisie(const Composition& composition);
    QLayout* FaitBoutons(const Composition& composition);
    void Relie(const Composition& composition);
    void RelieOrdre(const std::vector<QWidget*>& ordre);
    void LitSaisie() override;
    void Calculer();
    void MontreEtat();

    bool calcule_ = false;
    bool ouvertes_ = false; ///< the sheets, without a result
    bool derouleVide_ = false;
    std::vector<PanneauSaisie*> panneaux_;
    std::vector<PanneauLoi*> lois_;
    QTabWidget* onglets_ = nullptr;
    QWidget* sorties_ = nullptr;
    QPushButton* calculer_ = nullptr;
};
