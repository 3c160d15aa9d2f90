// The report of the remarkable values: extremes of the calculation with the cam angles at which they occur.
#include "reports/CadrePages.h"
#include "studies/NotesEtude.h"
#include "studies/RapportsCames.h"
#include "studies/RapportsCamesLignes.h"
#include "studies/ValeursRemarquables.h"

#include <algorithm>
#include <vector>

namespace {

std::string ComposeLigne(const ValeurRemarquable& ligne, int texte, const Notes& notes) {
    std::string valeur = EcritValeur(ligne, ligne.masqueRapport) + ligne.suiteRapport;
    if (ligne.repere != nullptr) {
        // Whole degrees; the last digit always shows, so that a maximum at the start of the cam has its 0.
        constexpr int largeurValeur = 8;
        valeur += Espaces(std::max(1, largeurValeur - NombreCaracteres(valeur))) + Texte(227) + " " +
                  Format(AngleExtreme(ligne.repere()), "##0") + "°";
    }
    const int libelle = ligne.texteRapport != 0 ? ligne.texteRapport : texte;
    return LigneValeur(Texte(libelle) + notes.Renvoi(ligne.nom),
                       ligne.uniteRapport != nullptr ? ligne.uniteRapport : UniteTexte(ligne.unite), valeur);
}

/// The notes that values refer to, below them.
void AjouteNotes(std::vector<LigneRapport>& lignes, const Notes& notes) {
    const int colonnes = FormatPage().colonnes - RetraitLigne;
    if (notes.Vide()) return;
    lignes.push_back({});
    lignes.push_back({Texte(TexteNotes), true});
    for (const std::string& ligne : notes.Lignes(colonnes)) lignes.push_back({Espaces(RetraitLigne) + ligne});
}

/// The groups of values of the cam that the record shows.
void AjouteValeurs(std::vector<LigneRapport>& lignes, const TypeEtude& type, const Notes& notes) {
    int groupe = 0;
    for (const ValeurRemarquable& ligne : LesValeursRemarquables()) {
        const int texte = ligne.texte(type);
        if (texte == 0) continue;
        if (ligne.groupe != groupe) {
            if (!lignes.empty()) lignes.push_back({});
            lignes.push_back({Texte(ligne.groupe), true});
            groupe = ligne.groupe;
        }
        lignes.push_back({ComposeLigne(ligne, texte, notes)});
    }
}

/// What is checked of several cams together, and what must be known of it.
void AjouteControle(std::vector<LigneRapport>& lignes, const ControleEtude& controle) {
    constexpr int colonnes = 72;
    lignes.push_back({});
    lignes.push_back({Texte(controle.titre), true});
    for (const LigneControle& ligne : controle.lignes())
        lignes.push_back({LigneValeur(ligne.libelle, "(" + ligne.unite + ") : ", ligne.valeur)});
    lignes.push_back({});
    for (const std::string& ligne : CoupeEnLignes(Texte(controle.note), colonnes)) lignes.push_back({ligne});
}

} // namespace

void ImprimePointsRemarquables() {
    const TypeEtude& type = LeTypeEtude();
    const Notes notes = NotesEnVigueur(type);
    std::vector<LigneRapport> lignes;
    PourChaqueCame(type, [&](const DescriptionPasse* came) {
        if (came != nullptr) {
            if (!lignes.empty()) lignes.push_back({});
            lignes.push_back({Texte(came->titre), true, true});
        }
        AjouteValeurs(lignes, type, notes);
    });
    AjouteNotes(lignes, notes);
    if (type.controle.lignes != nullptr) AjouteControle(lignes, type.controle);
    ImprimeRapportLignes(Texte(TitreRemarquables), lignes);
}
