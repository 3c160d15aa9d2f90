#include "batch/CommandeGlobique.h"

#include "batch/Calculateurs.h"
#include "globoidal/CapaciteIndexeur.h"
#include "globoidal/CapaciteOscillateur.h"
#include "globoidal/LignesGlobiques.h"

#include <algorithm>

namespace {

/// The labels that can be red, in the order of the output.
constexpr const char* labelsRouges[] = {"Label16", "Label17", "Label24", "Label25",
                                        "Label26", "Label63", "Label29", "Label30"};

Json JsonNervure(const EpaisseursNervure& e) {
    return {{"Tete", e.Tete}, {"Centre", e.Centre}, {"Racine", e.Racine}};
}

/// Every line of a label; what stands in a text field has a member of its own.
std::vector<LigneResultat> LignesLabels(const std::vector<GroupeResultats>& geometrie,
                                        const std::vector<TableResultats>& capacites) {
    std::vector<LigneResultat> lignes;
    const auto ajoute = [&](const LigneResultat& ligne) {
        if (ligne.controle.starts_with("Label")) lignes.push_back(ligne);
    };
    for (const auto& groupe : geometrie) std::for_each(groupe.lignes.begin(), groupe.lignes.end(), ajoute);
    for (const auto& bloc : capacites)
        for (const auto& rangee : bloc.rangees) std::for_each(rangee.cellules.begin(), rangee.cellules.end(), ajoute);
    return lignes;
}

Json JsonRouges(const std::vector<LigneResultat>& lignes) {
    Json rouges = Json::array();
    for (const char* label : labelsRouges)
        for (const LigneResultat& ligne : lignes)
            if (ligne.rouge && ligne.controle == label) rouges.push_back(label);
    return rouges;
}

/// What indexer and oscillator both print; members that one of them does not have are null.
Json JsonResultat(const ResultatGlobique& r, const std::vector<GroupeResultats>& geometrie,
                  const std::vector<TableResultats>& capacites) {
    const bool indexeur = r.EpaisseurRepos.has_value();
    const auto siIndexeur = [&](double valeur) { return indexeur ? Json(valeur) : Json(); };
    Json objet = Json::object();
    objet["Type"] = siIndexeur(r.Type);
    objet["Passages"] = siIndexeur(r.Passages);
    objet["Genre"] = siIndexeur(r.Genre);
    objet["AngleReel"] = siIndexeur(r.AngleReel);
    objet["RayonPrimitif"] = r.RayonPrimitif;
    objet["CameDiametre"] = r.CameDiametre;
    objet["CameLargeur"] = r.CameLargeur;
    objet["EpaisseurRepos"] = indexeur ? JsonNervure(*r.EpaisseurRepos) : Json();
    objet["EpaisseurMin"] = JsonNervure(r.EpaisseurMin);
    objet["AnglePressionMaxi"] = r.AnglePressionMaxi;
    objet["CourbureMin"] = {{"Label29", r.CourbureCentre}, {"Label30", r.CourbureRacine}};
    objet["InertieTotale"] = r.InertieTotale;
    objet["Resultats"] = r.Resultats;
    const std::vector<LigneResultat> lignes = LignesLabels(geometrie, capacites);
    objet["etiquettes"] = Json::object();
    for (const LigneResultat& ligne : lignes) objet["etiquettes"][ligne.controle] = ligne.valeur;
    objet["rouges"] = JsonRouges(lignes);
    return objet;
}

Json JsonIndexeur(const DonneesIndexeur& donnees, const ResultatGlobique& resultat) {
    return JsonResultat(resultat, GeometrieIndexeur(donnees, resultat), CapacitesIndexeur(resultat));
}

Json JsonOscillateur(const DonneesOscillateur& donnees, const ResultatGlobique& resultat) {
    Json objet = JsonResultat(resultat, GeometrieOscillateur(donnees, resultat), CapacitesOscillateur(resultat));
    objet["AngleFlanc1"] = resultat.AngleFlanc1;
    objet["AngleFlanc2"] = resultat.AngleFlanc2;
    objet["AngleFlancTravail"] = resultat.AngleFlancTravail;
    return objet;
}

template <class Fiche> std::vector<std::string> NomsChamps(std::span<const Champ<Fiche>> champs) {
    std::vector<std::string> noms;
    for (const auto& champ : champs) noms.emplace_back(champ.nom);
    return noms;
}

/// Members that are no empty field when they are left out: they keep what the record begins with.
constexpr const char* membresAvecDefaut[] = {"CoefSymetrie", "SymetrieA", "SymetrieC", "CodeLoiA", "CodeLoiC"};

template <class Fiche>
Fiche LitFiche(const Donnees& donnees, const std::filesystem::path& fichier, std::span<const Champ<Fiche>> champs) {
    Fiche fiche;
    std::vector<ChampLie> lies = LieChamps(champs, fiche);
    std::erase_if(lies, [&](const ChampLie& champ) {
        const auto valeur = donnees.find(champ.nom);
        return (valeur == donnees.end() || valeur->is_null()) &&
               std::find(std::begin(membresAvecDefaut), std::end(membresAvecDefaut), std::string(champ.nom)) !=
                   std::end(membresAvecDefaut);
    });
    LitDonneesCalculateur(donnees, lies);
    fiche.FichierLoi = TrouveFichierLoi(fiche.FichierLoi, fichier);
    return fiche;
}

/// Looks for a fault, and calculates where there is none. The flag tells of faults alone: a run-time failure leaves it.
template <class Fiche>
void Calcule(const Donnees& donnees, const std::filesystem::path& fichier, std::span<const Champ<Fiche>> champs,
             std::optional<FauteSaisie> (*chercheFaute)(const Fiche&),
             ResultatGlobique (*calcule)(const Fiche&, const Tableau<Loi>&),
             Json (*json)(const Fiche&, const ResultatGlobique&), IssueCalculateur& issue) {
    issue.resultats = SansValeurs(json({}, {}));
    etude.resultats.Erreur = Faux;
    const Fiche fiche = LitFiche(donnees, fichier, champs);
    if (const auto faute = chercheFaute(fiche)) {
        etude.resultats.Erreur = Vrai;
        RefuseSaisie(*faute, issue);
        return;
    }
    issue.resultats = json(fiche, calcule(fiche, etude.lois.ListeLois));
}

void CalculeIndexeur(const Donnees& donnees, const std::filesystem::path& fichier, IssueCalculateur& issue) {
    Calcule(donnees, fichier, ChampsIndexeur(), ChercheFauteIndexeur, CalculeCapaciteIndexador, JsonIndexeur, issue);
}

void CalculeOscillateur(const Donnees& donnees, const std::filesystem::path& fichier, IssueCalculateur& issue) {
    Calcule(donnees, fichier, ChampsOscillateur(), ChercheFauteOscillateur, CalculeCapaciteOscillateur, JsonOscillateur,
            issue);
}

} // namespace

int CommandeIndexeurGlobique(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs) {
    return DerouleCalculateur({"indexeur-globique", NomsChamps(ChampsIndexeur()), CalculeIndexeur}, ligne, sortie,
                              erreurs);
}

int CommandeOscillateurGlobique(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs) {
    return DerouleCalculateur({"oscillateur-globique", NomsChamps(ChampsOscillateur()), CalculeOscillateur}, ligne,
                              sortie, erreurs);
}
