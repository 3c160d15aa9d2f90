#include "data/BaseDonnees.h"

#include "core/ErreurExecution.h"
#include "core/Nombres.h"
#include "data/Instantane.h"

#include <sqlcipher/sqlite3.h>

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
    const Requete lecture = PrepareRequete(base_, "PRAGMA table_info(" + Entoure(table) + ")", table);
    DefinitionTable definition;
    while (LigneSuivante(base_, lecture, table))
        definition.champs.push_back({EnTexte(LitColonne(lecture, 1)), EnTexte(LitColonne(lecture, 2)) == "REAL"});
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
    for (const auto& champ : champs)
        colonnes += (colonnes.empty() ? "" : ", ") + Entoure(champ.nom) + (champ.numerique ? " REAL" : " TEXT");
    Execute("CREATE TABLE " + Entoure(table) + " (" + colonnes + ")");
    Execute("CREATE UNIQUE INDEX " + Entoure(table + " " + cle) + " ON " + Entoure(table) + " (" + Entoure(cle) + ")");
}

void BaseDonnees::RetireTable(const std::string& table) {
    Execute("DROP TABLE " + Entoure(table));
}

void BaseDonnees::CommenceTransaction() {
    Execute("BEGIN");
}
void BaseDonnees::ValideTransaction() {
    Execute("COMMIT");
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
        index_.emplace(ligne[positionCle_], lignes_.size());
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
}

void JeuEnregistrements::Ecrit(const std::string& nom, const Valeur& valeur) {
    nouveau_[PositionChamp(nom)] = valeur;
}

void JeuEnregistrements::Update() {
    std::string places;
    for (std::size_t i = 0; i < nouveau_.size(); ++i) places += i == 0 ? "?" : ", ?";
    const Requete ajout = PrepareRequete(base_, "INSERT INTO " + Entoure(table_) + " VALUES (" + places + ")", table_);
    for (std::size_t i = 0; i < nouveau_.size(); ++i) LieValeur(ajout, static_cast<int>(i) + 1, nouveau_[i]);
    if (sqlite3_step(ajout.get()) != SQLITE_DONE) SignaleErreur(base_, table_);
    index_.emplace(nouveau_[positionCle_], lignes_.size());
    lignes_.push_back(std::move(nouveau_));
    position_ = lignes_.size() - 1;
}
