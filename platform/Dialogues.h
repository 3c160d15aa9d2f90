// What the program asks and tells: message boxes, questions, input boxes, file dialogues. The desktop shows them, the
// batch companion collects them, a test scripts them. Calculations announce through this interface and never know a
// window.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

enum class Icone { Information, Avertissement, Critique };

/// One line of a file dialogue's filter: "Came plate (*.ang)" and "*.Ang".
struct FiltreFichier {
    std::string libelle;
    std::string motif;
};

struct DemandeFichier {
    std::string titre;
    std::filesystem::path dossier; ///< folder shown first
    std::string nom;               ///< name filled in at first, may be empty
    std::vector<FiltreFichier> filtres;
};

class Dialogues {
public:
    virtual ~Dialogues() = default;

    /// Shows a box with one button and waits for it.
    /// @param titre of the box; empty for the name of the program
    virtual void Message(Icone icone, const std::string& texte, const std::string& titre = {}) = 0;

    /// Asks with Yes and No; true for Yes.
    virtual bool Question(const std::string& texte) = 0;

    /// Asks for a text. No value when the user cancels.
    virtual std::optional<std::string> Saisie(const std::string& titre, const std::string& invite,
                                              const std::string& defaut) = 0;

    /// Asks for an existing file. No value when the user cancels.
    virtual std::optional<std::filesystem::path> FichierAOuvrir(const DemandeFichier& demande) = 0;

    /// Asks for a file to write, and whether one that exists may be replaced. No value when the user cancels.
    virtual std::optional<std::filesystem::path> FichierASauver(const DemandeFichier& demande) = 0;
};

/// The dialogues in use. There are always some: until others are installed, messages are dropped and questions are
/// refused.
Dialogues& LesDialogues();

/// Puts other dialogues in use, for the life of this object.
class InstalleDialogues {
public:
    explicit InstalleDialogues(Dialogues& nouveaux);
    ~InstalleDialogues();
    InstalleDialogues(const InstalleDialogues&) = delete;
    InstalleDialogues& operator=(const InstalleDialogues&) = delete;

private:
    Dialogues* anciens_;
};
