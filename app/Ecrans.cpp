#include "app/Ecrans.h"

#include "conjugate/screens/CamesConjugueesIndexeur.h"
#include "cylindrical/screens/CylindriqueIndexeur.h"
#include "cylindrical/screens/DoCyl.h"
#include "cylindrical/screens/DoCylOsc.h"
#include "globoidal/screens/GlobiqueIndexeur.h"
#include "globoidal/screens/GlobiqueOscillateur.h"
#include "inertia/FichierInerties.h"
#include "inertia/screens/Inerties.h"
#include "languages/screens/Persona.h"
#include "laws/screens/EcranLoi.h"
#include "planecams/screens/DatoCama.h"
#include "planecams/screens/DoProfil.h"
#include "studies/screens/CamesConjugeesOscillation.h"
#include "studies/screens/Resultat.h"
#include "widgets/Chaines.h"

#include <algorithm>

namespace {

template <class Ecran> FenetreEnfant* Cree(const char*) {
    return new Ecran;
}

FenetreEnfant* CreeLoi(const char* nom) {
    return new EcranLoi(*TrouveEtudeLoi(nom));
}

// clang-format off
constexpr EcranEnfant ecrans[] = {
    {"DatoCama", Cree<DatoCama>},
    {"Resultat", Cree<Resultat>},
    {"DoProfil", Cree<DoProfil>},
    {"DoCyl", Cree<DoCyl>},
    {"DoCylOsc", Cree<DoCylOsc>},
    {"LoiMouv", CreeLoi, 4},
    {"LoisLiq", CreeLoi, 5},
    {"LoiSpe", CreeLoi, 6},
    {"LoiHes", CreeLoi, 8},
    {"LoiMSHDis", CreeLoi, 7},
    {"Persona", Cree<Persona>},
    {"GlobiqueIndexeur", Cree<GlobiqueIndexeur>, 1},
    {"GlobiqueOscillateur", Cree<GlobiqueOscillateur>, 2},
    {"CylindriqueIndexeur", Cree<CylindriqueIndexeur>, 3},
    {"CamesConjugeesOscillation", Cree<CamesConjugeesOscillation>},
    {"CamesConjugueesIndexeur", Cree<CamesConjugueesIndexeur>, 9},
    {"Inerties", Cree<Inerties>, 10, ExtensionInerties},
};
// clang-format on

} // namespace

std::span<const EcranEnfant> LesEcrans() {
    return ecrans;
}

const EcranEnfant* TrouveEcran(std::string_view nom) {
    const auto ecran =
        std::find_if(std::begin(ecrans), std::end(ecrans), [nom](const EcranEnfant& e) { return nom == e.nom; });
    return ecran == std::end(ecrans) ? nullptr : ecran;
}

const EcranEnfant* TrouveEcranFichier(const std::filesystem::path& fichier) {
    const QString extension = QChemin(fichier.extension());
    const auto ecran = std::find_if(std::begin(ecrans), std::end(ecrans), [&](const EcranEnfant& e) {
        return e.extension != nullptr && extension.compare(QLatin1String(e.extension), Qt::CaseInsensitive) == 0;
    });
    return ecran == std::end(ecrans) ? nullptr : ecran;
}
