// The catalogue database `BaseDatos.Mdb`: one encrypted file opened with its password, and table-type recordsets over
// it. No SQL stands outside this folder.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

struct sqlite3;

/// A field's value: null, number or text.
using Valeur = std::variant<std::monostate, double, std::string>;

inline bool EstNul(const Valeur& v) {
    return std::holds_alternative<std::monostate>(v);
}
/// A null reads as 0.
/// @throws ErreurExecution type mismatch for a text.
double EnNombre(const Valeur& v);
/// A null reads as an empty text, a number as its shortest digits.
std::string EnTexte(const Valeur& v);

/// A field of a table to create.
struct DefinitionChamp {
    std::string nom;
    bool numerique = false;
    int taille = 0; ///< characters that a text field is declared for, which the engine notes and does not enforce
};

/// A table as it was created.
struct DefinitionTable {
    std::vector<DefinitionChamp> champs;
    std::string cle; ///< the field of its index
};

class JeuEnregistrements;

class BaseDonnees {
public:
    enum class Usage {
        Exclusif, ///< for writing, nobody else may have it open
        Lecture,  ///< shared with other readers; of a database held for writing a copy is read
    };

    BaseDonnees() = default;
    ~BaseDonnees() { Ferme(); }
    BaseDonnees(BaseDonnees&& autre) noexcept;
    BaseDonnees& operator=(BaseDonnees&& autre) noexcept;

    /// Opens an existing database.
    /// @throws ErreurExecution file not found; access refused; database in use by another program, for reading only
    ///         while it is written to for two seconds; unreadable database (wrong password, damaged file).
    static BaseDonnees Ouvre(const std::filesystem::path& chemin, const std::string& motDePasse, Usage usage);

    /// Makes an empty database in place of one that may exist, for exclusive use.
    static BaseDonnees Cree(const std::filesystem::path& chemin, const std::string& motDePasse);

    /// Opens a database for exclusive use, also one that holds no table or does not exist yet, and waits up to two
    /// seconds for another program to let go of it.
    /// @throws ErreurExecution as `Ouvre`.
    static BaseDonnees OuvreOuCree(const std::filesystem::path& chemin, const std::string& motDePasse);

    /// The number that its maker gave a database with `NoteVersion`; 0 for one that does not exist or holds no table.
    /// @throws ErreurExecution as `Ouvre` for reading.
    static std::int32_t LitVersion(const std::filesystem::path& chemin, const std::string& motDePasse);

    void Ferme();

    std::int32_t Version();
    void NoteVersion(std::int32_t version);

    /// Names of the tables, in the order in which they were created.
    std::vector<std::string> NomsTables();
    DefinitionTable Definition(const std::string& table);

    /// All records of a table, in the order in which they were added.
    /// @throws ErreurExecution unreadable database when there is no such table.
    JeuEnregistrements OuvreTable(const std::string& table);

    /// A new table; `cle` names the field of its index, whose values are unique.
    void CreeTable(const std::string& table, const std::vector<DefinitionChamp>& champs, const std::string& cle);

    /// Takes a table away with all its records.
    void RetireTable(const std::string& table);

    /// Appends a field to a table, null in every record, or deletes one with all its values. The change is on the disk
    /// when this returns, and a program that is killed before leaves the table as it was. Recordsets that were opened
    /// before do not follow: they are opened again.
    /// @throws ErreurExecution access refused for an existing name (small and capital letters alike), for the field of
    ///         the index and for a database opened for reading; subscript out of range for a field to delete that the
    ///         table does not have; disk full. The table is then as it was.
    void AjouteChamp(const std::string& table, const DefinitionChamp& champ);
    void SupprimeChamp(const std::string& table, const std::string& champ);

private:
    friend class Transaction;
    static BaseDonnees OuvreALire(const std::filesystem::path& chemin, const std::string& motDePasse);
    static BaseDonnees OuvreFichierBase(const std::filesystem::path& chemin, const std::string& motDePasse, Usage usage,
                                        const std::string& nom, int mode);
    void Execute(const std::string& sql);

    sqlite3* base_ = nullptr;
};

/// Several changes as one: all of them once it is validated, none when it ends without.
class Transaction {
public:
    explicit Transaction(BaseDonnees& base);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void Valide();

private:
    BaseDonnees& base_;
    bool ouverte_ = true;
};

/// A walk over the records of one table, with a search on its index, and records added or changed one by one. The
/// recordset stands on one record, or past the last one (`FinFichier`).
class JeuEnregistrements {
public:
    void VaAuPremier() { position_ = 0; }
    void VaAuSuivant() { ++position_; }
    bool FinFichier() const { return position_ >= lignes_.size(); }
    long NombreEnregistrements() const { return static_cast<long>(lignes_.size()); }

    /// Goes to the record whose indexed field equals `cle`; `NoMatch` tells whether there is one.
    void Seek(const Valeur& cle);
    bool NoMatch() const { return sansCorrespondance_; }

    long NombreChamps() const { return static_cast<long>(champs_.size()); }
    /// @param position from 0; outside is a run-time failure (subscript out of range).
    const std::string& NomChamp(long position) const;
    /// Value by field name or by position (from 0) in the present record.
    /// @throws ErreurExecution subscript out of range for an unknown field or past the last record.
    const Valeur& Champ(const std::string& nom) const;
    const Valeur& Champ(long position) const;

    /// Starts a new record, or a change of the present one; `Ecrit` fills its fields, `Update` stores it at once: when
    /// it returns the record is on the disk, and a program that is killed before leaves the table as it was.
    void AddNew();
    /// @throws ErreurExecution subscript out of range past the last record.
    void Edit();
    /// @throws ErreurExecution subscript out of range for an unknown field; incorrect call before `AddNew` and `Edit`.
    void Ecrit(const std::string& nom, const Valeur& valeur);
    /// @throws ErreurExecution access refused for an existing key and for a database opened for reading; database in
    ///         use by another program; disk full. The record can then be stored again.
    void Update();

private:
    friend class BaseDonnees;
    JeuEnregistrements(sqlite3* base, const std::string& table);
    std::size_t PositionChamp(const std::string& nom) const;
    void Ajoute();
    void Remplace();
    void Execute(const std::string& sql, const std::vector<Valeur>& valeurs);

    sqlite3* base_;
    std::string table_;
    std::size_t positionCle_ = 0;
    std::vector<std::string> champs_;
    std::vector<std::vector<Valeur>> lignes_;
    std::map<Valeur, std::size_t> index_;
    std::size_t position_ = 0;
    bool sansCorrespondance_ = true;
    std::vector<Valeur> nouveau_;        ///< what `Update` stores; empty before `AddNew` and `Edit`
    std::optional<std::size_t> modifie_; ///< the record that it replaces; none for a new one
};
