// The first page of the program, on the desk while no child window is open: the kinds of study, the worked examples,
// the files of this run and what can be taken back, one click each.
#pragma once

#include <QScrollArea>

#include <filesystem>
#include <vector>

class BoutonImage;
class QAction;
class QHBoxLayout;
class QLabel;
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
    void ConstruitEtudes();
    QWidget* FaitFichiers(const std::vector<std::filesystem::path>& exemples,
                          const std::vector<std::filesystem::path>& recents, const std::vector<QAction*>& actions);
    void AjouteFichiers(QVBoxLayout& colonne, const char* nom, int titre,
                        const std::vector<std::filesystem::path>& fichiers);

    QHBoxLayout* rangee_ = new QHBoxLayout;
    QLabel* titre_;
    std::vector<BoutonImage*> etudes_; ///< in the order of `LesChoixEtude`
    QWidget* fichiers_ = nullptr;
};

/// The files that are delivered with the program and that it opens by themselves, by name.
std::vector<std::filesystem::path> LesExemples();
