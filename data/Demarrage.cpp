#include "data/Demarrage.h"

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace fs = std::filesystem;

fs::path CheminAppli;
fs::path CheminUtilisateur;
fs::path CheminEtudes;
BaseDonnees LaBase;

namespace {

constexpr const char* NomDossierVelorin = "velorin";

bool EstInscriptible(const fs::path& dossier) {
#ifdef _WIN32
    return _waccess(dossier.c_str(), 2) == 0;
#else
    return ::access(dossier.c_str(), W_OK) == 0;
#endif
}

bool TientLaBase(const fs::path& dossier) {
    std::error_code sansImportance; // a folder that cannot be looked into holds nothing for this user
    return fs::exists(dossier / NomBase, sansImportance);
}

} // namespace

fs::path DossierExecutable() {
#ifdef _WIN32
    wchar_t chemin[32768];
    const DWORD longueur = GetModuleFileNameW(nullptr, chemin, 32768);
    return fs::path(std::wstring(chemin, longueur)).parent_path();
#else
    return fs::read_symlink("/proc/self/exe").parent_path();
#endif
}

void PrendDossiers(const fs::path& executable, const DossiersSysteme& systeme) {
    const fs::path partage = executable.parent_path() / "share" / NomDossierVelorin;
    const bool installe = !TientLaBase(executable) && TientLaBase(partage);
    CheminAppli = installe ? partage : executable;
    const bool deplacable = !installe && EstInscriptible(executable);
    CheminUtilisateur = deplacable ? CheminAppli : systeme.donnees / NomDossierVelorin;
    CheminEtudes = deplacable ? CheminAppli / NomDossierEtudes : systeme.documents;
}
