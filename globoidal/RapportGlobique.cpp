#include "globoidal/RapportGlobique.h"

#include "core/Nombres.h"
#include "data/Textes.h"
#include "globoidal/DessinsGlobiques.h"
#include "globoidal/TextesGlobiques.h"
#include "reports/Cadrage.h"
#include "reports/CadrePages.h"

#include <algorithm>

namespace {

constexpr int LargeurNom = 38;    ///< characters of a caption before its colon
constexpr int LargeurRangee = 22; ///< and before the five columns
constexpr int LargeurColonne = 11;
constexpr double TaillePage = 12; ///< points
constexpr int MargeDate = 5;      ///< blanks before the date
constexpr int MargeNote = 2;      ///< and before the notes of a group

/// A line of the data: the text it is printed under, and the member that it prints.
struct LigneDonnees {
    int texte;
    const char* membre;
    const char* loi = nullptr; ///< printed with this law's shares typed only: name of the law's member
};

constexpr LigneDonnees lignesMecanisme[] = {
    {593, "Modele"},
    {171, "Entraxe"},
    {555, "RayonTourelle"},
    {557, "InertieTourelle"},
    {560, "CapaciteArbreEntree"},
    {561, "Precontrainte"},
};

constexpr LigneDonnees lignesIndexeur[] = {
    {562, "NombreStops"},     {270, "AngleIndexage"},   {105, "NomLoi"},          {522, "CoefSymetrie"},
    {568, "CoefA", "NomLoi"}, {569, "CoefB", "NomLoi"}, {570, "CoefC", "NomLoi"},
};

constexpr LigneDonnees lignesOscillateur[] = {
    {525, "AngleEntreGalets"},   {526, "AngleSortie"},        {532, "AngleZoneA"},         {533, "AngleZoneB"},
    {534, "AngleZoneC"},         {540, "AngleZoneD"},         {552, "LoiZoneA"},           {522, "SymetrieA"},
    {568, "CoefA1", "LoiZoneA"}, {569, "CoefB1", "LoiZoneA"}, {570, "CoefC1", "LoiZoneA"}, {553, "LoiZoneC"},
    {522, "SymetrieC"},          {568, "CoefA2", "LoiZoneC"}, {569, "CoefB2", "LoiZoneC"}, {570, "CoefC2", "LoiZoneC"},
};

constexpr LigneDonnees lignesGalet[] = {
    {594, "DiametreGalet"}, {595, "ReferenceGalet"}, {596, "NombreGalets"},
    {244, "HauteurGalet"},  {565, "CapaciteB10"},    {566, "CapaciteLimite"},
};

const ChampLie& ChampNomme(const std::vector<ChampLie>& champs, std::string_view nom) {
    const auto champ = std::find_if(champs.begin(), champs.end(), [&](const ChampLie& c) { return nom == c.nom; });
    if (champ == champs.end()) throw ErreurExecution(NumeroErreur::IndiceHorsLimites, std::string(nom));
    return *champ;
}

LigneResultat LigneDeDonnee(const LigneDonnees& decrite, const std::vector<ChampLie>& champs) {
    const ChampLie& champ = ChampNomme(champs, decrite.membre);
    const auto* nombre = std::get_if<double*>(&champ.valeur);
    std::string valeur = nombre != nullptr ? TexteCourt(**nombre) : *std::get<std::string*>(champ.valeur);
    if (decrite.loi != nullptr && *std::get<std::string*>(ChampNomme(champs, decrite.loi).valeur) != NomLoiSpe)
        valeur = Tiret;
    return {decrite.membre, Texte(decrite.texte), valeur, Texte(champ.unite), false, {}};
}

/// The data of a mechanism: casing, motion and roller.
std::vector<LigneResultat> LignesDonnees(std::span<const LigneDonnees> mouvement, const std::vector<ChampLie>& champs) {
    std::vector<LigneResultat> lignes;
    for (const auto& decrites :
         {std::span<const LigneDonnees>(lignesMecanisme), mouvement, std::span<const LigneDonnees>(lignesGalet)})
        for (const LigneDonnees& decrite : decrites) lignes.push_back(LigneDeDonnee(decrite, champs));
    return lignes;
}

/// A name, ": " in its column, and the value with its unit.
std::string LigneNommee(const LigneResultat& ligne, int marge) {
    return Espaces(marge) + CadreAGauche(ligne.libelle, LargeurNom - marge) + ": " + ligne.valeur +
           (ligne.rouge ? " " + std::string(MarqueRouge) : "") + (ligne.unite.empty() ? "" : " " + ligne.unite);
}

void ImprimeDonnees(Tirage& tirage, const RapportGlobique& rapport) {
    tirage.Ligne();
    tirage.Ligne(Texte(rapport.titre), true, true);
    tirage.Ligne(Espaces(MargeDate) + Texte(383) + DateDuJour());
    tirage.Ligne();
    for (const LigneResultat& ligne : rapport.donnees) tirage.Ligne(LigneNommee(ligne, 0));
    tirage.Ligne();
}

/// The notes in lines no wider than the page.
std::vector<std::string> LignesNotes(const RapportGlobique& rapport) {
    std::vector<std::string> lignes;
    for (const std::string& note : rapport.notes) {
        const auto coupees = CoupeEnLignes(note, FormatPage{}.colonnes);
        lignes.insert(lignes.end(), coupees.begin(), coupees.end());
    }
    return lignes;
}

void AjouteNote(std::vector<std::string>& notes, const LigneResultat& ligne) {
    if (!ligne.note.empty() && std::find(notes.begin(), notes.end(), ligne.note) == notes.end())
        notes.push_back(ligne.note);
}

void ImprimeGeometrie(Tirage& tirage, const RapportGlobique& rapport) {
    for (const GroupeResultats& groupe : rapport.geometrie) {
        std::vector<std::string> notes, lignes;
        for (const LigneResultat& ligne : groupe.lignes) AjouteNote(notes, ligne);
        for (const std::string& note : notes)
            for (const std::string& ligne : CoupeEnLignes(note, FormatPage{}.colonnes - MargeNote))
                lignes.push_back(Espaces(MargeNote) + ligne);
        tirage.Reserve(static_cast<int>(groupe.lignes.size() + lignes.size()) + 1);
        tirage.Ligne(groupe.titre, true);
        for (const LigneResultat& ligne : groupe.lignes) tirage.Ligne(LigneNommee(ligne, 2));
        for (const std::string& ligne : lignes) tirage.Ligne(ligne);
    }
    tirage.Ligne();
}

void ImprimeCapaCalcules(Tirage& tirage, const RapportGlobique& rapport) {
    const std::vector<std::string> notes = LignesNotes(rapport);
    int lignes = 3 + static_cast<int>(notes.size());
    for (const TableResultats& table : rapport.capacites) lignes += static_cast<int>(table.rangees.size()) + 1;
    tirage.Reserve(lignes);
    std::string titre = CadreAGauche(Texte(586), LargeurRangee);
    for (const std::string& colonne : rapport.capacites.front().colonnes)
        titre += CadreADroite(colonne, LargeurColonne);
    tirage.Ligne(Texte(516), true, true);
    tirage.Ligne(titre, true);
    for (const TableResultats& table : rapport.capacites) {
        tirage.Ligne(table.titre, true);
        for (const auto& rangee : table.rangees) {
            std::string ligne = CadreAGauche("  " + rangee.libelle, LargeurRangee);
            for (const LigneResultat& cellule : rangee.cellules) ligne += CadreADroite(cellule.valeur, LargeurColonne);
            tirage.Ligne(ligne);
        }
    }
    for (const std::string& ligne : notes) tirage.Ligne(ligne);
}

/// Behind the notes of the calculation those of the capacities that are not what they look like, each once.
std::vector<std::string> NotesCapacites(const RapportGlobique& rapport) {
    std::vector<std::string> notes = rapport.notes;
    for (const auto& table : rapport.capacites)
        for (const auto& rangee : table.rangees)
            for (const LigneResultat& cellule : rangee.cellules) AjouteNote(notes, cellule);
    return notes;
}

/// Section and capacities on one page, what happens over the cam angle on the next.
void ImprimeDessins(Tirage& tirage, const RapportGlobique& rapport, const MecanismeGlobique& donnees,
                    const ResultatGlobique& resultat) {
    constexpr double Unite = 0.25, Marge = 6;
    Imprimante& imprimante = tirage.Appareil();
    const double largeur = imprimante.Largeur(), moitie = imprimante.Hauteur() / 2 - Marge;
    tirage.TournePage();
    rapport.section(*imprimante.Feuille({0, 0}, largeur, moitie, Unite));
    DessineCapacites(*imprimante.Feuille({0, moitie + 2 * Marge}, largeur, moitie, Unite), resultat);
    tirage.TournePage();
    DessineParcours(*imprimante.Feuille({0, 0}, largeur, imprimante.Hauteur() * 0.8, Unite), donnees, resultat,
                    NombreParts / 2);
}

} // namespace

RapportGlobique RapportIndexeur(const DonneesIndexeur& donnees, const ResultatGlobique& resultat) {
    DonneesIndexeur copie = donnees;
    RapportGlobique rapport{592,
                            LignesDonnees(lignesIndexeur, LieChamps(ChampsIndexeur(), copie)),
                            GeometrieIndexeur(donnees, resultat),
                            PourAffichage(CapacitesIndexeur(resultat)),
                            {},
                            [&donnees, &resultat](Dessin& d) { DessineSectionIndexeur(d, donnees, resultat); }};
    rapport.notes = NotesIndexeur(donnees, resultat);
    return rapport;
}

RapportGlobique RapportOscillateur(const DonneesOscillateur& donnees, const ResultatGlobique& resultat) {
    DonneesOscillateur copie = donnees;
    RapportGlobique rapport{524,
                            LignesDonnees(lignesOscillateur, LieChamps(ChampsOscillateur(), copie)),
                            GeometrieOscillateur(donnees, resultat),
                            PourAffichage(CapacitesOscillateur(resultat)),
                            {},
                            [&donnees, &resultat](Dessin& d) { DessineSectionOscillateur(d, donnees, resultat); }};
    rapport.notes = NotesOscillateur(donnees, resultat);
    return rapport;
}

void ImprimeCapacites(Imprimante& imprimante, const RapportGlobique& rapport, const MecanismeGlobique& donnees,
                      const ResultatGlobique& resultat) {
    RapportGlobique complet = rapport;
    complet.notes = NotesCapacites(rapport);
    FormatPage format;
    format.taille = TaillePage;
    format.pied = false; // three or four pages, the drawings among them
    Tirage tirage(imprimante, format);
    tirage.DebutRapport();
    ImprimeDonnees(tirage, complet);
    ImprimeGeometrie(tirage, complet);
    ImprimeCapaCalcules(tirage, complet);
    ImprimeDessins(tirage, complet, donnees, resultat);
    tirage.FinDocument();
}
