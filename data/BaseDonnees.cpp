#include "data/BaseDonnees.h"

#include "core/ErreurExecution.h"
#include "core/Nombres.h"
#include "data/Instantane.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <utility>

namespace {

/// The password is a fixed text of the program, so that stretching it guards nothing: few rounds keep the start short.
constexpr const char* Chiffrement = "PRAGMA kdf_iter = 256";

/// How long a database that is to be made waits for another program that makes it too, ms.
constexpr int AttenteCreation = 2000;

std::string Entoure(const std::string& nom) {
    std::string sortie = "\"";
    for (const char c : nom) sortie += c == '"' ? std::string("\"\"") : std::string(1, c);
    return sortie + "\"";
}

std::string Colonne(const DefinitionChamp& champ) {
    const std::string taille = champ.taille > 0 ? "(" + std::to_string(champ.taille) + ")" : std::string();
    return Entoure(champ.nom) + (champ.numerique ? " REAL" : " TEXT" + taille);
}

[[noreturn]] void SignaleErreur(sqlite3* base, const std::string& detail) {
    switch (sqlite3_errcode(base)) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        throw ErreurExecution(NumeroErreur::BaseOccupee, detail);
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_CANTOPEN:
    case SQLITE_CONSTRAINT:
        throw ErreurExecution(NumeroErreur::AccesFichier, detail);
    case SQLITE_FULL:
        throw ErreurExecution(NumeroErreur::DisquePlein, detail);
    case SQLITE_IOERR:
        throw ErreurExecution(NumeroErreur::EntreeSortie, detail);
    default:
        throw ErreurExecution(NumeroErreur::BaseIllisible, detail);
    }
}

struct FermeRequete {
    void operator()(sqlite3_stmt* r) const { sqlite3_finalize(r); }
};
using Requete = std::unique_ptr<sqlite3_stmt, FermeRequete>;

Requete PrepareRequete(sqlite3* base, const std::string& sql, const std::string& detail) {
    sqlite3_stmt* requete = nullptr;
    if (sqlite3_prepare_v2(base, sql.c_str(), -1, &requete, nullptr) != SQLITE_OK) SignaleErreur(base, detail);
    return Requete(requete);
}

bool LigneSuivante(sqlite3* base, const Requete& requete, const std::string& detail) {
    switch (sqlite3_step(requete.get())) {
    case SQLITE_ROW:
        return true;
    case SQLITE_DONE:
        return false;
    default:
        SignaleErreur(base, detail);
    }
}

Valeur LitColonne(const Requete& requete, int colonne) {
    switch (sqlite3_column_type(requete.get(), colonne)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
        return sqlite3_column_double(requete.get(), colonne);
    default:
        return std::string(reinterpret_cast<const char*>(sqlite3_column_text(requete.get(), colonne)));
    }
}

void LieValeur(const Requete& requete, int numero, const Valeur& valeur) {
    if (const auto nombre = std::get_if<double>(&valeur)) {
        sqlite3_bind_double(requete.get(), numero, *nombre);
    } else if (const auto texte = std::get_if<std::string>(&valeur)) {
        sqlite3_bind_text(requete.get(), numero, texte->data(), static_cast<int>(texte->size()), SQLITE_TRANSIENT);
    } else {
        sqlite3_bind_null(requete.get(), numero);
    }
}

/// Position of the indexed field of a table.
std::size_t PositionCle(sqlite3* base, const std::string& table) {
    const Requete index = PrepareRequete(base, "PRAGMA index_list(" + Entoure(table) + ")", table);
    if (!LigneSuivante(base, index, table)) return 0;
    const std::string nom = reinterpret_cast<const char*>(sqlite3_column_text(index.get(), 1));
    const Requete champ = PrepareRequete(base, "PRAGMA index_info(" + Entoure(nom) + ")", table);
    return LigneSuivante(base, champ, table) ? static_cast<std::size_t>(sqlite3_column_int(champ.get(), 1)) : 0;
}

struct Champ {
    std::string nom, type;
};

std::vector<Champ> LitChamps(sqlite3* base, const std::string& table) {
    const Requete requete = PrepareRequete(base, "PRAGMA table_info(" + Entoure(table) + ")", table);
    std::vector<Champ> champs;
    while (LigneSuivante(base, requete, table))
        champs.push_back({EnTexte(LitColonne(requete, 1)), EnTexte(LitColonne(requete, 2))});
    return champs;
}

/// The statements that make the indexes of a table.
std::vector<std::string> DefinitionsIndex(sqlite3* base, const std::string& table) {
    const Requete requete =
        PrepareRequete(base, "SELECT sql FROM sqlite_master WHERE type = 'index' AND tbl_name = ?", table);
    LieValeur(requete, 1, table);
    std::vector<std::string> definitions;
    while (LigneSuivante(base, requete, table)) definitions.push_back(EnTexte(LitColonne(requete, 0)));
    return definitions;
}

sqlite3* OuvreFichier(const std::filesystem::path& chemin, const std::string& motDePasse, int mode) {
    sqlite3* base = nullptr;
    if (sqlite3_open_v2(chemin.string().c_str(), &base, mode, nullptr) != SQLITE_OK) {
        sqlite3_close(base);
        throw ErreurExecution(NumeroErreur::AccesFichier, chemin.string());
    }
    sqlite3_key(base, motDePasse.data(), static_cast<int>(motDePasse.size()));
    return base;
}

/// Removes a file on every way out.
struct Retire {
    std::filesystem::path chemin;
    ~Retire() {
        std::error_code ignore;
        std::filesystem::remove(chemin, ignore);
    }
};

} // namespace

double EnNombre(const Valeur& v) {
    if (std::holds_alternative<std::string>(v)) throw ErreurExecution(NumeroErreur::TypeIncompatible);
    return EstNul(v) ? 0.0 : std::get<double>(v);
}

std::string EnTexte(const Valeur& v) {
    if (const auto nombre = std::get_if<double>(&v)) return StrTrim(*nombre);
    return EstNul(v) ? std::string() : std::get<std::string>(v);
}

BaseDonnees::BaseDonnees(BaseDonnees&& autre) noexcept : base_(std::exchange(autre.base_, nullptr)) {}

BaseDonnees& BaseDonnees::operator=(BaseDonnees&& autre) noexcept {
    std::swap(base_, autre.base_);
    return *this;
}

void BaseDonnees::Ferme() {
    sqlite3_close(std::exchange(base_, nullptr));
}

BaseDonnees BaseDonnees::Ouvre(const std::filesystem::path& chemin, const std::string& motDePasse, Usage usage) {
    std::error_code echec;
    if (!std::filesystem::exists(chemin, echec))
        throw ErreurExecution(NumeroErreur::FichierIntrouvable, chemin.string());
    BaseDonnees base = usage == Usage::Lecture
                           ? OuvreALire(chemin, motDePasse)
                           : OuvreFichierBase(chemin, motDePasse, usage, chemin.string(), SQLITE_OPEN_READWRITE);
    if (base.NomsTables().empty()) throw ErreurExecution(NumeroErreur::BaseIllisible, chemin.string());
    return base;
}

BaseDonnees BaseDonnees::OuvreOuCree(const std::filesystem::path& chemin, const std::string& motDePasse) {
    return OuvreFichierBase(chemin, motDePasse, Usage::Exclusif, chemin.string(),
                            SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
}

std::int32_t BaseDonnees::LitVersion(const std::filesystem::path& chemin, const std::string& motDePasse) {
    std::error_code echec;
    return std::filesystem::exists(chemin, echec) ? OuvreALire(chemin, motDePasse).Version() : 0;
}

BaseDonnees BaseDonnees::OuvreALire(const std::filesystem::path& chemin, const std::string& motDePasse) {
    try {
        return OuvreFichierBase(chemin, motDePasse, Usage::Lecture, chemin.string(), SQLITE_OPEN_READWRITE);
    } catch (const ErreurExecution& erreur) {
        if (erreur.numero != NumeroErreur::BaseOccupee) throw;
    }
    const std::filesystem::path copie = CopieBase(chemin);
    // The open file is read to the end of the program; its name is needed no more.
    const Retire retire{copie};
    return OuvreFichierBase(copie, motDePasse, Usage::Lecture, chemin.string(), SQLITE_OPEN_READWRITE);
}

BaseDonnees BaseDonnees::OuvreFichierBase(const std::filesystem::path& chemin, const std::string& motDePasse,
                                          Usage usage, const std::string& nom, int mode) {
    BaseDonnees base;
    const bool exclusif = usage == Usage::Exclusif;
    // A reader, too, must be able to take back what a program that was killed had half written.
    base.base_ = OuvreFichier(chemin, motDePasse, mode);
    if ((mode & SQLITE_OPEN_CREATE) != 0) sqlite3_busy_timeout(base.base_, AttenteCreation);
    const auto execute = [&](const char* sql) {
        if (sqlite3_exec(base.base_, sql, nullptr, nullptr, nullptr) != SQLITE_OK) SignaleErreur(base.base_, nom);
    };
    execute(Chiffrement);
    execute("PRAGMA cache_size = 8");
    if (!exclusif) execute("PRAGMA query_only = ON");
    if (exclusif) {
        if (sqlite3_db_readonly(base.base_, "main") == 1) throw ErreurExecution(NumeroErreur::AccesFichier, nom);
        execute("PRAGMA locking_mode = EXCLUSIVE");
        execute("BEGIN EXCLUSIVE; COMMIT");
    }
    // The first page tells whether the password fits; an empty file passes it and holds no table.
    LigneSuivante(base.base_, PrepareRequete(base.base_, "SELECT count(*) FROM sqlite_master", nom), nom);
    return base;
}

BaseDonnees BaseDonnees::Cree(const std::filesystem::path& chemin, const std::string& motDePasse) {
    std::filesystem::remove(chemin);
    BaseDonnees base;
    base.base_ = OuvreFichier(chemin, motDePasse, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    base.Execute(Chiffrement);
    return base;
}

void BaseDonnees::Execute(const std::string& sql) {
    if (sqlite3_exec(base_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) SignaleErreur(base_, {});
}

std::int32_t BaseDonnees::Version() {
    const Requete version = PrepareRequete(base_, "PRAGMA user_version", {});
    return LigneSuivante(base_, version, {}) ? sqlite3_column_int(version.get(), 0) : 0;
}

void BaseDonnees::NoteVersion(std::int32_t version) {
    Execute("PRAGMA user_version = " + std::to_string(version));
}

std::vector<std::string> BaseDonnees::NomsTables() {
    const Requete tables = PrepareRequete(base_, "SELECT name FROM sqlite_master WHERE type = 'table'", {});
    std::vector<std::string> noms;
    while (LigneSuivante(base_, tables, {})) noms.push_back(EnTexte(LitColonne(tables, 0)));
    return noms;
}

DefinitionTable BaseDonnees::Definition(const std::string& table) {
    DefinitionTable definition;
    for (const auto& [nom, type] : LitChamps(base_, table)) {
        const auto taille = type.find('(');
        definition.champs.push_back(
            {nom, type == "REAL", taille == std::string::npos ? 0 : std::atoi(type.c_str() + taille + 1)});
    }
    if (definition.champs.empty()) throw ErreurExecution(NumeroErreur::BaseIllisible, table);
    definition.cle = definition.champs[PositionCle(base_, table)].nom;
    return definition;
}

JeuEnregistrements BaseDonnees::OuvreTable(const std::string& table) {
    return {base_, table};
}

void BaseDonnees::CreeTable(const std::string& table, const std::vector<DefinitionChamp>& champs,
                            const std::string& cle) {
    std::string colonnes;
    for (const auto& champ : champs) colonnes += (colonnes.empty() ? "" : ", ") + Colonne(champ);
    Execute("CREATE TABLE " + Entoure(table) + " (" + colonnes + ")");
    Execute("CREATE UNIQUE INDEX " + Entoure(table + " " + cle) + " ON " + Entoure(table) + " (" + Entoure(cle) + ")");
}

void BaseDonnees::RetireTable(const std::string& table) {
    Execute("DROP TABLE " + Entoure(table));
}

void BaseDonnees::AjouteChamp(const std::string& table, const DefinitionChamp& champ) {
    for (const Champ& existant : LitChamps(base_, table))
        if (sqlite3_stricmp(existant.nom.c_str(), champ.nom.c_str()) == 0)
            throw ErreurExecution(NumeroErreur::AccesFichier, table + "." + champ.nom);
    Execute("ALTER TABLE " + Entoure(table) + " ADD COLUMN " + Colonne(champ));
}

/// The table is made anew without the field: not every version of the engine can drop one.
void BaseDonnees::SupprimeChamp(const std::string& table, const std::string& champ) {
    std::vector<Champ> champs = LitChamps(base_, table);
    const auto supprime = std::find_if(champs.begin(), champs.end(), [&](const Champ& c) { return c.nom == champ; });
    if (supprime == champs.end()) throw ErreurExecution(NumeroErreur::IndiceHorsLimites, table + "." + champ);
    if (static_cast<std::size_t>(supprime - champs.begin()) == PositionCle(base_, table))
        throw ErreurExecution(NumeroErreur::AccesFichier, table + "." + champ);
    champs.erase(supprime);
    std::string colonnes, noms;
    for (const Champ& reste : champs) {
        const char* separateur = noms.empty() ? "" : ", ";
        colonnes += separateur + Entoure(reste.nom) + " " + reste.type;
        noms += separateur + Entoure(reste.nom);
    }
    const std::string ancienne = Entoure(table), nouvelle = Entoure(table + " sans " + champ);
    Transaction transaction(*this);
    const std::vector<std::string> index = DefinitionsIndex(base_, table);
    Execute("CREATE TABLE " + nouvelle + " (" + colonnes + ")");
    Execute("INSERT INTO " + nouvelle + " SELECT " + noms + " FROM " + ancienne + " ORDER BY rowid");
    Execute("DROP TABLE " + ancienne);
    Execute("ALTER TABLE " + nouvelle + " RENAME TO " + ancienne);
    for (const std::string& definition : index) Execute(definition);
    transaction.Valide();
}

Transaction::Transaction(BaseDonnees& base) : base_(base) {
    base_.Execute("BEGIN");
}

Transaction::~Transaction() {
    if (ouverte_) sqlite3_exec(base_.base_, "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::Valide() {
    base_.Execute("COMMIT");
    ouverte_ = false;
}

JeuEnregistrements::JeuEnregistrements(sqlite3* base, const std::string& table) : base_(base), table_(table) {
    const Requete lecture = PrepareRequete(base_, "SELECT * FROM " + Entoure(table) + " ORDER BY rowid", table);
    const int colonnes = sqlite3_column_count(lecture.get());
    for (int c = 0; c < colonnes; ++c) champs_.emplace_back(sqlite3_column_name(lecture.get(), c));
    positionCle_ = PositionCle(base_, table);
    while (LigneSuivante(base_, lecture, table)) {
        std::vector<Valeur> ligne;
        ligne.reserve(champs_.size());
        for (int c = 0; c < colonnes; ++c) ligne.push_back(LitColonne(lecture, c));
        index_.emplace_hint(index_.end(), ligne[positionCle_], lignes_.size()); // mostly written in their order
        lignes_.push_back(std::move(ligne));
    }
}

void JeuEnregistrements::Seek(const Valeur& cle) {
    const auto trouve = index_.find(cle);
    sansCorrespondance_ = trouve == index_.end();
    if (!sansCorrespondance_) position_ = trouve->second;
}

const std::string& JeuEnregistrements::NomChamp(long position) const {
    if (position < 0 || position >= NombreChamps()) throw ErreurExecution(NumeroErreur::IndiceHorsLimites, table_);
    return champs_[static_cast<std::size_t>(position)];
}

std::size_t JeuEnregistrements::PositionChamp(const std::string& nom) const {
    for (std::size_t i = 0; i < champs_.size(); ++i)
        if (champs_[i] == nom) return i;
    throw ErreurExecution(NumeroErreur::IndiceHorsLimites, table_ + "." + nom);
}

const Valeur& JeuEnregistrements::Champ(const std::string& nom) const {
    return Champ(static_cast<long>(PositionChamp(nom)));
}

const Valeur& JeuEnregistrements::Champ(long position) const {
    if (FinFichier() || position < 0 || position >= NombreChamps())
        throw ErreurExecution(NumeroErreur::IndiceHorsLimites, table_);
    return lignes_[position_][static_cast<std::size_t>(position)];
}

void JeuEnregistrements::AddNew() {
    nouveau_.assign(champs_.size(), Valeur{});
    modifie_.reset();
}

void JeuEnregistrements::Edit() {
    if (FinFichier()) throw ErreurExecution(NumeroErreur::IndiceHorsLimites, table_);
    nouveau_ = lignes_[position_];
    modifie_ = position_;
}

void JeuEnregistrements::Ecrit(const std::string& nom, const Valeur& valeur) {
    if (nouveau_.empty()) throw ErreurExecution(NumeroErreur::AppelIncorrect, table_);
    nouveau_[PositionChamp(nom)] = valeur;
}

void JeuEnregistrements::Update() {
    if (nouveau_.empty()) throw ErreurExecution(NumeroErreur::AppelIncorrect, table_);
    if (modifie_)
        Remplace();
    else
        Ajoute();
    index_.emplace(nouveau_[positionCle_], position_);
    lignes_[position_] = std::exchange(nouveau_, {});
    modifie_.reset();
}

void JeuEnregistrements::Ajoute() {
    std::string places;
    for (std::size_t i = 0; i < nouveau_.size(); ++i) places += i == 0 ? "?" : ", ?";
    Execute("INSERT INTO " + Entoure(table_) + " VALUES (" + places + ")", nouveau_);
    position_ = lignes_.size();
    lignes_.emplace_back();
}

void JeuEnregistrements::Remplace() {
    const std::vector<Valeur>& ancien = lignes_[*modifie_];
    std::string places;
    std::vector<Valeur> valeurs;
    for (std::size_t i = 0; i < nouveau_.size(); ++i) {
        if (nouveau_[i] == ancien[i]) continue;
        places += (valeurs.empty() ? "" : ", ") + Entoure(champs_[i]) + " = ?";
        valeurs.push_back(nouveau_[i]);
    }
    valeurs.push_back(ancien[positionCle_]);
    if (!places.empty())
        Execute("UPDATE " + Entoure(table_) + " SET " + places + " WHERE " + Entoure(champs_[positionCle_]) + " = ?",
                valeurs);
    index_.erase(ancien[positionCle_]);
    position_ = *modifie_;
}

void JeuEnregistrements::Execute(const std::string& sql, const std::vector<Valeur>& valeurs) {
    const Requete requete = PrepareRequete(base_, sql, table_);
    int place = 0;
    for (const Valeur& valeur : valeurs) LieValeur(requete, ++place, valeur);
    if (sqlite3_step(requete.get()) != SQLITE_DONE) SignaleErreur(base_, table_);
}
