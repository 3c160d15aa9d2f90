#include "data/Configuration.h"

#include "core/ErreurExecution.h"
#include "core/FichierEntier.h"

#include <sstream>

namespace {

constexpr const char* MarqueVraie = "#TRUE#";
constexpr const char* MarqueFausse = "#FALSE#";

} // namespace

Configuration LitConfiguration(const std::filesystem::path& chemin) {
    std::istringstream contenu(LitFichierEntier(chemin));
    const auto ligne = [&] {
        std::string texte;
        if (!std::getline(contenu, texte)) throw ErreurExecution(NumeroErreur::FinDeFichier, chemin.string());
        if (!texte.empty() && texte.back() == '\r') texte.pop_back();
        return texte;
    };
    const auto exige = [&](bool condition) {
        if (!condition) throw ErreurExecution(NumeroErreur::ContenuInvalide, chemin.string());
    };

    Configuration configuration;
    for (bool& marque : configuration.imprime) {
        const std::string texte = ligne();
        exige(texte == MarqueVraie || texte == MarqueFausse);
        marque = texte == MarqueVraie;
    }
    configuration.langue = ligne();
    exige(!configuration.langue.empty());
    // An editor may have left empty lines at the end.
    exige((contenu >> std::ws).eof());
    return configuration;
}

void EcritConfiguration(const std::filesystem::path& chemin, const Configuration& configuration) {
    std::string contenu;
    for (const bool marque : configuration.imprime) contenu += std::string(marque ? MarqueVraie : MarqueFausse) + "\n";
    EcritFichierEntier(chemin, contenu + configuration.langue + "\n");
}
