// What the data screens of the cams have in common: columns of panels, the entry of the zones, the way back and the
// calculation.
#pragma once

#include "cams/GroupesDonnees.h"
#include "cams/screens/PanneauZones.h"
#include "widgets/FenetreEnfant.h"

#include <span>
#include <string_view>
#include <vector>

class PanneauChamps;
class PanneauPesanteur;
class QLineEdit;
class QPushButton;
class QTabWidget;

struct DescriptionSaisie {
    const char* nom; ///< of the screen
    const DescriptionZones& zones;
    ChampsZones champsZones;
    std::span<const ChampEtude> champs;
    std::span<const GroupeDonnees> groupes; ///< in the order of entry
    const char* champDuree;                 ///< the one scalar that a zone cannot be completed without; none for all
    void (*calcule)();
    int titre = 384; ///< text number of its caption
};

class SaisieCame : public FenetreEnfant {
    Q_OBJECT

public:
    ~SaisieCame() override;

    bool PrendSaisie() override;
    bool MetAJour() override;
    void LitSaisie() override;
    /// Into the field of the first scalar that is an inertia.
    bool PrendInertie(double inertie) override;

protected:
    /// @param description must outlive the screen (a constant).
    SaisieCame(const DescriptionSaisie& description, QWidget* parent);

    /// The panel of a group, to be put into a column.
    /// @throws std::logic_error when there is no such group.
    QWidget* Panneau(std::string_view nom) const;

    /// The field of a scalar; none when no panel has it.
    QLineEdit* ChampDe(std::string_view nom) const;

    /// Lays out the screen: the columns from the left, the entry of the zones behind them, the buttons below.
    /// @param feuilles the screen has sheets, of which this is put before all others
    void Compose(const std::vector<QWidget*>& colonnes, QTabWidget* feuilles = nullptr);

    /// Says what is wrong with a scalar, and gives its field the focus.
    void RefuseDonnee(const char* champ, int texte);

    /// What this kind of cam asks of a zone besides its law; false after a box.
    virtual bool ControleZone(const Zone&) { return true; }

    /// What this kind of cam asks of its data besides the limits of their rows; false after a box.
    virtual bool ControleDonnees() { return true; }

    /// Results of other data are neither printed nor saved.
    virtual void PerimeResultats();

    /// What this kind of cam asks the user about its data before it is calculated.
    virtual void ProposeDonnees() {}

    /// From the record to the fields.
    void ChargeDonnees();

    void showEvent(QShowEvent* evenement) override;

private:
    bool Calcule();
    bool AcheveZone(Zone& zone);
    void RelieChamps();
    void LitPanneau(PanneauChamps& panneau);
    void LitDonnees();
    bool FauteDeDonnee(std::span<const ChampEtude> champs);
    bool HorsDePortee();
    void MontreBoutons();
    void Calculer();
    void Retour();

    const DescriptionSaisie& description_;
    std::vector<PanneauChamps*> panneaux_;
    PanneauPesanteur* pesanteur_ = nullptr; ///< none where gravity does not work on the follower
    PanneauZones* zones_ = nullptr;
    QPushButton *calculer_ = nullptr, *retour_ = nullptr;
};

/// Panels one above the other.
QWidget* EmpilePanneaux(const std::vector<QWidget*>& panneaux, int etirement);
