#include "batch/LigneCommande.h"

#include <algorithm>

namespace {

const OptionCommande options[] = {
    {"--resume", "etude", nullptr, "leaves the point tables out", &LigneCommande::resume},
    {"--points", "loi", "N", "number of steps, 1 to 32767", &LigneCommande::points},
    {"--symetrie", "loi", "S", "symmetry coefficient, 0 to 1; 0.5 when left out", &LigneCommande::symetrie},
    {"--base", nullptr, "FILE", "another catalogue database", &LigneCommande::base},
    {"--langue", nullptr, "NAME", "another working language", &LigneCommande::langue},
    {"--oui", nullptr, nullptr, "answers yes where the program asks", &LigneCommande::oui},
    {"--aide", nullptr, nullptr, "prints this help", &LigneCommande::aide},
};

void VerifieCommande(const OptionCommande& option, const std::string& commande) {
    if (option.commande != nullptr && commande != option.commande)
        throw UsageIncorrect(std::string(option.nom) + " does not belong to " +
                             (commande.empty() ? "no command" : "'" + commande + "'"));
}

} // namespace

std::span<const OptionCommande> LesOptions() {
    return options;
}

LigneCommande AnalyseLigne(const std::vector<std::string>& mots) {
    LigneCommande ligne;
    std::vector<const OptionCommande*> donnees;
    bool sansOptions = false;
    for (auto mot = mots.begin(); mot != mots.end(); ++mot) {
        if (!sansOptions && *mot == "--") {
            sansOptions = true;
            continue;
        }
        if (sansOptions || !mot->starts_with("--")) {
            if (ligne.commande.empty()) {
                ligne.commande = *mot;
            } else {
                ligne.arguments.push_back(*mot);
            }
            continue;
        }
        const auto option = std::find_if(std::begin(options), std::end(options),
                                         [&](const OptionCommande& o) { return *mot == o.nom; });
        if (option == std::end(options)) throw UsageIncorrect("unknown option '" + *mot + "'");
        donnees.push_back(option);
        if (const auto marque = std::get_if<bool LigneCommande::*>(&option->membre)) {
            ligne.** marque = true;
        } else {
            if (++mot == mots.end() || mot->empty())
                throw UsageIncorrect(std::string(option->nom) + " needs a value: " + option->valeur);
            ligne.*std::get<std::string LigneCommande::*>(option->membre) = *mot;
        }
    }
    if (!ligne.aide)
        for (const auto* option : donnees) VerifieCommande(*option, ligne.commande);
    return ligne;
}
