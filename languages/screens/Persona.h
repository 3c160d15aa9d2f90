// The language editor: a language is added, translated text by text, and deleted. What is stored reaches the catalogue
// at once; the delivered languages are read only.
#pragma once

#include "data/BaseDonnees.h"
#include "widgets/FenetreEnfant.h"

#include <string>
#include <vector>

class AutresLangues;
class BarreNombre;
class ChampTraduction;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QToolButton;
class Remarques;

class Persona : public FenetreEnfant {
    Q_OBJECT

public:
    explicit Persona(QWidget* parent = nullptr);
    ~Persona() override;

    QSize sizeHint() const override;

    /// The wording that is typed and not stored yet.
    std::string Travail() const override;
    void Reprend(const std::string& contenu) override;

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    QWidget* FaitLangues();
    QLayout* FaitNumero();
    QLayout* FaitRecherche();
    QWidget* FaitTraduction();
    QWidget* FaitAutres();
    void Relie();

    void Ouverture();
    void ChoisitLangue(const std::string& langue);
    bool EntreNom();
    void CreeLangue(const std::string& nom);
    void Supprime();
    void Va(long numero);
    void MontreTexte();
    void MontreEtat();
    void MontreFautes();
    void QuitteTexte();
    void Sauver();
    void VaAuProchain();
    void Cherche();
    void VaAuTrouve(int pas);
    void MontreTrouves();
    void Importe();
    void Exporte();
    bool Modifiable() const;

    JeuEnregistrements textes_;
    std::string langue_; ///< the one that is worked on; empty for none
    long numero_ = 1;    ///< of the text that is shown
    bool enQuestion_ = false;
    std::vector<long> trouves_;
    int rangTrouve_ = -1; ///< in `trouves_`, of the text last gone to; -1 before the first

    QListWidget* liste_;
    QLineEdit *nom_, *cherche_;
    BarreNombre* barre_;
    QLabel *position_, *nombreTrouves_, *longueur_, *aTraduire_;
    ChampTraduction* traduction_;
    Remarques* remarques_;
    AutresLangues* autres_;
    QToolButton *precedent_, *suivant_;
    QPushButton *sauver_, *supprime_, *prochain_, *importer_, *exporter_, *retour_;
};
