#include "batch/LigneCommande.h"

#include <algorithm>

namespace {

const OptionCommande options[] = {
    {"--resume", "etude", nullptr, "leaves the point tables out", &LigneCommande::resume},
    {"--points", "etude", "OUT.Pnt", "also writes the point file", &LigneCommande::points},
    {"--scripts", "etude", "BASE", "also writes the scripts BASE_Ext.Scr and BASE_Int.Scr", &LigneCommande::scripts},
    {"--rapport", "etude", "OUT.pdf", "also writes the seven reports", &LigneCommande::rapport},
    {"--points", "loi", "N", "number of steps, 1 to 32767", &LigneCommande::points},
    {"--symetrie", "loi", "S", "symmetry coefficient, 0 to 1; 0.5 when left out", &LigneCommande::symetrie},
    {"--base", nullptr, "FILE", "another catalogue database", &LigneCommande::base},
    {"--langue", nullptr, "NAME", "another working language", &LigneCommande::langue},
    {"--oui", nullptr, nullptr, "answers yes where the program asks", &LigneCommande::oui},
    {"--aide", nullptr, nullptr, "prints this help", &LigneCommande::aide},
};

void VerifieCommande(const char* option, const std::string& commande) {
    const bool permise = std::any_of(std::begin(options), std::end(options), [&](const OptionCommande& o) {
        return std::string_view(o.nom) == option && (o.commande == nullptr || commande == o.commande);
    });
    if (!permise)
        throw UsageIncorrect(std::string(option) + " does not belong to " +
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
        for (const auto* option : donnees) VerifieCommande(option->nom, ligne.commande);
    return ligne;
}
