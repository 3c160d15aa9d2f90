// What the data screens of plane cams have in common: columns of panels, the entry of the zones, the way back and the
// calculation.
#pragma once

#include "planecams/LimitesSaisie.h"
#include "planecams/screens/PanneauZones.h"

#include <QWidget>

#include <optional>
#include <vector>

class PanneauChamps;
class PanneauPesanteur;
class QPushButton;

struct DescriptionSaisie {
    const char* nom; ///< of the screen
    DescriptionZones zones;
    std::optional<FauteDonnee> (*chercheFaute)();
    void (*calcule)();
};

class SaisieCame : public QWidget {
    Q_OBJECT

public:
    ~SaisieCame() override;

signals:
    void EtudeCalculee(); ///< the study is calculated and its results are ready
    void Quitte();        ///< the screen is given up

protected:
    /// @param description must outlive the screen (a constant).
    SaisieCame(const DescriptionSaisie& description, QWidget* parent);

    /// Lays out the screen: the columns from the left, the entry of the zones behind them, the buttons below.
    /// @param panneaux in the order of entry
    void Compose(const std::vector<QWidget*>& colonnes, const std::vector<PanneauChamps*>& panneaux,
                 PanneauPesanteur* pesanteur);

    /// What this kind of cam asks of a zone besides its law; false after a box.
    virtual bool ControleZone(const Zone&) { return true; }

    void showEvent(QShowEvent* evenement) override;

private:
    bool AcheveZone(Zone& zone);
    void PerimeResultats();
    void LitPanneau(PanneauChamps& panneau);
    void LitDonnees();
    bool FauteDeDonnee();
    void MontreFaute(double Etude::*membre);
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
