#include "data/FabriqueBase.h"

#include "core/ErreurExecution.h"
#include "core/FichierEntier.h"
#include "core/Nombres.h"
#include "data/BaseDonnees.h"
#include "data/Demarrage.h"
#include "data/Textes.h"

#include <algorithm>
#include <string_view>

namespace {

struct Table {
    const char* nom;
    const char* cle;
    std::vector<std::string_view> champsTexte; ///< all other fields are numbers
    bool texteApresLangue = false;             ///< every field from the first language on is a text
};

const Table tables[] = {
    {"Idiomas", "Numero", {}, true},
    {"Lois", "NomLoi", {"NomLoi"}},
    {"Table Galets", "ReferenceGalet", {"ReferenceGalet"}},
    {"Table Galets Arbres Paralleles", "ReferenceGalet", {"ReferenceGalet"}},
    {"Table Mecanismes Cylindriques", "Modele", {"Modele"}},
    {"Table Mécanismes Globique", "Modele", {"Modele"}},
};

std::vector<std::string_view> Coupe(std::string_view texte, char separateur) {
    std::vector<std::string_view> morceaux;
    for (std::size_t debut = 0;;) {
        const auto fin = texte.find(separateur, debut);
        morceaux.push_back(texte.substr(debut, fin - debut));
        if (fin == std::string_view::npos) return morceaux;
        debut = fin + 1;
    }
}

/// A line break inside a text is written "\\n" in the table.
std::string AvecSautsDeLigne(std::string_view cellule) {
    std::string texte(cellule);
    for (auto place = texte.find("\\n"); place != std::string::npos; place = texte.find("\\n", place))
        texte.replace(place, 2, "\n");
    return texte;
}

Valeur ValeurCellule(std::string_view cellule, const DefinitionChamp& champ, const std::string& ou) {
    if (cellule.empty()) return {};
    if (!champ.numerique) return AvecSautsDeLigne(cellule);
    if (!EstNombre(cellule)) throw ErreurExecution(NumeroErreur::TypeIncompatible, ou + "." + champ.nom);
    return Val(cellule);
}

/// A number that changes with what the tables hold (FNV-1a), never 0.
std::int32_t Empreinte(const std::string& contenu) {
    std::uint32_t empreinte = 2166136261U;
    for (const char c : contenu) empreinte = (empreinte ^ static_cast<unsigned char>(c)) * 16777619U;
    return static_cast<std::int32_t>(empreinte >> 1U | 1U);
}

/// @return the content of the file
std::string RemplitTable(BaseDonnees& base, const Table& table, const std::filesystem::path& fichier) {
    std::string contenu = LitFichierEntier(fichier);
    auto lignes = Coupe(contenu, '\n');
    if (!lignes.empty() && lignes.back().empty()) lignes.pop_back();
    if (lignes.empty()) throw ErreurExecution(NumeroErreur::FinDeFichier, fichier.string());

    std::vector<DefinitionChamp> champs;
    for (const auto nom : Coupe(lignes[0], '\t')) {
        const bool texte = std::count(table.champsTexte.begin(), table.champsTexte.end(), nom) > 0 ||
                           (table.texteApresLangue && champs.size() >= static_cast<std::size_t>(PremiereLangue));
        champs.push_back({std::string(nom), !texte});
    }
    base.CreeTable(table.nom, champs, table.cle);
    JeuEnregistrements jeu = base.OuvreTable(table.nom);
    for (std::size_t l = 1; l < lignes.size(); ++l) {
        const auto cellules = Coupe(lignes[l], '\t');
        const std::string ou = fichier.filename().string() + ":" + std::to_string(l + 1);
        if (cellules.size() != champs.size()) throw ErreurExecution(NumeroErreur::TypeIncompatible, ou);
        jeu.AddNew();
        for (std::size_t c = 0; c < champs.size(); ++c)
            jeu.Ecrit(champs[c].nom, ValeurCellule(cellules[c], champs[c], ou));
        jeu.Update();
    }
    return contenu;
}

} // namespace

void FabriqueBase(const std::filesystem::path& dossier, const std::filesystem::path& destination) {
    BaseDonnees base = BaseDonnees::Cree(destination, MotDePasseBase);
    Transaction transaction(base);
    std::string contenu;
    for (const auto& table : tables) contenu += RemplitTable(base, table, dossier / (std::string(table.nom) + ".tsv"));
    base.NoteVersion(Empreinte(contenu));
    transaction.Valide();
}
