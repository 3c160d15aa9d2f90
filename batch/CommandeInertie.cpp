#include "batch/CommandeInertie.h"

#include "batch/DonneesJson.h"
#include "batch/Passage.h"
#include "batch/TextesBatch.h"
#include "data/Textes.h"
#include "inertia/FichierInerties.h"

#include <algorithm>

namespace {

constexpr const char* Solides = "solides";
constexpr const char* TypeSolide = "TypeSolide";
constexpr const char* MasseTotal = "MasseTotal";

using S = SaisieSolide;
constexpr std::pair<const char*, std::string S::*> textes[] = {
    {"Text1", &S::Text1}, {"Text2", &S::Text2}, {"Text3", &S::Text3}, {"Text5", &S::Text5},
    {"Text6", &S::Text6}, {"Text7", &S::Text7}, {"Text8", &S::Text8}};

/// A member as it would be typed: a text as it stands, a number in its shortest digits.
std::string LitTexte(const std::string& nom, const Donnees& valeur) {
    if (valeur.is_string()) return valeur.get<std::string>();
    if (valeur.is_number()) return StrTrim(valeur.get<double>());
    throw MembreIncorrect(nom, TexteOuNombre(), valeur);
}

const GenreSolide& LitGenre(const std::string& nom, const Donnees& donnees) {
    const auto code = donnees.find(TypeSolide);
    if (code == donnees.end()) throw DonneesIncorrectes(Texte(TexteMembreAbsent) + " " + nom + TypeSolide);
    const GenreSolide* genre =
        code->is_number_integer() && *code >= 1 && *code <= 20 ? TrouveSolide(code->get<int>()) : nullptr;
    if (genre != nullptr) return *genre;
    throw MembreIncorrect(nom + TypeSolide, Texte(TexteNombreEntier) + " 1 " + Texte(TexteJusqua) + " 20", *code);
}

/// One solid: its kind is chosen, then what is given is typed. @param rang from 0
SaisieSolide LitSolide(const Donnees& donnees, std::size_t rang) {
    const std::string place = std::string(Solides) + "[" + std::to_string(rang) + "]", debut = place + ".";
    if (!donnees.is_object()) throw MembreIncorrect(place, "{...}", donnees);
    const GenreSolide& genre = LitGenre(debut, donnees);
    SaisieSolide saisie = SaisieInitiale(genre);
    if (const auto masse = donnees.find(MasseTotal); masse != donnees.end()) {
        if (!masse->is_boolean())
            throw MembreIncorrect(debut + MasseTotal, "true " + Texte(TexteOu) + " false", *masse);
        saisie.MasseTotal = masse->get<bool>();
        saisie.Text3 = Text3Initial(genre, saisie.MasseTotal);
    }
    for (const auto& [nom, valeur] : donnees.items()) {
        if (nom == TypeSolide || nom == MasseTotal) continue;
        const auto* champ = std::find_if(std::begin(textes), std::end(textes),
                                         [&nom = nom](const auto& texte) { return nom == texte.first; });
        if (champ == std::end(textes)) throw DonneesIncorrectes(Texte(TexteMembreInconnu) + " " + debut + nom);
        saisie.*champ->second = LitTexte(debut + nom, valeur);
    }
    return saisie;
}

/// What stands in a list file of the desktop program.
std::vector<SaisieSolide> LitListe(const std::string& fichier) {
    std::vector<SaisieSolide> saisies;
    for (LigneAssemblage& ligne : LitInerties(fichier).lignes) saisies.push_back(std::move(ligne.saisie));
    return saisies;
}

std::vector<SaisieSolide> LitDonnees(const std::string& fichier) {
    if (fichier.ends_with(ExtensionInerties)) return LitListe(fichier);
    const Donnees donnees = LitDonneesJson(fichier);
    for (const auto& [nom, valeur] : donnees.items())
        if (nom != Solides) throw DonneesIncorrectes(Texte(TexteMembreInconnu) + " " + nom);
    const auto solides = donnees.find(Solides);
    if (solides == donnees.end()) throw DonneesIncorrectes(Texte(TexteMembreAbsent) + " " + Solides);
    if (!solides->is_array()) throw MembreIncorrect(Solides, "[...]", *solides);
    std::vector<SaisieSolide> saisies;
    for (const Donnees& solide : *solides) saisies.push_back(LitSolide(solide, saisies.size()));
    return saisies;
}

struct SolideCalcule {
    Grandeurs valeurs{};
    Etiquettes etiquettes{};
};

/// Calculates one solid and adds it; a refusal says so in a box.
SolideCalcule CalculeEtAjoute(const SaisieSolide& saisie, Assemblage& assemblage) {
    if (const auto faute = ChercheFaute(saisie)) {
        if (!faute->message.empty()) LesDialogues().Message(Icone::Avertissement, faute->message);
        return {};
    }
    SolideCalcule solide;
    solide.valeurs = CalculeSolide(saisie);
    solide.etiquettes = EtiquettesDe(solide.valeurs);
    if (AjouteSolide(assemblage, saisie, solide.etiquettes, solide.valeurs) == Ajout::Refuse)
        LesDialogues().Message(Icone::Avertissement, MessageRefus());
    return solide;
}

Json JsonSolide(const SolideCalcule& solide) {
    Json objet = Json::object();
    for (std::size_t i = 0; i < solide.valeurs.size(); ++i) objet[LesGrandeurs()[i].nom] = solide.valeurs[i];
    objet["etiquettes"] = solide.etiquettes;
    return objet;
}

/// Everything that one data file gives.
struct Liste {
    Assemblage assemblage;
    std::vector<SolideCalcule> solides;
};

Json JsonListe(const Liste& liste) {
    Json solides = Json::array(), exacts = Json::array();
    for (const SolideCalcule& solide : liste.solides) {
        solides.push_back(JsonSolide(solide));
        exacts.push_back(solide.valeurs);
    }
    return {{Solides, solides},
            {"totaux", liste.assemblage.totaux},
            {"exacts", {{Solides, exacts}, {"totaux", TotauxExacts(liste.assemblage)}}}};
}

} // namespace

int CommandeInertie(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs) {
    if (ligne.arguments.empty()) throw UsageIncorrect("inertie: a data file is needed");
    return ParcourtFichiers(ligne.arguments, erreurs, [&](const std::string& fichier) {
        const std::vector<SaisieSolide> saisies = LitDonnees(fichier);
        Liste liste;
        Calcul calcul;
        calcul.execute = [&](const DialoguesCollecte&) {
            etude.resultats.Erreur = Vrai; // as long as a number can still exceed a double
            for (const SaisieSolide& saisie : saisies)
                liste.solides.push_back(CalculeEtAjoute(saisie, liste.assemblage));
            etude.resultats.Erreur = Faux;
            return std::string();
        };
        calcul.resultats = [&](bool) { return JsonListe(liste); };
        return LanceCalcul(calcul, ligne, sortie);
    });
}
