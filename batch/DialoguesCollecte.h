// Dialogues of the batch companion: nothing is shown, every box is kept in order for the result.
#pragma once

#include "platform/Dialogues.h"

#include <optional>
#include <string>
#include <vector>

class DialoguesCollecte final : public Dialogues {
public:
    struct Boite {
        std::string icone;
        std::string texte;
    };

    /// @param oui the answer to every question; an input box then takes its default, otherwise it is cancelled.
    explicit DialoguesCollecte(bool oui) : oui_(oui) {}

    const std::vector<Boite>& Boites() const { return boites_; }

    /// The text of the last critical box, empty without one.
    std::string DernierMotif() const {
        for (auto boite = boites_.rbegin(); boite != boites_.rend(); ++boite)
            if (boite->icone == NomIcone(Icone::Critique)) return boite->texte;
        return {};
    }

    void Message(Icone icone, const std::string& texte, const std::string&) override {
        boites_.push_back({NomIcone(icone), texte});
    }
    bool Question(const std::string& texte) override {
        boites_.push_back({"question", texte});
        return oui_;
    }
    std::optional<std::string> Saisie(const std::string&, const std::string& invite,
                                      const std::string& defaut) override {
        boites_.push_back({"question", invite});
        return oui_ ? std::optional(defaut) : std::nullopt;
    }
    std::optional<std::filesystem::path> FichierAOuvrir(const DemandeFichier&) override { return {}; }
    std::optional<std::filesystem::path> FichierASauver(const DemandeFichier&) override { return {}; }

private:
    static const char* NomIcone(Icone icone) {
        switch (icone) {
        case Icone::Information:
            return "information";
        case Icone::Avertissement:
            return "avertissement";
        default:
            return "critique";
        }
    }

    bool oui_;
    std::vector<Boite> boites_;
    InstalleDialogues installe_{*this};
};
