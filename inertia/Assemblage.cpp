#include "inertia/Assemblage.h"

#include "core/Nombres.h"
#include "data/Textes.h"
#include "data/Unites.h"
#include "inertia/TextesInertie.h"

#include <cmath>
#include <functional>
#include <numeric>

namespace {

/// How far a total of the list may be off before it is said.
constexpr double EcartTotaux = 0.01;

double Relit(double valeur, const GrandeurInertie& grandeur) {
    return Val(TexteListe(valeur, grandeur));
}

LigneAssemblage FaitLigne(const SaisieSolide& saisie, const Etiquettes& etiquettes, const Grandeurs& exactes,
                          double Signe) {
    LigneAssemblage ligne{saisie, {}, exactes};
    for (std::size_t i = 0; i < ligne.liste.size(); ++i) {
        ligne.liste[i] = Relit(Val(etiquettes[i]) * Signe, LesGrandeurs()[i]);
        ligne.exactes[i] *= Signe;
    }
    return ligne;
}

/// The totals with a row added or taken away. They are read back as the list shows numbers: sums of decimals leave no
/// dust behind, which could turn the sign of a product.
Grandeurs Augmente(const Grandeurs& totaux, const Grandeurs& ligne, double sens) {
    Grandeurs nouveaux{};
    for (std::size_t i = 0; i < totaux.size(); ++i) nouveaux[i] = Relit(totaux[i] + sens * ligne[i], LesGrandeurs()[i]);
    return nouveaux;
}

template <std::size_t rang> std::string Exacte(const LigneAssemblage& ligne) {
    return StrTrim(ligne.exactes[rang]);
}
std::string Rien(const LigneAssemblage&) {
    return {};
}
std::string MasseTotal(const LigneAssemblage& ligne) {
    return ligne.saisie.MasseTotal ? "True" : "False";
}
std::string Mu(const LigneAssemblage&) {
    return "1";
}
std::string Code(const LigneAssemblage& ligne) {
    return std::to_string(ligne.saisie.TypeSolide);
}

using S = SaisieSolide;

struct ColonneListe {
    int texte; ///< text number of its heading, 0 for none
    int unite; ///< text number, 0 for none
    bool cachee;
    std::string (*cellule)(const LigneAssemblage& ligne);
};
constexpr ColonneListe colonnes[] = {
    {0, 0, false, Rien},
    {TexteMasseTotaleColonne, TexteKg, false, CelluleListe<0>},
    {TexteInertie, TexteKgM2, false, CelluleListe<1>},
    {TexteTravailCourt, UniteNm, false, CelluleListe<2>},
    {TexteFrictionCourt, UniteNm, false, CelluleListe<3>},
    {TexteMasseTotaleChoisie, 0, true, MasseTotal},
    {TexteQte, 0, false, CelluleSaisie<&S::Text1>},
    {TexteRapportColonne, 0, false, CelluleSaisie<&S::Text2>},
    {TexteMasseUnitaire, 0, true, CelluleSaisie<&S::Text3>},
    {TexteMu, 0, true, Mu},
    {TexteR, 0, false, CelluleSaisie<&S::Text5>},
    {TexteD, 0, false, CelluleSaisie<&S::Text6>},
    {TextePetitD, 0, false, CelluleSaisie<&S::Text7>},
    {TexteH, 0, false, CelluleSaisie<&S::Text8>},
    {TexteGenre, 0, true, Code},
    {TexteExact, TexteKg, false, Exacte<0>},
    {TexteExact, TexteKgM2, false, Exacte<1>},
    {TexteExact, UniteNm, true, Exacte<2>},
    {TexteExact, UniteNm, true, Exacte<3>},
};

} // namespace

std::string TexteListe(double valeur, const GrandeurInertie& grandeur) {
    return valeur == 0 ? "0" : Format(valeur, grandeur.masqueListe);
}

Ajout AjouteSolide(Assemblage& assemblage, const SaisieSolide& saisie, const Etiquettes& etiquettes,
                   const Grandeurs& exactes, double Signe) {
    const LigneAssemblage ligne = FaitLigne(saisie, etiquettes, exactes, Signe);
    if (ligne.liste == Grandeurs{}) return Ajout::SansEffet;
    const Grandeurs totaux = Augmente(assemblage.totaux, ligne.liste, 1);
    // An even number of negative totals passes, on purpose.
    if (std::accumulate(totaux.begin(), totaux.end(), 1.0, std::multiplies<>()) < 0) return Ajout::Refuse;
    assemblage.totaux = totaux;
    assemblage.lignes.push_back(ligne);
    return Ajout::Fait;
}

void RestitueSolide(Assemblage& assemblage, const SaisieSolide& saisie, const Etiquettes& etiquettes,
                    const Grandeurs& exactes) {
    assemblage.lignes.push_back(FaitLigne(saisie, etiquettes, exactes, 1));
    assemblage.totaux = Augmente(assemblage.totaux, assemblage.lignes.back().liste, 1);
}

std::string MessageRefus() {
    return Texte(TexteTotauxNegatifs) + " " + Texte(TexteSolideRefuse);
}

std::optional<SaisieSolide> EnleveSolide(Assemblage& assemblage, std::size_t rang) {
    if (rang >= assemblage.lignes.size()) return {};
    const auto place = assemblage.lignes.begin() + static_cast<std::ptrdiff_t>(rang);
    if (place->liste == Grandeurs{}) return {};
    assemblage.totaux = Augmente(assemblage.totaux, place->liste, -1);
    SaisieSolide saisie = std::move(place->saisie);
    assemblage.lignes.erase(place);
    return saisie;
}

Grandeurs TotauxExacts(const Assemblage& assemblage) {
    Grandeurs sommes{};
    for (const LigneAssemblage& ligne : assemblage.lignes)
        for (std::size_t i = 0; i < sommes.size(); ++i) sommes[i] += ligne.exactes[i];
    return sommes;
}

bool TotauxTrompeurs(const Assemblage& assemblage) {
    const Grandeurs exacts = TotauxExacts(assemblage);
    for (std::size_t i = 0; i < exacts.size(); ++i) {
        double poussiere = 0; // what rounding leaves of rows that cancel out
        for (const LigneAssemblage& ligne : assemblage.lignes) poussiere += std::abs(ligne.exactes[i]) * 1e-12;
        if (std::abs(assemblage.totaux[i] - exacts[i]) > EcartTotaux * std::abs(exacts[i]) + poussiere) return true;
    }
    return false;
}

std::vector<std::string> NotesTotaux(const Assemblage& assemblage) {
    std::vector<std::string> notes;
    if (TotauxTrompeurs(assemblage)) notes.push_back(Texte(TexteTotauxArrondis));
    double friction = 0, vraie = 0;
    for (const LigneAssemblage& ligne : assemblage.lignes) {
        friction += ligne.exactes[3];
        vraie += FrictionVraie(ligne.saisie, ligne.exactes);
    }
    if (const std::string note = NoteFriction(friction, vraie); !note.empty()) notes.push_back(note);
    return notes;
}

TableTexte TableListe(const Assemblage& assemblage) {
    TableTexte table;
    table.lignes = static_cast<int>(assemblage.lignes.size());
    for (const ColonneListe& colonne : colonnes)
        table.colonnes.push_back({colonne.texte == 0 ? "" : Texte(colonne.texte),
                                  colonne.unite == 0 ? "" : Texte(colonne.unite), [&assemblage, &colonne](int ligne) {
                                      return colonne.cellule(assemblage.lignes[static_cast<std::size_t>(ligne)]);
                                  }});
    return table;
}

bool ColonneCachee(int colonne) {
    return colonnes[colonne].cachee;
}

TableTexte TableTotaux(const Assemblage& assemblage) {
    const auto grandeur = [](int ligne) -> const GrandeurInertie& {
        return LesGrandeurs()[static_cast<std::size_t>(ligne)];
    };
    const auto total = [&assemblage, grandeur](int ligne) {
        return TexteListe(assemblage.totaux[static_cast<std::size_t>(ligne)], grandeur(ligne));
    };
    const auto exact = [exacts = TotauxExacts(assemblage)](int ligne) {
        return StrTrim(exacts[static_cast<std::size_t>(ligne)]);
    };
    return {{{Texte(TexteTotaux), "", total},
             {Texte(TexteExact), "", exact},
             {"", "", [grandeur](int ligne) { return Texte(grandeur(ligne).texte); }, Cote::Gauche},
             {"", "", [grandeur](int ligne) { return Texte(grandeur(ligne).unite); }, Cote::Gauche}},
            static_cast<int>(LesGrandeurs().size())};
}
