// The main window: menus, tool bar, and the commands that begin, open, save and print a study. It knows its child
// windows by their base only; where they stand is the matter of their desk.
#pragma once

#include "app/Aide.h"
#include "app/Commandes.h"
#include "app/TravauxRepris.h"
#include "data/Configuration.h"

#include <QMainWindow>
#include <QTimer>

#include <array>
#include <deque>
#include <filesystem>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class QAction;
class QLabel;
class QToolBar;
class BureauEcrans;
class FenetreEnfant;
class PageAccueil;
struct ChoixEtude;
struct ChoixLoi;
struct EcranEnfant;
struct Remise;
struct TypeEtude;

class MdiCamA : public QMainWindow {
    Q_OBJECT

public:
    /// @param configuration gives the check marks of the print items; its language is already the working language.
    explicit MdiCamA(const Configuration& configuration);

    /// Closes every child screen and leaves the main window alone.
    void FermeEcrans();

    /// Clears `Erreur`; while the cam turns it says so, shows the cam's tab and sets `Erreur`: the caller gives up.
    void RefuseSiRotation();

    /// Shows a child screen, made anew.
    /// @return the screen; none when it is not built.
    FenetreEnfant* OuvreEcran(std::string_view nom);

    /// The child screen of that name that is open, shown or hidden; none otherwise.
    FenetreEnfant* EcranOuvert(std::string_view nom) const;

    /// Begins a study of the kind chosen; what was open is discarded.
    void CommenceEtude(const ChoixEtude& choix);

    /// Begins the study of the law chosen; what was open is discarded.
    void EtudieLoi(const ChoixLoi& choix);

    /// Reads, calculates and shows a study file; what was open is discarded. A file that cannot be read is told in the
    /// status line.
    void OuvreFichier(const std::filesystem::path& chemin);

    /// Opens a file as it was named, dropped or chosen again: a study file in the place of what is open, a list in the
    /// window that holds it.
    void OuvreAutre(const std::filesystem::path& chemin);

    /// A later start of the program has come: this window comes to the front, and opens what that start was to open,
    /// once no box, menu or other question is open.
    void Accueille(const Remise& remise);

    /// Takes back what was given up last without being saved; what is open and not saved can be taken back in its turn.
    void Reprendre();

    /// Takes another working language: texts, screens, help.
    void ChangeLangue(const std::string& langue);

    /// Tells something in the status line, where it stays.
    void Annonce(const std::string& texte);

protected:
    void closeEvent(QCloseEvent* evenement) override;
    void dragEnterEvent(QDragEnterEvent* evenement) override;
    void dropEvent(QDropEvent* evenement) override;

private:
    static std::span<const EntreeMenu> LeMenu();

    // Building, in MenusMdi.cpp.
    void ConstruitMenus();
    void ConstruitCommande(QMenu& menu, const EntreeMenu& entree);
    void ConstruitBarre();
    void ConstruitBouton(const EntreeMenu& entree);
    void ConstruitLangues(QMenu& menu);
    void AjouteEtudes(QMenu& menu);
    void AjouteOuvertures(QMenu& menu);
    void AjouteLoisUsuelles(QMenu& menu);
    void AjouteLoisSpeciales(QMenu& menu);
    void AjouteLois(QMenu& menu, std::span<const char* const> cles);
    void AppliqueTextes();
    void AppliqueTextesBouton(const Commande& commande);
    QAction* Action(const char* nom) const;
    std::vector<QAction*> EntreesMarques() const;

    // Commands.
    void Nouveau();
    void Ouvrir();
    void OuvreParType(const TypeEtude* type);
    void Sauvegarder();
    void Imprimer();
    void ImprimeFenetre(FenetreEnfant& fenetre);
    std::array<bool, NombreImpressions> MarquesCochees() const;
    void ConfigureImpression();
    void MontreAide();
    void MontrePropos();
    void MontreLoisUsuelles();
    void MontreLoisSpeciales();
    void MontreLois(const char* chooser);
    void SauveConfiguration();
    void Quitter();

    // Files, in OuverturesMdi.cpp.
    void OuvreListe(const EcranEnfant& ecran, const std::filesystem::path& chemin);
    bool CalculeOuverte();
    void NoteRecent(const std::filesystem::path& chemin);
    void MontreRecents();
    void MontreAccueil();

    // Later starts of the program, in RemisesMdi.cpp.
    void OuvreQuandLibre(const std::filesystem::path& fichier);
    void OuvreRemis();
    void VientDevant(const std::string& jeton);

    // What is entered and not saved, in RepriseMdi.cpp.
    bool MontreEtude(const FenetreEnfant& fenetre) const;
    Travail TravailDe(FenetreEnfant& fenetre) const;
    std::vector<Travail> TravauxOuverts() const;
    void NoteSauve(FenetreEnfant& fenetre);
    void NoteEtudeSauvee();
    void Abandonne(std::vector<Travail> travaux);
    void MontreOfferts();
    void Rouvre(const Travail& travail);
    void GardeTravaux();

    // Child windows.
    bool RotationEmpeche();
    void Relie(FenetreEnfant& fenetre);
    void MontreEcran(const char* nom);
    void DonneInertie(double inertie);
    void MontreResultats();
    void Quitte(FenetreEnfant& fenetre);

    BureauEcrans* bureau_;
    PageAccueil* accueil_;
    QToolBar* barre_;
    QLabel* etat_;
    TravauxRepris travaux_;
    Aide aide_;
    std::map<std::string, std::string, std::less<>> sauves_; ///< what each window held when it was opened or last saved
    std::vector<std::filesystem::path> recents_;             ///< opened or saved in this run, the last first
    std::deque<std::filesystem::path> remis_;                ///< handed over or dropped, and not opened yet
    QTimer attenteRemis_;                                    ///< until the next of them can be opened
    QTimer garde_;                                           ///< brings the recovery file up to date
};
