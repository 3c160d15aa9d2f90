// A writer first sets its journal up, then changes the file, then clears the journal. A copy taken between two looks at
// a cleared journal, while the file keeps its time and size, is a whole database.
#include "data/Instantane.h"

#include "core/ErreurExecution.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <random>
#include <string>
#include <system_error>
#include <thread>

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::milliseconds Attente(2000), Pas(20);

/// True while a write is in flight: the journal begins with its mark. A cleared one is absent, empty or zeroed.
bool EcritureEnCours(const fs::path& chemin) {
    std::ifstream journal(chemin.string() + "-journal", std::ios::binary);
    char tete[8] = {};
    journal.read(tete, sizeof tete);
    return std::any_of(std::begin(tete), std::end(tete), [](char c) { return c != 0; });
}

struct Etat {
    fs::file_time_type date;
    std::uintmax_t taille;
    bool operator==(const Etat&) const = default;
};

Etat EtatDe(const fs::path& chemin) {
    return {fs::last_write_time(chemin), fs::file_size(chemin)};
}

/// @return false when writes went on all the while
bool CopieAuRepos(const fs::path& chemin, const fs::path& copie) {
    const auto fin = std::chrono::steady_clock::now() + Attente;
    do {
        if (!EcritureEnCours(chemin)) {
            const Etat avant = EtatDe(chemin);
            fs::copy_file(chemin, copie, fs::copy_options::overwrite_existing);
            if (!EcritureEnCours(chemin) && EtatDe(chemin) == avant) return true;
        }
        std::this_thread::sleep_for(Pas);
    } while (std::chrono::steady_clock::now() < fin);
    return false;
}

void RetireCopie(const fs::path& copie) {
    std::error_code sansImportance;
    fs::remove(copie, sansImportance);
}

} // namespace

fs::path CopieBase(const fs::path& chemin) {
    fs::path copie;
    try {
        copie = fs::temp_directory_path() / ("velorin-" + std::to_string(std::random_device{}()) + ".Mdb");
        if (CopieAuRepos(chemin, copie)) return copie;
    } catch (const fs::filesystem_error& echec) {
        RetireCopie(copie);
        throw ErreurExecution(echec.code() == std::errc::no_space_on_device ? NumeroErreur::DisquePlein
                                                                            : NumeroErreur::AccesFichier,
                              chemin.string());
    }
    RetireCopie(copie);
    throw ErreurExecution(NumeroErreur::BaseOccupee, chemin.string() + " (2 s)");
}
