#include "laws/RapportLoi.h"

#include "data/Textes.h"
#include "laws/DessinLoi.h"
#include "laws/NotesLoi.h"
#include "laws/TablePoints.h"
#include "reports/TableRapport.h"

namespace {

constexpr int TexteCourbes = 337, TextePoints = 466, TextePointsParDegre = 174;
constexpr int ColonneValeur = 46; ///< of the values of data and results, characters

void ImprimeLigne(Tirage& tirage, const std::string& libelle, Grandeur grandeur, const std::string& valeur) {
    const int unite = UniteLoi(grandeur);
    const std::string debut = Espaces(5) + libelle;
    tirage.Ligne(debut + Espaces(ColonneValeur - NombreCaracteres(debut)) + ": " + valeur +
                 (unite == 0 ? "" : " " + Texte(unite)));
}

void ImprimeDonnees(Tirage& tirage, const RapportLoi& rapport) {
    for (const ChampLoi& champ : rapport.loi->champs)
        if (champ.Employe())
            ImprimeLigne(tirage, Texte(champ.Libelle()), champ.grandeur, StrTrim(champ.Nombre(etude.donnees)));
    ImprimeLigne(tirage, Texte(TextePointsParDegre), Grandeur::Nombre, std::to_string(etude.donnees.PointsParDegre));
    tirage.Ligne();
    const Notes notes = NotesEtudeLoi(*rapport.loi, rapport.resultat);
    for (const ValeurLoi& valeur : rapport.loi->valeurs)
        ImprimeLigne(tirage, Texte(valeur.texte) + notes.Renvoi(valeur.controle), valeur.grandeur,
                     Format(rapport.resultat.*valeur.membre, valeur.masque));
    for (const std::string& ligne : notes.Lignes(FormatPage{}.colonnes - 5)) tirage.Ligne(Espaces(5) + ligne);
}

/// Data, results, and the graphs on what is left of the page.
void ImprimeCourbes(Tirage& tirage, const RapportLoi& rapport) {
    Imprimante& imprimante = tirage.Appareil();
    tirage.DebutRapport();
    tirage.Titre(rapport.titre, Texte(TexteCourbes));
    tirage.Ligne();
    ImprimeDonnees(tirage, rapport);
    tirage.Ligne();
    const double tete = imprimante.Tete();
    const auto feuille = imprimante.Feuille({0, tete}, imprimante.Largeur(), imprimante.Hauteur() - tete);
    DessineCourbes(*feuille);
    tirage.FinRapport(false);
}

void ImprimePoints(Tirage& tirage, const RapportLoi& rapport) {
    ImprimeRapportTable(tirage, rapport.titre, Texte(TextePoints), TablePointsLoi());
}

} // namespace

void ImprimeEtudeLoi(Imprimante& imprimante, const RapportLoi& rapport) {
    Tirage tirage(imprimante);
    ImprimeCourbes(tirage, rapport);
    ImprimePoints(tirage, rapport);
    tirage.FinDocument();
}
