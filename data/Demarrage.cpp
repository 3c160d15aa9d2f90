#include "data/Demarrage.h"

#ifdef _WIN32
#include <windows.h>
#endif

std::filesystem::path CheminAppli;
BaseDonnees LaBase;

std::filesystem::path DossierExecutable() {
#ifdef _WIN32
    wchar_t chemin[32768];
    const DWORD longueur = GetModuleFileNameW(nullptr, chemin, 32768);
    return std::filesystem::path(std::wstring(chemin, longueur)).parent_path();
#else
    return std::filesystem::read_symlink("/proc/self/exe").parent_path();
#endif
}
