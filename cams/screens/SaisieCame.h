// What the data screens of the cams have in common: columns of panels, the entry of the zones, the way back and the
// calculation.
#pragma once

#include "cams/LimitesSaisie.h"
#include "cams/screens/PanneauZones.h"
#include "widgets/FenetreEnfant.h"

#include <optional>
#include <vector>

class PanneauChamps;
class PanneauPesanteur;
class QPushButton;

struct DescriptionSaisie {
    const char* nom; ///< of the screen
    const DescriptionZones& zones;
    ChampsZones champsZones;
    std::optional<FauteDonnee> (*chercheFauteZone)(); ///< the first scalar without which no zone can be completed
    std::optional<FauteDonnee> (*chercheFaute)();     ///< the first that cannot be calculated with
    void (*calcule)();
};

class SaisieCame : public FenetreEnfant {
    Q_OBJECT

public:
    ~SaisieCame() override;

protected:
    /// @param description must outlive the screen (a constant).
    SaisieCame(const DescriptionSaisie& description, QWidget* parent);

    /// Lays out the screen: the columns from the left, the entry of the zones behind them, the buttons below.
    /// @param panneaux in the order of entry
    /// @param pesanteur none where gravity does not work on the follower
    void Compose(const std::vector<QWidget*>& colonnes, const std::vector<PanneauChamps*>& panneaux,
                 PanneauPesanteur* pesanteur);

    /// What this kind of cam asks of a zone besides its law; false after a box.
    virtual bool ControleZone(const Zone&) { return true; }

    /// What this kind of cam asks the user about its data before it is calculated.
    virtual void ProposeDonnees() {}

    /// From the record to the fields.
    void ChargeDonnees();

    void showEvent(QShowEvent* evenement) override;

private:
    bool AcheveZone(Zone& zone);
    void PerimeResultats();
    void LitPanneau(PanneauChamps& panneau);
    void LitDonnees();
    bool FauteDeDonnee(std::optional<FauteDonnee> (*cherche)());
    void MontreFaute(double DonneesEtude::*membre);
    bool HorsDePortee();
    void MontreBoutons();
    void Calculer();
    void Retour();

    const DescriptionSaisie& description_;
    std::vector<PanneauChamps*> panneaux_;
    PanneauPesanteur* pesanteur_ = nullptr;
    PanneauZones* zones_ = nullptr;
    QPushButton *calculer_ = nullptr, *retour_ = nullptr;
};

/// Panels one above the other.
QWidget* EmpilePanneaux(const std::vector<QWidget*>& panneaux, int etirement);
