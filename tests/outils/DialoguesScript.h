// Dialogues for tests: every box is recorded; what is asked is answered from a script, and a question that nobody
// scripted fails the test.
#pragma once

#include "platform/Dialogues.h"

#include <gtest/gtest.h>

#include <deque>

class DialoguesScript : public Dialogues {
public:
    struct Boite {
        Icone icone;
        std::string texte;
        std::string titre = {};
    };

    std::vector<Boite> boites;
    std::vector<std::string> demandes; ///< texts of what was asked, in order
    std::deque<bool> reponses;
    std::deque<std::optional<std::string>> saisies;
    std::deque<std::optional<std::filesystem::path>> fichiers;
    std::filesystem::path dossier; ///< that the last file dialogue began in

    /// Text of the last box; empty before the first.
    std::string Derniere() const { return boites.empty() ? "" : boites.back().texte; }

    void Message(Icone icone, const std::string& texte, const std::string& titre) override {
        boites.push_back({icone, texte, titre});
    }
    bool Question(const std::string& texte) override { return Suivante(reponses, texte); }
    std::optional<std::string> Saisie(const std::string& titre, const std::string& invite,
                                      const std::string& defaut) override {
        return Suivante(saisies, titre + "|" + invite + "|" + defaut);
    }
    std::optional<std::filesystem::path> FichierAOuvrir(const DemandeFichier& demande) override {
        dossier = demande.dossier;
        return Suivante(fichiers, demande.titre);
    }
    std::optional<std::filesystem::path> FichierASauver(const DemandeFichier& demande) override {
        dossier = demande.dossier;
        return Suivante(fichiers, demande.titre);
    }

private:
    template <class T> T Suivante(std::deque<T>& script, const std::string& texte) {
        demandes.push_back(texte);
        if (script.empty()) {
            ADD_FAILURE() << "nobody scripted an answer to: " << texte;
            return T{};
        }
        T reponse = script.front();
        script.pop_front();
        return reponse;
    }

    InstalleDialogues installe_{*this};
};
