// The desk of child windows: which are open, where they stand, which is in front, and which of them takes saving and
// printing. It knows each by its row only (app/Ecrans).
#pragma once

#include <QMdiArea>
#include <QPointer>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

class FenetreEnfant;
class QMdiSubWindow;

class BureauEcrans : public QMdiArea {
    Q_OBJECT

public:
    explicit BureauEcrans(QWidget* parent = nullptr);

    /// Opens a child window, made anew.
    /// @return none when it is not built.
    FenetreEnfant* Ouvre(std::string_view nom);

    /// The child window of that name that is open, shown or hidden; none otherwise.
    FenetreEnfant* Ouverte(std::string_view nom) const;

    /// All that are open, in the order of their rows.
    std::vector<FenetreEnfant*> Ouvertes() const;

    /// Shows a child window as it was hidden; opens it when it is not open.
    void Montre(std::string_view nom);

    /// Takes the page that stands on the desk while no child window does.
    void PlaceAccueil(QWidget* accueil);

    /// What a child window opens at: the room that it asks for, as far as the desk has it.
    QSize TailleOuverte(const QMdiSubWindow& cadre) const;

    void Cache(std::string_view nom);
    void Ferme(std::string_view nom);

    /// Closes all that belong to the study, in the order of their rows.
    void FermeTout();

    /// The window that saving and printing go to; none when they go to the cam study.
    FenetreEnfant* Active() const;

    /// Hands a moment of inertia (kg m²) to the first visible window that asks for one, and brings it to the front.
    /// @return that window; none when no window asks
    FenetreEnfant* DonneInertie(double inertie);

    /// Tells every open window.
    void Dit(void (FenetreEnfant::*quoi)()) const;

    /// Asks the windows that are to be seen, until one refuses; false then.
    bool Obtient(bool (FenetreEnfant::*quoi)()) const;

signals:
    /// A child window was made: whoever listens to it does so from now on.
    void Creee(FenetreEnfant* fenetre);

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

private:
    QMdiSubWindow* Cadre(std::string_view nom) const;
    void Place(QMdiSubWindow& cadre);
    void MontreAccueil();

    QWidget* accueil_ = nullptr;
    std::map<std::string, QPointer<QMdiSubWindow>, std::less<>> cadres_; ///< of the open windows, by name
};
