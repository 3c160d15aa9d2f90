#include "conjugate/IndexeurConjugue.h"

#include "conjugate/NotesConjugue.h"
#include "conjugate/RapportConjugue.h"
#include "conjugate/TextesConjugue.h"
#include "data/Textes.h"

namespace {

/// Stops with a box that sends the user to a field.
void Arrete(ResultatConjugue& resultat, const char* champ, const std::string& texte) {
    resultat.arret = FauteSaisie{champ, texte, Icone::Critique};
    resultat.motif = texte;
}

void VerifieLooping(ResultatConjugue& resultat) {
    if (const auto message = ChercheLooping(*resultat.donnees, resultat.notes)) Arrete(resultat, "A", *message);
}

/// An undercut track stops in silence.
void VerifieSurusinage(ResultatConjugue& resultat) {
    resultat.courbures.emplace();
    if (const auto message = CalculeCourbures(*resultat.donnees, *resultat.courbures, resultat.notes))
        resultat.motif = *message + "\n" + Texte(TexteSurusinage);
}

void EcritTete(ResultatConjugue& resultat) {
    EcritDonnees(*resultat.donnees, *resultat.courbures, resultat.lignes);
    EcritExplications(resultat.lignes);
}

void VerifieVitesse(ResultatConjugue& resultat) {
    resultat.repos = CalculeRepos(*resultat.donnees);
    if (VitesseLimiteAtteinte(*resultat.donnees, *resultat.repos)) Arrete(resultat, "Ipm", Texte(TexteVitesseLimite));
}

void Evalue(ResultatConjugue& resultat) {
    resultat.capacite = CalculeCapacite(*resultat.donnees, *resultat.repos, resultat.notes);
    EcritCapacite(*resultat.donnees, *resultat.courbures, *resultat.repos, *resultat.capacite, resultat.lignes);
}

void EcritTableau(ResultatConjugue& resultat) {
    EcritTeteTableau(resultat.lignes);
    for (const double Ipm : VitessesTable(resultat.donnees->Q)) {
        const LigneVitesse ligne = CalculeLigne(*resultat.donnees, *resultat.repos, *resultat.capacite, Ipm);
        resultat.tableau.push_back(ligne);
        EcritLigneTableau(ligne, resultat.lignes);
    }
}

constexpr void (*etapes[])(ResultatConjugue&) = {VerifieLooping, VerifieSurusinage, EcritTete, VerifieVitesse,
                                                 Evalue,         EcritTableau};

void DerouleCalcul(const SaisieConjugue& saisie, ResultatConjugue& resultat) {
    resultat.donnees = PrepareDonnees(saisie);
    for (const auto etape : etapes) {
        etape(resultat);
        if (!resultat.motif.empty()) return;
    }
    resultat.Erreur = Faux;
}

} // namespace

void CalculeIndexeurConjugue(const SaisieConjugue& saisie, ResultatConjugue& resultat) {
    resultat = {};
    resultat.Erreur = Vrai;
    try {
        DerouleCalcul(saisie, resultat);
    } catch (const ErreurExecution& erreur) {
        const auto faute = ChercheFauteConjugue(saisie);
        if (!faute || !erreur.detail.empty()) throw;
        throw ErreurExecution(erreur.numero, faute->texte);
    }
    NoteReserves(resultat);
}
