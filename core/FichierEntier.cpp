#include "core/FichierEntier.h"

#include "core/ErreurExecution.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#ifdef _WIN32
#include <io.h>
#include <process.h>
#else
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace {

struct FermeFichier {
    void operator()(std::FILE* f) const { std::fclose(f); }
};
using Fichier = std::unique_ptr<std::FILE, FermeFichier>;

[[noreturn]] void SignaleErreur(int code, const fs::path& chemin) {
    const std::string nom = chemin.string();
    switch (code) {
    case ENOENT:
        throw ErreurExecution(NumeroErreur::FichierIntrouvable, nom);
    case ENOSPC:
#ifdef EDQUOT
    case EDQUOT:
#endif
        throw ErreurExecution(NumeroErreur::DisquePlein, nom);
    case EIO:
        throw ErreurExecution(NumeroErreur::EntreeSortie, nom);
    default:
        throw ErreurExecution(NumeroErreur::AccesFichier, nom);
    }
}

bool VideSurDisque(std::FILE* f) {
    if (std::fflush(f) != 0) return false;
#ifdef _WIN32
    return _commit(_fileno(f)) == 0;
#else
    return ::fsync(::fileno(f)) == 0;
#endif
}

bool EstProtege([[maybe_unused]] const fs::path& chemin) {
#ifdef _WIN32
    return _waccess(chemin.c_str(), 0) == 0 && _waccess(chemin.c_str(), 2) != 0;
#else
    return ::access(chemin.c_str(), F_OK) == 0 && ::access(chemin.c_str(), W_OK) != 0;
#endif
}

/// Gives the new file the owner and the permissions of the one that it replaces.
void ReprendDroits([[maybe_unused]] std::FILE* f, [[maybe_unused]] const fs::path& chemin) {
#ifndef _WIN32
    struct stat etat {};
    if (::stat(chemin.c_str(), &etat) != 0) return;
    // Only an administrator can give a file away; anyone else's new file is his own.
    [[maybe_unused]] const int ignore = ::fchown(::fileno(f), etat.st_uid, etat.st_gid);
    ::fchmod(::fileno(f), etat.st_mode & 07777);
#endif
}

/// Makes the rename itself lasting, where the system asks for it.
void VideDossierSurDisque([[maybe_unused]] const fs::path& dossier) {
#ifndef _WIN32
    const int d = ::open(dossier.empty() ? "." : dossier.c_str(), O_RDONLY | O_DIRECTORY);
    if (d < 0) return;
    ::fsync(d);
    ::close(d);
#endif
}

long NumeroProcessus() {
#ifdef _WIN32
    return _getpid();
#else
    return ::getpid();
#endif
}

bool ProcessusVivant([[maybe_unused]] long numero) {
#ifdef _WIN32
    return true;
#else
    return ::kill(static_cast<pid_t>(numero), 0) == 0 || errno != ESRCH;
#endif
}

/// What the temporary files of a name begin with: short, as the name itself may be as long as the system allows.
std::string DebutTemporaire(const fs::path& chemin) {
    std::uint64_t empreinte = 14695981039346656037U; // FNV-1a
    for (const char c : chemin.filename().string())
        empreinte = (empreinte ^ static_cast<unsigned char>(c)) * 1099511628211U;
    char texte[24];
    std::snprintf(texte, sizeof texte, ".~%016llx~", static_cast<unsigned long long>(empreinte));
    return texte;
}

fs::path NomTemporaire(const fs::path& chemin) {
    return chemin.parent_path() / (DebutTemporaire(chemin) + std::to_string(NumeroProcessus()));
}

/// Removes what runs that were killed have left of this name.
void RetireRestes(const fs::path& chemin) {
    const std::string debut = DebutTemporaire(chemin);
    std::error_code echec;
    const fs::path dossier = chemin.has_parent_path() ? chemin.parent_path() : fs::path(".");
    std::vector<fs::path> restes;
    for (fs::directory_iterator f(dossier, echec), fin; !echec && f != fin; f.increment(echec)) {
        const std::string nom = f->path().filename().string();
        if (!nom.starts_with(debut)) continue;
        const long numero = std::strtol(nom.c_str() + debut.size(), nullptr, 10);
        if (numero == NumeroProcessus() || !ProcessusVivant(numero)) restes.push_back(f->path());
    }
    for (const fs::path& reste : restes) fs::remove(reste, echec);
}

/// The file that a chain of links ends at, whether it exists or not. One that runs in a circle ends nowhere.
fs::path SuitLiens(const fs::path& debut) {
    std::error_code echec;
    fs::path chemin = debut;
    for (int liens = 0; fs::is_symlink(chemin, echec); ++liens) {
        if (liens == 40) SignaleErreur(ELOOP, debut);
        const fs::path vers = fs::read_symlink(chemin, echec);
        if (echec) break;
        chemin = vers.is_absolute() ? vers : chemin.parent_path() / vers;
    }
    return chemin;
}

/// A pipe or a device is no file to replace, nor is a file that a shell has already opened for this process.
bool EcritAuTravers(const fs::path& chemin) {
    std::error_code echec;
    const auto etat = fs::status(chemin, echec);
    if (!fs::exists(etat)) return false;
    const std::string nom = fs::absolute(chemin, echec).lexically_normal().string();
    const bool ouvert = nom.starts_with("/dev/fd/") || nom.starts_with("/dev/std") || nom.starts_with("/proc/");
    return ouvert || (!fs::is_regular_file(etat) && !fs::is_directory(etat));
}

void EcritEtVide(std::FILE* f, std::string_view contenu, int& code) {
    code = 0;
    if (std::fwrite(contenu.data(), 1, contenu.size(), f) != contenu.size() || std::fflush(f) != 0) code = errno;
}

void EcritFlux(const fs::path& chemin, std::string_view contenu) {
    const Fichier f(std::fopen(chemin.string().c_str(), "ab"));
    if (!f) SignaleErreur(errno, chemin);
    int code = 0;
    EcritEtVide(f.get(), contenu, code);
    if (code != 0) SignaleErreur(code, chemin);
}

/// One file on its way: written beside its target, then put in its place, or taken back.
class Remplacement {
public:
    explicit Remplacement(const FichierAEcrire& fichier)
        : chemin_(fichier.chemin), cible_(SuitLiens(fichier.chemin)), temporaire_(NomTemporaire(cible_)) {
        // The rename would go over a write-protected file, which its owner did not mean to lose.
        if (EstProtege(cible_)) throw ErreurExecution(NumeroErreur::AccesFichier, chemin_.string());
        RetireRestes(cible_);
        const Fichier f(std::fopen(temporaire_.string().c_str(), "wb"));
        if (!f) Echoue(errno);
        ReprendDroits(f.get(), cible_);
        int code = 0;
        EcritEtVide(f.get(), fichier.contenu, code);
        if (code == 0 && !VideSurDisque(f.get())) code = errno;
        if (code != 0) Echoue(code);
    }
    ~Remplacement() {
        std::error_code ignore;
        if (!ancienne_.empty()) fs::remove(ancienne_, ignore);
        if (!place_) fs::remove(temporaire_, ignore);
    }
    Remplacement(const Remplacement&) = delete;
    Remplacement& operator=(const Remplacement&) = delete;

    /// @param reprenable keeps the old file until this object dies, for `Reprend`
    void MetEnPlace(bool reprenable) {
        std::error_code echec;
        if (reprenable && fs::exists(cible_, echec)) {
            ancienne_ = temporaire_.string() + "~";
            fs::create_hard_link(cible_, ancienne_, echec);
            if (echec) fs::copy_file(cible_, ancienne_, fs::copy_options::overwrite_existing, echec);
            if (echec) Echoue(echec.value());
        }
        fs::rename(temporaire_, cible_, echec);
        if (echec) Echoue(echec.value());
        place_ = true;
        VideDossierSurDisque(cible_.parent_path());
    }

    void Reprend() {
        std::error_code ignore;
        if (!place_) return;
        if (ancienne_.empty())
            fs::remove(cible_, ignore);
        else
            fs::rename(ancienne_, cible_, ignore);
    }

private:
    [[noreturn]] void Echoue(int code) const {
        std::error_code ignore;
        fs::remove(temporaire_, ignore);
        if (code == ENOENT) throw ErreurExecution(NumeroErreur::DossierIntrouvable, chemin_.string());
        SignaleErreur(code, chemin_);
    }

    fs::path chemin_, cible_, temporaire_, ancienne_;
    bool place_ = false;
};

} // namespace

std::string LitFichierEntier(const fs::path& chemin, Source source) {
    std::error_code echec;
    const auto etat = fs::status(chemin, echec);
    if (fs::is_directory(etat) || (source == Source::Fichier && fs::exists(etat) && !fs::is_regular_file(etat)))
        throw ErreurExecution(NumeroErreur::AccesFichier, chemin.string());
    const Fichier f(std::fopen(chemin.string().c_str(), "rb"));
    if (!f) SignaleErreur(errno, chemin);
    std::string contenu;
    char bloc[1 << 16];
    while (const std::size_t lus = std::fread(bloc, 1, sizeof bloc, f.get())) {
        contenu.append(bloc, lus);
        if (contenu.size() > TailleFichierMax) throw ErreurExecution(NumeroErreur::FichierTropGrand, chemin.string());
    }
    if (std::ferror(f.get())) throw ErreurExecution(NumeroErreur::EntreeSortie, chemin.string());
    return contenu;
}

void EcritFichierEntier(const fs::path& chemin, std::string_view contenu) {
    const FichierAEcrire fichier{chemin, std::string(contenu)};
    EcritFichiersEntiers({&fichier, 1});
}

void EcritFichiersEntiers(std::span<const FichierAEcrire> fichiers) {
    std::vector<std::unique_ptr<Remplacement>> remplacements;
    for (const FichierAEcrire& fichier : fichiers)
        if (!EcritAuTravers(fichier.chemin)) remplacements.push_back(std::make_unique<Remplacement>(fichier));
    try {
        for (const auto& remplacement : remplacements) remplacement->MetEnPlace(remplacements.size() > 1);
    } catch (...) {
        for (const auto& remplacement : remplacements) remplacement->Reprend();
        throw;
    }
    for (const FichierAEcrire& fichier : fichiers)
        if (EcritAuTravers(fichier.chemin)) EcritFlux(fichier.chemin, fichier.contenu);
}
