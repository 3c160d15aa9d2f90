#include "core/FichierEntier.h"

#include "core/ErreurExecution.h"

#include <cerrno>
#include <cstdio>
#include <memory>

#ifdef _WIN32
#include <io.h>
#include <process.h>
#else
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

/// Gives the new file the permissions of the one that it replaces.
void ReprendDroits([[maybe_unused]] std::FILE* f, const fs::path& chemin) {
    std::error_code echec;
    const auto etat = fs::status(chemin, echec);
    if (echec || !fs::exists(etat)) return;
#ifndef _WIN32
    ::fchmod(::fileno(f), static_cast<mode_t>(etat.permissions()) & 0777);
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

fs::path NomTemporaire(const fs::path& chemin) {
#ifdef _WIN32
    const auto numero = _getpid();
#else
    const auto numero = ::getpid();
#endif
    fs::path temporaire = chemin;
    temporaire += ".~" + std::to_string(numero);
    return temporaire;
}

} // namespace

std::string LitFichierEntier(const fs::path& chemin) {
    std::error_code echec;
    if (fs::is_directory(chemin, echec)) throw ErreurExecution(NumeroErreur::AccesFichier, chemin.string());
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
    // A link is followed, so that the file it names is the one replaced.
    std::error_code echec;
    const fs::path cible = fs::is_symlink(chemin, echec) ? fs::weakly_canonical(chemin, echec) : chemin;
    // The rename would go over a write-protected file, which its owner did not mean to lose.
    if (EstProtege(cible)) throw ErreurExecution(NumeroErreur::AccesFichier, chemin.string());
    const fs::path temporaire = NomTemporaire(cible);
    const auto abandonne = [&](int code) {
        std::error_code ignore;
        fs::remove(temporaire, ignore);
        if (code == ENOENT) throw ErreurExecution(NumeroErreur::DossierIntrouvable, chemin.string());
        SignaleErreur(code, chemin);
    };
    {
        const Fichier f(std::fopen(temporaire.string().c_str(), "wb"));
        if (!f) abandonne(errno);
        ReprendDroits(f.get(), cible);
        if (std::fwrite(contenu.data(), 1, contenu.size(), f.get()) != contenu.size()) abandonne(errno);
        if (!VideSurDisque(f.get())) abandonne(errno);
    }
    fs::rename(temporaire, cible, echec);
    if (echec) abandonne(echec.value());
    VideDossierSurDisque(cible.parent_path());
}
