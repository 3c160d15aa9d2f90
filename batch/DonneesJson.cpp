#include "batch/DonneesJson.h"

#include "batch/TextesBatch.h"
#include "core/FichierEntier.h"
#include "data/Textes.h"

#include <algorithm>
#include <functional>
#include <set>
#include <vector>

namespace {

constexpr std::size_t LongueurExtrait = 40;
/// No data are nested so deep; the library copies and writes a value by recursion, however deep it is.
constexpr int ProfondeurMax = 16;

DonneesIncorrectes AutreAttendu(const std::string& nom, const std::string& attendu, const std::string& trouve) {
    return DonneesIncorrectes(nom + " : " + Texte(TexteAttendu) + " " + attendu + ", " + Texte(TexteTrouve) + " " +
                              trouve);
}

/// Stops at the first object that has a member twice, and knows the member that was read last.
class LectureJson {
public:
    bool operator()(int profondeur, Donnees::parse_event_t evenement, const Donnees& valeur) {
        if (profondeur > ProfondeurMax)
            throw dernier_.empty() ? DonneesIncorrectes(Texte(TexteObjetAttendu))
                                   : AutreAttendu(dernier_, TexteOuNombre(), "[...]");
        switch (evenement) {
        case Donnees::parse_event_t::object_start:
            membres_.emplace_back();
            break;
        case Donnees::parse_event_t::object_end:
            membres_.pop_back();
            break;
        case Donnees::parse_event_t::key:
            dernier_ = valeur.get<std::string>();
            if (!membres_.back().insert(dernier_).second)
                throw DonneesIncorrectes(Texte(TexteMembreDouble) + " " + dernier_);
            break;
        default:
            break;
        }
        return true;
    }

    const std::string& Dernier() const { return dernier_; }

private:
    std::vector<std::set<std::string>> membres_;
    std::string dernier_;
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
    LectureJson lecture;
    try {
        donnees = Donnees::parse(contenu, std::ref(lecture));
    } catch (const Donnees::parse_error& erreur) {
        throw DonneesIncorrectes(Texte(TexteJsonIllisible) + " " + Lieu(contenu, erreur.byte));
    } catch (const Donnees::out_of_range&) {
        throw DonneesIncorrectes(lecture.Dernier() + (lecture.Dernier().empty() ? "" : " : ") +
                                 Texte(TexteNombreDemesure));
    }
    if (!donnees.is_object()) throw DonneesIncorrectes(Texte(TexteObjetAttendu));
    return donnees;
}

DonneesIncorrectes MembreIncorrect(const std::string& nom, const std::string& attendu, const Donnees& trouve) {
    std::string extrait = trouve.dump(-1, ' ', true, Donnees::error_handler_t::replace);
    if (extrait.size() > LongueurExtrait) extrait = extrait.substr(0, LongueurExtrait) + "...";
    return AutreAttendu(nom, attendu, extrait);
}

std::string TexteOuNombre() {
    return "\"...\" " + Texte(TexteOu) + " " + Texte(TexteUnNombre);
}

double LitNombre(const Donnees& donnees, const char* nom) {
    const auto valeur = donnees.find(nom);
    if (valeur == donnees.end()) throw DonneesIncorrectes(Texte(TexteMembreAbsent) + " " + nom);
    if (!valeur->is_number()) throw MembreIncorrect(nom, Texte(TexteUnNombre), *valeur);
    return valeur->get<double>();
}
