#include "laws/RapportLoi.h"

#include "data/Textes.h"
#include "laws/DessinLoi.h"
#include "reports/TableRapport.h"

#include <array>

namespace {

constexpr int TexteCourbes = 337, TextePoints = 466, TextePointsParDegre = 174;
constexpr int ColonneValeur = 46; ///< of the values of data and results, characters

template <double PointLoi::*membre> double DuMouvement(long i) {
    return etude.resultats.Mouvement[i].*membre;
}
double Angle(long i) {
    return etude.resultats.Points[i].Angle;
}

/// The columns, in the unit of the output.
std::array<ColonneRapport, 4> Colonnes() {
    const auto unite = [](Grandeur grandeur) { return Texte(UniteLoi(grandeur)).c_str(); };
    return {{{339, unite(Grandeur::AngleEntree), Angle, "0.00", 14},
             {250, unite(Grandeur::Sortie), DuMouvement<&PointLoi::Course>, "0.000", 14},
             {225, unite(Grandeur::Vitesse), DuMouvement<&PointLoi::Vitesse>, "0.00000", 16},
             {226, unite(Grandeur::Accel), DuMouvement<&PointLoi::Accel>, "0.00000", 18}}};
}

void EnTeteLoi() {
    ImprimeEnTete(Colonnes());
}

void ImprimeLigne(int libelle, Grandeur grandeur, const std::string& valeur) {
    const int unite = UniteLoi(grandeur);
    const std::string debut = Espaces(5) + Texte(libelle);
    ImprimeLigneCames(debut + Espaces(ColonneValeur - NombreCaracteres(debut)) + ": " + valeur +
                      (unite == 0 ? "" : " " + Texte(unite)));
}

void ImprimeDonnees(const RapportLoi& rapport) {
    for (const ChampLoi& champ : rapport.loi->champs)
        if (champ.Employe()) ImprimeLigne(champ.Libelle(), champ.grandeur, StrTrim(champ.Nombre(etude.donnees)));
    ImprimeLigne(TextePointsParDegre, Grandeur::Nombre, std::to_string(etude.donnees.PointsParDegre));
    ImprimeLigneCames({});
    for (const ValeurLoi& valeur : rapport.loi->valeurs)
        ImprimeLigne(valeur.texte, valeur.grandeur, Format(rapport.resultat.*valeur.membre, valeur.masque));
}

/// Data, results, and the graphs on what is left of the page.
void ImprimeCourbes(const RapportLoi& rapport) {
    Imprimante& imprimante = ImprimanteEnCours();
    DebutPage(rapport.titre, Texte(TexteCourbes));
    ImprimeLigneCames({});
    ImprimeDonnees(rapport);
    ImprimeLigneCames({});
    const double tete = imprimante.Tete();
    const auto feuille = imprimante.Feuille({0, tete}, imprimante.Largeur(), imprimante.Hauteur() - tete);
    DessineCourbes(*feuille);
    imprimante.NouvellePage();
}

void ImprimePoints(const RapportLoi& rapport) {
    ImprimeTable(Colonnes(), EnTeteDuMouvement, rapport.titre, Texte(TextePoints), NombrePagesTable());
}

} // namespace

void ImprimeEtudeLoi(Imprimante& imprimante, const RapportLoi& rapport) {
    const TirageCames tirage(imprimante, {nullptr, EnTeteLoi, nullptr});
    ImprimeCourbes(rapport);
    ImprimePoints(rapport);
    imprimante.FinDocument();
}
