// The data screen of a plane cam with an oscillating arm: geometry and speed, masses, forces, then the zones one by
// one.
#pragma once

#include "core/Etude.h"

#include <QWidget>

#include <array>

class ChampNombre;
class Grille;
class PanneauChamps;
class QBoxLayout;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QScrollBar;
class ZoneDessin;

class DatoCama : public QWidget {
    Q_OBJECT

public:
    /// Opens on the study record: empty for a new study, filled with the data of one that was read.
    explicit DatoCama(QWidget* parent = nullptr);

signals:
    void EtudeCalculee(); ///< the study is calculated and its results are ready
    void Quitte();        ///< the screen is given up

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    QWidget* FaitDonnees();
    QWidget* FaitForces();
    QWidget* FaitZones();
    QWidget* FaitCadreZone();
    QBoxLayout* FaitBoutons();
    void RelieChamps();
    std::array<PanneauChamps*, 4> Panneaux() const { return {geometrie_, masses_, forces_, exterieures_}; }

    void MontreZone();
    void RemplitGrille();
    void LitDonnees();
    bool ChoisitLoi();
    void EntreNombreZones();
    bool DemandePourcentage(std::string& nomLoi);
    void TermineZone(const Zone& zone);
    void Suivante();
    void VaALaZone(int ligne);
    void Calculer();
    void Retour();
    void MontreBoutons();
    bool FauteDeDonnee();
    void ChangePesanteur(double angle);

    PanneauChamps *geometrie_, *masses_, *forces_, *exterieures_;
    ZoneDessin *schema_, *pesanteur_;
    ChampNombre *anglePesanteur_, *nombreZones_;
    QScrollBar* sensPesanteur_;
    QComboBox *pointsParDegre_, *loi_;
    QGroupBox* cadreZone_;
    ChampNombre *angleDepart_, *angleFinal_, *angleCame_, *symetrie_;
    Grille* grille_;
    QLabel* somme_;
    QPushButton *suivante_, *calculer_, *retour_;
    std::int16_t zonesEntrees_ = 0; ///< zones accepted so far, from the first
};
