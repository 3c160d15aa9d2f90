// The results of a calculated study: remarkable values, point-to-point listings, graphs, the cam that turns, and a
// panel where a few data may be changed and the study calculated again.
#pragma once

#include "widgets/FenetreEnfant.h"

#include <vector>

class ChampNombre;
class Grille;
class PanneauRotation;
class QGridLayout;
class QGroupBox;
class QLabel;
class QPushButton;
class QTabWidget;
class Remarques;
class ZoneDessin;
struct TypeEtude;
struct ValeurRemarquable;

class Resultat : public FenetreEnfant {
    Q_OBJECT

public:
    explicit Resultat(QWidget* parent = nullptr);

    bool PrendSaisie() override;
    void Montre() override;
    void MontreNomFichier() override;
    void MontreRotation() override;

private:
    /// A remarkable value and its labels.
    struct LigneValeur {
        const ValeurRemarquable* description;
        QLabel *libelle, *valeur, *angle;
    };

    QWidget* FaitValeurs();
    QWidget* FaitGroupe(const char* nom, int groupe);
    QWidget* FaitRecalcul();
    QWidget* FaitListages();
    QWidget* FaitGraphiques(const char* titre1, ZoneDessin** zone1, const char* titre2, ZoneDessin** zone2);
    void RemplitValeurs(const TypeEtude& type);
    void RemplitGrilles(const TypeEtude& type);
    void MontreSelonType(const TypeEtude& type);
    void RemplitGraphiques();
    void RemplitRecalcul(const TypeEtude& type);
    bool FauteDeDonnee(const TypeEtude& type);
    bool RecalculModifie(const TypeEtude& type) const;
    bool Recalcul();
    void Exporte(void (*ecrit)());
    void Quitter();
    bool RefuseSiRotation();

    QTabWidget *onglets_, *listages_;
    std::vector<LigneValeur> valeurs_;
    QLabel* notes_;
    QGroupBox* donnees_;
    QGridLayout* dispositionDonnees_;
    Grille *zones_, *grilleGalet_, *grilleBras_, *grilleEfforts_, *grilleCame_;
    ZoneDessin *graphiqueGalet_, *graphiqueBras_, *graphiqueForce_, *graphiqueCouple_;
    Remarques* remarques_;
    PanneauRotation* came_;
    std::vector<ChampNombre*> champs_;
    QPushButton *recalcul_, *quitter_;
};
