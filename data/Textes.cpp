#include "data/Textes.h"

#include "core/Nombres.h"
#include "data/BaseDonnees.h"

std::string LangueTravail;

namespace {

std::vector<std::string> textes;
std::vector<std::string> languesCompletes;

/// Fields without a null in any record.
std::vector<std::string> ChampsComplets(JeuEnregistrements& idiomas) {
    std::vector<bool> complets(static_cast<std::size_t>(idiomas.NombreChamps()), true);
    for (idiomas.VaAuPremier(); !idiomas.FinFichier(); idiomas.VaAuSuivant())
        for (long champ = PremiereLangue; champ < idiomas.NombreChamps(); ++champ)
            if (EstNul(idiomas.Champ(champ))) complets[static_cast<std::size_t>(champ)] = false;
    std::vector<std::string> langues;
    for (long champ = PremiereLangue; champ < idiomas.NombreChamps(); ++champ)
        if (complets[static_cast<std::size_t>(champ)]) langues.push_back(idiomas.NomChamp(champ));
    return langues;
}

} // namespace

void ChargeTextes(BaseDonnees& base) {
    JeuEnregistrements idiomas = base.OuvreTable("Idiomas");
    const std::int16_t nombre = Entier16(static_cast<double>(idiomas.NombreEnregistrements()));
    long colonne = -1;
    for (long champ = 0; champ < idiomas.NombreChamps(); ++champ)
        if (idiomas.NomChamp(champ) == LangueTravail) colonne = champ;
    if (colonne < 0) {
        // On purpose the second language and not the first.
        colonne = PremiereLangue + 1;
        LangueTravail = idiomas.NomChamp(colonne);
    }
    std::vector<std::string> nouveaux(static_cast<std::size_t>(nombre) + 1);
    for (int i = 1; i <= nombre; ++i) {
        idiomas.Seek(static_cast<double>(i));
        if (idiomas.NoMatch()) throw ErreurExecution(NumeroErreur::BaseIllisible, "Idiomas " + std::to_string(i));
        nouveaux[static_cast<std::size_t>(i)] = EnTexte(idiomas.Champ(colonne));
    }
    textes = std::move(nouveaux);
    languesCompletes = ChampsComplets(idiomas);
}

const std::string& Texte(int numero) {
    if (numero < 0 || static_cast<std::size_t>(numero) >= textes.size())
        throw ErreurExecution(NumeroErreur::IndiceHorsLimites, "Idiomas " + std::to_string(numero));
    return textes[static_cast<std::size_t>(numero)];
}

std::int16_t NombreTextes() {
    return static_cast<std::int16_t>(textes.empty() ? 0 : textes.size() - 1);
}

const std::vector<std::string>& LanguesCompletes() {
    return languesCompletes;
}
