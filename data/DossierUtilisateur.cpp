#include "data/DossierUtilisateur.h"

#include "core/ErreurExecution.h"
#include "core/FichierEntier.h"
#include "data/Configuration.h"
#include "data/Demarrage.h"

#include <algorithm>
#include <optional>

namespace fs = std::filesystem;

namespace {

/// The tables whose delivered fields are the program's; the others are catalogues that grow.
constexpr const char* TablesDuProgramme[] = {"Idiomas", "Lois"};

bool APart() {
    return CheminUtilisateur != CheminAppli;
}

bool Existe(const fs::path& fichier) {
    std::error_code sansImportance;
    return fs::exists(fichier, sansImportance);
}

bool Contient(const std::vector<DefinitionChamp>& champs, const std::string& nom) {
    return std::any_of(champs.begin(), champs.end(), [&](const DefinitionChamp& c) { return c.nom == nom; });
}

void Copie(const std::vector<DefinitionChamp>& champs, const JeuEnregistrements& de, JeuEnregistrements& a) {
    for (const DefinitionChamp& champ : champs) a.Ecrit(champ.nom, de.Champ(champ.nom));
}

/// What the user has of a table.
struct TableUtilisateur {
    JeuEnregistrements jeu;
    std::vector<DefinitionChamp> champs;
    std::vector<DefinitionChamp> gardes; ///< those that keep his values in a delivered record
};

/// Takes the table out of his database.
std::optional<TableUtilisateur> Retire(BaseDonnees& base, const std::string& table, const DefinitionTable& livree) {
    const std::vector<std::string> noms = base.NomsTables();
    if (std::find(noms.begin(), noms.end(), table) == noms.end()) return {};
    TableUtilisateur sienne{base.OuvreTable(table), base.Definition(table).champs, {}};
    const bool duProgramme =
        std::find(std::begin(TablesDuProgramme), std::end(TablesDuProgramme), table) != std::end(TablesDuProgramme);
    for (const DefinitionChamp& champ : sienne.champs)
        if (!duProgramme || !Contient(livree.champs, champ.nom)) sienne.gardes.push_back(champ);
    base.RetireTable(table);
    return sienne;
}

/// Makes a table of the database anew: the delivered records in their order, then those that only the user has.
void Fusionne(BaseDonnees& livree, BaseDonnees& base, const std::string& table) {
    DefinitionTable definition = livree.Definition(table);
    const std::vector<DefinitionChamp> livres = definition.champs;
    JeuEnregistrements neufs = livree.OuvreTable(table);
    std::optional<TableUtilisateur> sienne = Retire(base, table, definition);
    if (sienne)
        for (const DefinitionChamp& champ : sienne->champs)
            if (!Contient(livres, champ.nom)) definition.champs.push_back(champ);
    base.CreeTable(table, definition.champs, definition.cle);
    JeuEnregistrements jeu = base.OuvreTable(table);
    for (; !neufs.FinFichier(); neufs.VaAuSuivant()) {
        jeu.AddNew();
        Copie(livres, neufs, jeu);
        if (sienne) sienne->jeu.Seek(neufs.Champ(definition.cle));
        if (sienne && !sienne->jeu.NoMatch()) Copie(sienne->gardes, sienne->jeu, jeu);
        jeu.Update();
    }
    if (!sienne) return;
    for (sienne->jeu.VaAuPremier(); !sienne->jeu.FinFichier(); sienne->jeu.VaAuSuivant()) {
        neufs.Seek(sienne->jeu.Champ(definition.cle));
        if (!neufs.NoMatch()) continue;
        jeu.AddNew();
        Copie(sienne->champs, sienne->jeu, jeu);
        jeu.Update();
    }
}

} // namespace

void MetAJourBase(const fs::path& livree, const fs::path& chemin) {
    BaseDonnees delivree = BaseDonnees::Ouvre(livree, MotDePasseBase, BaseDonnees::Usage::Lecture);
    const std::int32_t version = delivree.Version();
    if (BaseDonnees::LitVersion(chemin, MotDePasseBase) == version) return;
    BaseDonnees base = BaseDonnees::OuvreOuCree(chemin, MotDePasseBase);
    if (base.Version() == version) return; // another program was faster
    Transaction transaction(base);
    for (const std::string& table : delivree.NomsTables()) Fusionne(delivree, base, table);
    base.NoteVersion(version);
    transaction.Valide();
}

void PrepareDossierUtilisateur() {
    if (!APart()) return;
    std::error_code sansImportance; // what is wrong with the folder is told by the writing
    fs::create_directories(CheminUtilisateur, sansImportance);
    MetAJourBase(CheminAppli / NomBase, CheminUtilisateur / NomBase);
    if (!Existe(CheminUtilisateur / NomConfiguration))
        EcritFichierEntier(CheminUtilisateur / NomConfiguration, LitFichierEntier(CheminAppli / NomConfiguration));
}

fs::path BaseALire() {
    fs::path sienne = CheminUtilisateur / NomBase;
    if (!APart() || !Existe(sienne)) return CheminAppli / NomBase;
    MetAJourBase(CheminAppli / NomBase, sienne);
    return sienne;
}

fs::path ConfigurationALire() {
    const fs::path sienne = CheminUtilisateur / NomConfiguration;
    return Existe(sienne) ? sienne : CheminAppli / NomConfiguration;
}
