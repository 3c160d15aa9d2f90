#include "batch/CommandeIndexeurConjugue.h"

#include "batch/Passage.h"
#include "conjugate/IndexeurConjugue.h"
#include "core/FichierEntier.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace {

/// A member as the screen's field would hold it: nothing for null.
std::string TexteMembre(const Json& valeur, const char* nom) {
    if (valeur.is_null()) return {};
    if (valeur.is_string()) return valeur.get<std::string>();
    throw UsageIncorrect(std::string(nom) + " is neither a number nor a text");
}

void LitMembre(const Json& valeur, const ChampLie& champ) {
    if (auto* const* nombre = std::get_if<double*>(&champ.valeur)) {
        **nombre = valeur.is_number() ? valeur.get<double>() : ValVirgule(TexteMembre(valeur, champ.nom));
    } else {
        *std::get<std::string*>(champ.valeur) = TexteMembre(valeur, champ.nom);
    }
}

Json LitObjet(const std::string& fichier) {
    Json donnees = Json::parse(LitFichierEntier(fichier));
    if (!donnees.is_object()) throw UsageIncorrect("not a JSON object");
    const auto champs = ChampsConjugue();
    for (const auto& [nom, valeur] : donnees.items())
        if (std::none_of(champs.begin(), champs.end(), [&nom = nom](const auto& champ) { return nom == champ.nom; }))
            throw UsageIncorrect("unknown member " + nom);
    return donnees;
}

/// What is left out is an empty field.
SaisieConjugue LitSaisie(const Json& donnees) {
    SaisieConjugue saisie;
    for (const ChampLie& champ : LieChamps(ChampsConjugue(), saisie))
        LitMembre(donnees.contains(champ.nom) ? donnees[champ.nom] : Json(), champ);
    return saisie;
}

/// A result of the calculation; null where it did not come so far.
template <class Etape, class Membre> Json Valeur(const std::optional<Etape>& etape, Membre membre) {
    return etape ? Json(std::invoke(membre, *etape)) : Json();
}

void AjouteValeurs(Json& objet, const ResultatConjugue& r) {
    // An undercut track ends the walk before its extremes are known.
    const std::optional<Courbures> courbures = r.lignes.empty() ? std::nullopt : r.courbures;
    const auto premier = [&](double LimitesContact::*membre) {
        return Valeur(r.capacite, [&](const CapaciteConjugue& c) { return c.premier.*membre; });
    };
    const auto contact = [&](double Contact::*membre) {
        return Valeur(r.capacite, [&](const CapaciteConjugue& c) { return c.premier.contact.*membre; });
    };
    objet["RayonMini"] = Valeur(courbures, &Courbures::RayonMini);
    objet["RayonMaxi"] = Valeur(courbures, &Courbures::RayonMaxi);
    objet["PMin"] = Valeur(courbures, &Courbures::PMin);
    objet["PAD"] = Valeur(r.repos, &ReposConjugue::PAD);
    objet["RSD"] = Valeur(r.repos, &ReposConjugue::RSD);
    objet["SR"] = Valeur(r.repos, &ReposConjugue::SR);
    objet["Tx"] = Valeur(r.capacite, &CapaciteConjugue::Tx);
    objet["PA"] = contact(&Contact::PA);
    objet["RCF"] = contact(&Contact::RCF);
    objet["Fu"] = Valeur(r.capacite, &CapaciteConjugue::Fu);
    objet["C55d"] = Valeur(r.capacite, &CapaciteConjugue::C55d);
    objet["C55x"] = premier(&LimitesContact::C55);
    objet["C60d"] = Valeur(r.capacite, &CapaciteConjugue::C60d);
    objet["C60x"] = premier(&LimitesContact::C60);
    objet["LimiteStatique"] = Valeur(r.capacite, &CapaciteConjugue::LimiteStatique);
    objet["DynB10"] = premier(&LimitesContact::DynB10);
    objet["DynB50"] = premier(&LimitesContact::DynB50);
}

Json JsonTableau(const std::vector<LigneCapacite>& tableau) {
    Json lignes = Json::array();
    for (const LigneCapacite& l : tableau)
        lignes.push_back({{"Ipm", l.Ipm},
                          {"C60x", l.C60x},
                          {"DynB10", l.DynB10},
                          {"DynB50", l.DynB50},
                          {"Catalogue", l.Catalogue},
                          {"Propre", l.Propre}});
    return lignes;
}

Json JsonConjugue(const ResultatConjugue& r) {
    Json objet = Json::object();
    objet["lignes"] = r.lignes;
    AjouteValeurs(objet, r);
    objet["tableau"] = JsonTableau(r.tableau);
    objet["notes"] = r.notes;
    return objet;
}

} // namespace

int CommandeIndexeurConjugue(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs) {
    if (ligne.arguments.empty()) throw UsageIncorrect("indexeur-conjugue: which data file?");
    return ParcourtFichiers(ligne.arguments, erreurs, [&](const std::string& fichier) {
        const Json donnees = LitObjet(fichier);
        ResultatConjugue resultat;
        Calcul calcul;
        calcul.execute = [&](const DialoguesCollecte&) {
            etude.resultats.Erreur = Vrai;
            CalculeIndexeurConjugue(LitSaisie(donnees), resultat);
            if (resultat.arret) LesDialogues().Message(resultat.arret->icone, resultat.arret->texte);
            etude.resultats.Erreur = resultat.Erreur;
            return resultat.motif;
        };
        calcul.resultats = [&](bool) { return JsonConjugue(resultat); };
        return LanceCalcul(calcul, ligne, sortie);
    });
}
