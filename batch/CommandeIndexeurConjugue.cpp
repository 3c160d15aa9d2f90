#include "batch/CommandeIndexeurConjugue.h"

#include "batch/Calculateurs.h"
#include "conjugate/IndexeurConjugue.h"

#include <functional>
#include <optional>

namespace {

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

Json JsonTableau(const std::vector<CapaciteParVitesse>& tableau) {
    Json lignes = Json::array();
    for (const CapaciteParVitesse& l : tableau)
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

void Calcule(const Donnees& donnees, const std::filesystem::path&, IssueCalculateur& issue) {
    SaisieConjugue saisie;
    ResultatConjugue resultat;
    issue.resultats = JsonConjugue(resultat);
    LitDonneesCalculateur(donnees, LieChamps(ChampsConjugue(), saisie));
    try {
        CalculeIndexeurConjugue(saisie, resultat);
    } catch (const ErreurExecution&) {
        // The lines written so far stand.
        issue.resultats = JsonConjugue(resultat);
        throw;
    }
    issue.resultats = JsonConjugue(resultat);
    if (resultat.arret) RefuseSaisie(*resultat.arret, issue);
    issue.echec = resultat.motif;
}

} // namespace

int CommandeIndexeurConjugue(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs) {
    Calculateur calculateur{"indexeur-conjugue", {}, Calcule};
    for (const auto& champ : ChampsConjugue()) calculateur.membres.emplace_back(champ.nom);
    return DerouleCalculateur(calculateur, ligne, sortie, erreurs);
}
