// The inertia calculator: a solid is chosen and typed, calculated after every key, and added to the list of an
// assembly.
#pragma once

#include "inertia/Assemblage.h"
#include "widgets/FenetreEnfant.h"

#include <filesystem>
#include <optional>

class BarresSolides;
class Grille;
class PanneauSolide;
class Remarques;
class QLabel;
class QPushButton;
class QToolButton;
class ZoneDessin;

class Inerties : public FenetreEnfant {
    Q_OBJECT

public:
    explicit Inerties(QWidget* parent = nullptr);
    ~Inerties() override;

    const Assemblage& Liste() const { return assemblage_; }

    /// The list before can be taken back.
    void OuvreListe(const std::filesystem::path& chemin) override;

    QSize sizeHint() const override;

    /// It stands beside the studies, and takes saving and printing while it is in front.
    bool Demeure() const override { return true; }
    bool Active() const override { return EnAvant(); }
    bool PretAEnregistrer() const override { return PretAImprimer(); }
    bool PretAImprimer() const override { return !assemblage_.lignes.empty(); }
    /// Asks for a file, and saves the list.
    void Enregistrer() override;
    void Imprime(Imprimante& imprimante) const override;
    /// The list, as its file.
    std::string Travail() const override;
    void Reprend(const std::string& contenu) override;

    /// What was typed and the list stay.
    void AppliqueTextes() override;

private:
    QWidget* FaitResultats();
    QLayout* FaitValeurs();
    QLayout* FaitBoutons();
    QWidget* FaitMenuListe();
    void Relie();

    void ChoisitSolide(int TypeSolide);
    void RemplitSaisie(const SaisieSolide& saisie);
    bool Calcule(const QString& champEnCours = {});
    void Valide(const QString& controle);
    void Refuse(const FauteSolide& faute);
    void MontreFaute(const std::optional<FauteSolide>& faute);
    void MontreResultats(bool anciens);
    void Plus();
    void Moins();
    void MontreListe();
    void MontreFigure();
    void GardeAbandonnee();

    // The whole list, in InertiesListe.cpp.
    void RemplaceListe(Assemblage nouvelle);
    void AppliqueTextesListe();
    void DemandeOuverture();
    void DemandeCsv();
    void Copie();
    void ReprendAbandonnee();
    void TransmetTotal();
    void ImprimeInertiesDriver();

    Assemblage assemblage_;
    bool listeModifiee_ = false; ///< since it was saved or opened
    const GenreSolide* genre_;
    std::optional<Grandeurs> resultats_; ///< what the labels show; none while they are blank

    BarresSolides* barres_;
    PanneauSolide* panneau_;
    ZoneDessin* figure_;
    QString cote_; ///< letter of the dimension that is typed
    struct LigneResultat {
        QLabel *nom, *etiquette, *unite, *exact;
    };
    std::vector<LigneResultat> lignes_;
    QLabel* titreExact_;
    Remarques *remarques_, *remarquesTotaux_;
    QToolButton* menuListe_;
    Grille *grille1_, *grille2_;
    QPushButton *plus_, *moins_, *ok_, *imprimer_;
};
