// The first page of the program, on the desk while no child window is open: the kinds of study, the worked examples,
// the files of this run and what can be taken back, one click each.
#pragma once

#include <QScrollArea>

#include <filesystem>
#include <vector>

class QAction;
class QPushButton;
class QVBoxLayout;
struct ChoixEtude;

class PageAccueil : public QScrollArea {
    Q_OBJECT

public:
    explicit PageAccueil(QWidget* parent = nullptr);

    /// @param actions commands of the main window that stand below the files; one that is disabled is left out
    void Remplit(const std::vector<std::filesystem::path>& exemples, const std::vector<std::filesystem::path>& recents,
                 const std::vector<QAction*>& actions);

signals:
    void EtudeChoisie(const ChoixEtude& choix);
    void FichierChoisi(const std::filesystem::path& chemin);

private:
    QWidget* FaitEtudes();
    QWidget* FaitFichiers(const std::vector<std::filesystem::path>& exemples,
                          const std::vector<std::filesystem::path>& recents, const std::vector<QAction*>& actions);
    void AjouteFichiers(QVBoxLayout& colonne, const char* nom, int titre,
                        const std::vector<std::filesystem::path>& fichiers);
};

/// The study files that are delivered with the program, by name; those that can be calculated.
std::vector<std::filesystem::path> LesExemples();
