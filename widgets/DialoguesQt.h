// The dialogues on the screen of the desktop. Each stands over the active window; buttons carry the texts of the
// working language.
#pragma once

#include "platform/Dialogues.h"

class DialoguesQt : public Dialogues {
public:
    void Message(Icone icone, const std::string& texte, const std::string& titre) override;
    bool Question(const std::string& texte) override;
    std::optional<std::string> Saisie(const std::string& titre, const std::string& invite,
                                      const std::string& defaut) override;
    std::optional<std::filesystem::path> FichierAOuvrir(const DemandeFichier& demande) override;
    /// A name without an extension gets that of the chosen filter; replacing is asked for the final name.
    std::optional<std::filesystem::path> FichierASauver(const DemandeFichier& demande) override;
};

/// `chemin`, with the extension of a filter's pattern ("*.Ang") when it has none of its own.
std::filesystem::path AvecExtension(const std::filesystem::path& chemin, const std::string& motif);
