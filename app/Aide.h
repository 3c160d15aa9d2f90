// The help of the program: its file, one per delivered language, and the window that shows it.
#pragma once

#include <QObject>

#include <filesystem>
#include <memory>

class QMdiArea;
class QWidget;
class VisionneuseAide;

/// Chooses the help file by the working language; for a language without one, asks which to take. Any answer but "E",
/// "F" and "U", a cancel too, gives the French file.
void ChoisitAide();

/// The help file chosen last; empty before the first choice.
const std::filesystem::path& FichierAide();

/// Answers F1 in every window of the program, a modal box too. The file is opened when help is first asked for.
class Aide : public QObject {
    Q_OBJECT

public:
    /// @param bureau the desk of child windows
    explicit Aide(const QMdiArea& bureau);
    ~Aide() override;

    /// Shows the page of the screen that holds a control: of the nearest thing around it that has a page, else of the
    /// child window in front, else the first one. A missing file is told.
    void Montre(const QWidget* controle);

    /// Another file was chosen: what is open of the old one is shown from it.
    void ChangeFichier();

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    bool Ouvre();
    QString PageDe(const QWidget* controle) const;
    void MetDevant();

    const QMdiArea& bureau_;
    std::unique_ptr<VisionneuseAide> fenetre_;
};
