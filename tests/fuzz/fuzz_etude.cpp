// Endless search for a study file that brings the reader or a calculation down, with libFuzzer.
#include "fuzz/EssaiEtude.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    OuvreCatalogue(VELORIN_DOSSIER);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t nombre) {
    for (const TypeEtude& type : LesTypesEtude()) {
        if (!type.Disponible()) continue;
        const EssaiEtude essai = EssaieEtude({reinterpret_cast<const char*>(octets), nombre}, type);
        if (!essai.anomalie) continue;
        std::fprintf(stderr, "%s: %s\n", type.nom, essai.anomalie->c_str());
        std::abort();
    }
    return 0;
}
