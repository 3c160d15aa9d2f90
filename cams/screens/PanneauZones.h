// The entry of the motion zones, one after the other: number of zones, points per degree, the frame of the present
// zone, and the summary table. What differs from one kind of cam to another is said by a description.
#pragma once

#include "cams/DescriptionZones.h"

#include <QGroupBox>

#include <functional>

class ChampNombre;
class Grille;
class QComboBox;
class QLabel;
class QPushButton;
class Remarques;

/// The control names of the fields.
struct ChampsZones {
    const char *nombre, *depart, *finale, *came, *symetrie;
    int suivante = 14; ///< text number of the caption of `Suivante`
};

class PanneauZones : public QGroupBox {
    Q_OBJECT

public:
    /// @param acheve completes a zone whose law and symmetry are accepted, from the data of the screen; false after a
    ///        box that says why it cannot
    PanneauZones(const DescriptionZones& description, const ChampsZones& champs, std::function<bool(Zone&)> acheve,
                 QWidget* parent = nullptr);

    /// Leaving the number of zones for this control is always free.
    void LaisseAller(const QWidget* retour) { retour_ = retour; }

    void PrendFocus();
    QPushButton* BoutonSuivante() const { return suivante_; }
    bool Complet() const { return etude.donnees.NombreZones > 0 && zonesEntrees_ == etude.donnees.NombreZones; }

    /// Takes over what was typed and not yet accepted, as `Suivante` would.
    /// @return false when it is refused or a zone is still missing, after the box that says so, with the focus there.
    bool PrendSaisie();

    /// What was typed, accepted or not, into the record, for what is kept of a study given up: points per degree where
    /// the list takes them, and the zone at hand.
    void LitSaisie();

    /// From the list to the record, checked.
    /// @return false when it is refused, after the box that says so, with the focus on the list.
    bool LitPointsParDegre();

    /// Whether the zones make a number of points that can be calculated; false after a box, the focus on the list.
    bool ControlePoints();

signals:
    void Change();                       ///< zones were accepted or lost: `Complet` may have changed
    void Modifie();                      ///< the zones of the record are others
    void LoiLue(const QString& fichier); ///< a law file, its name, replaced the catalogue
    void Termine();                      ///< the last zone was accepted on the way through them

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    QWidget* FaitCadreZone(const ChampsZones& champs);
    void RelieChamps();
    void PrendFocusZone();
    void MontreZone();
    void MontreChamps(const Zone& zone);
    void PrendPointsParDegre(const std::string& texte);
    void MontreLoi(const QString& nom);
    void MontreBoutons();
    void RemplitGrille();
    void ProposeFichier();
    void DemandeChoix(bool continuer);
    bool ChoisitLoi();
    bool ChercheFichier();
    bool FichierPermis() const;
    bool EntreNombreZones();
    bool DemandePourcentage(std::string& nomLoi);
    void Suivante();
    Zone LitZone() const;
    bool ZoneModifiee() const;
    bool AccepteZone();
    void GardeZone(const Zone& zone);
    void VaALaZone(int ligne);

    const DescriptionZones& description_;
    std::function<bool(Zone&)> acheve_;
    const QWidget* retour_ = nullptr;
    ChampNombre *nombreZones_, *valeurDepart_, *valeurFinale_, *angleCame_, *symetrie_;
    QComboBox *pointsParDegre_, *loi_;
    QGroupBox* cadreZone_;
    Grille* grille_;
    QLabel* somme_;
    Remarques* remarques_;
    QPushButton* suivante_;
    Zone zoneMontree_; ///< what the fields held when the zone was shown
    std::int16_t numeroMontre_ = 0;
    QString loiChoisie_; ///< the last law that was accepted in the list
    bool choixDemande_ = false, continuer_ = false;
    std::int16_t zonesEntrees_ = 0; ///< zones accepted so far, from the first
};
