#include "batch/DonneesJson.h"

#include "batch/TextesBatch.h"
#include "core/FichierEntier.h"
#include "data/Textes.h"

#include <algorithm>
#include <set>
#include <vector>

namespace {

constexpr std::size_t LongueurExtrait = 40;

/// Stops at the first object that has a member twice.
class SansDoubles {
public:
    bool operator()(int, Donnees::parse_event_t evenement, const Donnees& valeur) {
        switch (evenement) {
        case Donnees::parse_event_t::object_start:
            membres_.emplace_back();
            break;
        case Donnees::parse_event_t::object_end:
            membres_.pop_back();
            break;
        case Donnees::parse_event_t::key:
            if (!membres_.back().insert(valeur.get<std::string>()).second)
                throw DonneesIncorrectes(Texte(TexteMembreDouble) + " " + valeur.get<std::string>());
            break;
        default:
            break;
        }
        return true;
    }

private:
    std::vector<std::set<std::string>> membres_;
};

/// Line and column of a byte, both from 1.
std::string Lieu(const std::string& contenu, std::size_t octet) {
    octet = std::min(octet == 0 ? 0 : octet - 1, contenu.size());
    const auto debut = contenu.begin(), ici = debut + static_cast<std::ptrdiff_t>(octet);
    const auto ligne = std::count(debut, ici, '\n') + 1;
    const auto retour = contenu.rfind('\n', octet == 0 ? 0 : octet - 1);
    const std::size_t colonne = ligne == 1 ? octet + 1 : octet - retour;
    return std::to_string(ligne) + ", " + Texte(TexteColonneJson) + " " + std::to_string(colonne);
}

} // namespace

Donnees LitDonneesJson(const std::string& fichier) {
    const std::string contenu = LitFichierEntier(fichier, Source::Flux);
    Donnees donnees;
    try {
        donnees = Donnees::parse(contenu, SansDoubles());
    } catch (const Donnees::parse_error& erreur) {
        throw DonneesIncorrectes(Texte(TexteJsonIllisible) + " " + Lieu(contenu, erreur.byte));
    } catch (const Donnees::exception&) { // a number beyond all measure
        throw DonneesIncorrectes(Texte(TexteObjetAttendu));
    }
    if (!donnees.is_object()) throw DonneesIncorrectes(Texte(TexteObjetAttendu));
    return donnees;
}

DonneesIncorrectes MembreIncorrect(const std::string& nom, const std::string& attendu, const Donnees& trouve) {
    std::string extrait = trouve.dump(-1, ' ', true, Donnees::error_handler_t::replace);
    if (extrait.size() > LongueurExtrait) extrait = extrait.substr(0, LongueurExtrait) + "...";
    return DonneesIncorrectes(nom + " : " + Texte(TexteAttendu) + " " + attendu + ", " + Texte(TexteTrouve) + " " +
                              extrait);
}

double LitNombre(const Donnees& donnees, const char* nom) {
    const auto valeur = donnees.find(nom);
    if (valeur == donnees.end()) throw DonneesIncorrectes(Texte(TexteMembreAbsent) + " " + nom);
    if (!valeur->is_number()) throw MembreIncorrect(nom, Texte(TexteUnNombre), *valeur);
    return valeur->get<double>();
}
