#include "laws/TablePoints.h"

#include "core/ValeurPoint.h"
#include "data/Textes.h"
#include "laws/EtudesLois.h"

namespace {

struct ColonneLoi {
    int texte; ///< text number of the heading
    Grandeur grandeur;
    double (*valeur)(long point);
    const char* masque;
    int largeur; ///< characters on paper
};
constexpr ColonneLoi colonnes[] = {
    {339, Grandeur::AngleEntree, DuPoint<&Point::Angle>, "0.00", 14},
    {250, Grandeur::Sortie, DuMouvement<&PointLoi::Course>, "0.000", 14},
    {225, Grandeur::Vitesse, DuMouvement<&PointLoi::Vitesse>, "0.00000", 16},
    {226, Grandeur::Accel, DuMouvement<&PointLoi::Accel>, "0.00000", 18},
};

} // namespace

TableTexte TablePointsLoi() {
    TableTexte table{{}, etude.resultats.NombrePoints + 1};
    for (const ColonneLoi& c : colonnes)
        table.colonnes.push_back(
            ColonneNombres(Texte(c.texte), Texte(UniteLoi(c.grandeur)), c.valeur, c.masque, c.largeur));
    return table;
}

TableTexte TableListageLoi() {
    TableTexte table = TablePointsLoi();
    for (ColonneTexte& colonne : table.colonnes)
        colonne.cellule = [cellule = colonne.cellule](int ligne) { return StrTrim(Val(cellule(ligne))); };
    table.colonnes.front().cellule = [](int ligne) { return StrTrim(etude.resultats.Points[ligne].Angle); };
    return table;
}
