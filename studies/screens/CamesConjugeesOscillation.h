// The screen of a pair of conjugate cams with an oscillating arm: its data on the first sheet, its results on the
// others.
#pragma once

#include "cams/screens/SaisieCame.h"

class Grille;
class PanneauRotation;
class QLabel;
class QTabWidget;
class Remarques;
class ZoneDessin;

class CamesConjugeesOscillation : public SaisieCame {
    Q_OBJECT

public:
    /// Opens on the study record: empty for a new study, with the results of one that was read and calculated.
    explicit CamesConjugeesOscillation(QWidget* parent = nullptr);

    void Montre() override;
    void MontreNomFichier() override;
    void MontreRotation() override;

protected:
    bool ControleZone(const Zone& zone) override;
    bool ControleDonnees() override;
    void PerimeResultats() override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    QWidget* FaitProfils();
    QWidget* FaitResultats();
    QWidget* FaitListages();
    QWidget* FaitGraphiques(int titre1, ZoneDessin** zone1, int titre2, ZoneDessin** zone2);
    void ActiveResultats(bool actifs);
    void MontreEchelle();

    QTabWidget* feuilles_;
    PanneauRotation* cames_;
    QLabel* echelle_;
    Grille *remarquables_, *controle_, *mouvement_, *efforts_;
    Remarques* notesRemarquables_;
    ZoneDessin *profils_, *bras_, *rayons_, *forces_, *couples_;
};
