// The main window: menus, tool bar, child screens, and the commands that begin, open and save a study.
#pragma once

#include "data/Configuration.h"

#include <QMainWindow>
#include <QPointer>

#include <filesystem>
#include <map>
#include <span>
#include <string>
#include <vector>

class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QToolBar;
class EcranLoi;
struct ChoixEtude;
struct ChoixLoi;
struct EcranEnfant;
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
    QWidget* OuvreEcran(const std::string& nom);

    /// The child screen of that name that is open, shown or hidden; none otherwise.
    QWidget* EcranOuvert(const std::string& nom) const;

    /// Begins a study of the kind chosen; what was open is discarded.
    void CommenceEtude(const ChoixEtude& choix);

    /// Begins the study of the law chosen; what was open is discarded.
    void EtudieLoi(const ChoixLoi& choix);

    /// Reads, calculates and shows a study file. A file that cannot be read is told in the status line.
    void OuvreFichier(const std::filesystem::path& chemin);

    /// Takes another working language: texts, screens, help.
    void ChangeLangue(const std::string& langue);

    /// Tells something in the status line, where it stays.
    void Annonce(const std::string& texte);

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;

private:
    /// One entry of the menus. `niveau` 0 stands on the menu bar; an entry with deeper ones behind it is a menu.
    struct EntreeMenu {
        const char* nom;
        int niveau;
        int texte;
        int aide; ///< text number of the hint in the status line; 0 for none
        enum Genre { Menu, Commande, Marque } genre;
        void (MdiCamA::*commande)(); ///< none while its screen is not built: the entry is disabled
        const char* raccourci = "";
        bool separe = false; ///< a line stands above it
    };

    /// One button of the tool bar: its key, the menu entry that it does the same as, and its drop-down entries.
    struct BoutonBarre {
        const char* cle;
        const char* entree;
        int aide;
        void (MdiCamA::*sousMenu)(QMenu&) = nullptr;
        bool separe = false;
    };

    static std::span<const EntreeMenu> LeMenu();
    static std::span<const BoutonBarre> LaBarre();

    // Building, in MenusMdi.cpp.
    void ConstruitMenus();
    void ConstruitBarre();
    void ConstruitLangues(QMenu& menu);
    void AjouteEtudes(QMenu& menu);
    void AjouteOuvertures(QMenu& menu);
    void AjouteLoisUsuelles(QMenu& menu);
    void AjouteLoisSpeciales(QMenu& menu);
    void AjouteLois(QMenu& menu, std::span<const char* const> cles);
    void AppliqueTextes();
    QAction* Action(const char* nom) const;
    std::vector<QAction*> MarquesImpression() const;

    // Commands.
    void Nouveau();
    void Ouvrir();
    void OuvreParType(const TypeEtude* type);
    void Sauvegarder();
    void Imprimer();
    void ConfigureImpression();
    void MontrePropos();
    void MontreLoisUsuelles();
    void MontreLoisSpeciales();
    void MontreLois(const char* chooser);
    void SauveConfiguration();
    void Quitter();

    // Child screens.
    bool RotationEmpeche();
    EcranLoi* EcranLoiActif() const;
    void FermeEcran(const std::string& nom);
    void QuitteEcran(const EcranEnfant& ecran);
    bool CalculeOuverte();
    void MontreResultats();
    void PlaceSousFenetre(QMdiSubWindow& sousFenetre);

    QMdiArea* bureau_;
    QToolBar* barre_;
    QLabel* etat_;
    std::map<std::string, QPointer<QMdiSubWindow>> ecrans_; ///< open child screens by name
};
