// A child window, as far as the main window knows it: its name, its way back, what it takes of saving and printing, and
// what it tells. A screen overrides what is its own; the desk of child windows opens and closes it.
#pragma once

#include "core/Etude.h"

#include <QWidget>

#include <filesystem>

class Imprimante;
class QAbstractButton;

class FenetreEnfant : public QWidget {
    Q_OBJECT

public:
    std::string Nom() const { return objectName().toStdString(); }

    /// True for the window that the user works in.
    bool EnAvant() const;

    /// Leaves the screen as its own way back does.
    void Revient();

    /// True while saving and printing go to this window instead of to a cam study: its flag is set. A window that has
    /// none and stays beside the studies says here when it takes them.
    virtual bool Active() const;

    /// Whether the active window has anything to save, or to print.
    virtual bool PretAEnregistrer() const;
    virtual bool PretAImprimer() const;

    /// Saves what the active window holds.
    virtual void Enregistrer() {}

    /// What the window asks before its pages are shown; false when the user gives up.
    virtual bool PrepareImpression() { return true; }

    /// Prints what the active window holds, and ends the document; its title is the window's.
    virtual void Imprime(Imprimante&) const {}

    /// Takes what was typed into the study record.
    /// @return false when it is refused, after the box that says so.
    virtual bool PrendSaisie() { return true; }

    /// As `PrendSaisie`, and calculates when the results are those of other data.
    /// @return false when the study cannot be calculated, after the box that says why.
    virtual bool MetAJour() { return PrendSaisie(); }

    /// The results of the study record are to be shown, those of another calculation.
    virtual void Montre() {}

    /// The study has another file name.
    virtual void MontreNomFichier() {}

    /// Brings the turning cam to the front, where this window has one.
    virtual void MontreRotation() {}

    /// True for a window that holds nothing of the study: it stays open when another one is begun or opened.
    virtual bool Demeure() const { return false; }

    /// The working language has changed while this window was open.
    virtual void AppliqueTextes() {}

    /// Takes a moment of inertia into the field that asks for one, and gives it the focus.
    /// @param inertie kg m²
    /// @return false when this window asks for none
    virtual bool PrendInertie(double) { return false; }

    /// Replaces the list that the window holds by that of a file; only where its row names files of its own.
    /// @throws ErreurExecution the file cannot be read, or is no such list; the list is then as it was.
    virtual void OuvreListe(const std::filesystem::path&) {}

    /// Takes what stands in the fields into the study record, as leaving each of them would.
    virtual void LitSaisie() {}

    /// What was entered in this window and would be lost with it, as text for `Reprend`. It is kept for the case that
    /// the window is given up, or the program killed, unless it is what it was when the window was opened or last
    /// saved. Empty where nothing would be lost, and for a window of a cam study, which is kept as a study.
    virtual std::string Travail() const { return {}; }

    /// Shows again what `Travail` gave, in a window just opened.
    /// @throws ErreurExecution when it is damaged.
    virtual void Reprend(const std::string& /*contenu*/) {}

    /// What the window leaves in the study record when it is closed. What an active window holds goes with it.
    virtual void Ferme();

signals:
    void EtudeCalculee();                       ///< the study is calculated and its results are to be shown
    void EtudeRecalculee();                     ///< what this window shows was calculated
    void FichierEnregistre(const QString& nom); ///< name without folder
    void ImpressionDemandee();                  ///< this window is to be printed
    void Annonce(const QString& texte);         ///< for the status line
    void InertieOfferte(double inertie);        ///< for the field of another window that asks for one, kg m²
    void Quitte();                              ///< the window is given up

protected:
    /// @param nom the screen's name
    /// @param active its flag, set from here on until it is closed; none for a window of a cam study
    explicit FenetreEnfant(const char* nom, QWidget* parent, Booleen16 DonneesEtude::*active = nullptr);

    /// The button of the way back, which the cross of the window clicks.
    void RevientPar(QAbstractButton& bouton);

    /// Escape goes back too. Only where that gives nothing up: in a screen that is typed into, Escape closes an open
    /// list or a box, and leaving takes the button.
    void RevientAussiParEchappement();

private:
    Booleen16 DonneesEtude::*active_;
    QAbstractButton* retour_ = nullptr;
};
