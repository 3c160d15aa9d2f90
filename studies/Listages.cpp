#include "studies/Listages.h"

#include "data/Textes.h"
#include "studies/ColonnesListage.h"

#include <initializer_list>
#include <span>

namespace {

constexpr ColonneListage pointA[] = {
    {262, UniteMm, DuPoint<&Point::XA>, MasqueLongueur}, {263, UniteMm, DuPoint<&Point::YA>, MasqueLongueur},
    {264, UniteMS, DuPoint<&Point::VxA>, MasqueVitesse}, {265, UniteMS, DuPoint<&Point::VyA>, MasqueVitesse},
    {266, UniteMS, DuPoint<&Point::VA>, MasqueVitesse},  {271, UniteMS2, DuPoint<&Point::AxA>, MasqueAccel},
    {272, UniteMS2, DuPoint<&Point::AyA>, MasqueAccel},  {273, UniteMS2, DuPoint<&Point::AA>, MasqueAccel},
};

/// Radius of curvature of the outer profile, then both profiles.
constexpr ColonneListage profils[] = {
    {256, UniteMm, DuProfil<&PointProfil::RayonCourbureExterieur>, "###.##"},
    {259, UniteMm, DuProfil<&PointProfil::XInterieur>, MasqueLongueur},
    {260, UniteMm, DuProfil<&PointProfil::YInterieur>, MasqueLongueur},
    {257, UniteMm, DuProfil<&PointProfil::XExterieur>, MasqueLongueur},
    {258, UniteMm, DuProfil<&PointProfil::YExterieur>, MasqueLongueur},
};

void AjouteColonne(TableTexte& table, const ColonneListage& c) {
    const int titre = c.texteDeveloppee != 0 && etude.resultats.Developpee ? c.texteDeveloppee : c.texte;
    table.colonnes.push_back(ColonneNombres(
        Texte(titre), Texte(c.unite),
        [valeur = c.valeur](int ligne) { return valeur(static_cast<long>(ligne) * etude.donnees.PointsParDegre); },
        c.masque));
}

TableTexte FaitTable(std::initializer_list<std::span<const ColonneListage>> groupes) {
    TableTexte table;
    if (!etude.resultats.Points.Vide()) table.lignes = etude.resultats.NombrePoints / etude.donnees.PointsParDegre + 1;
    AjouteColonne(table, ColonneAngle);
    for (const auto groupe : groupes)
        for (const ColonneListage& colonne : groupe) AjouteColonne(table, colonne);
    return table;
}

} // namespace

TableTexte TableGalet() {
    return FaitTable({ColonnesGalet});
}
TableTexte TableBras(bool avecPointA) {
    return avecPointA ? FaitTable({ColonnesBras, pointA}) : FaitTable({ColonnesBras});
}
TableTexte TableEfforts() {
    return FaitTable({ColonnesEfforts});
}
TableTexte TableCame() {
    return FaitTable({ColonnePression, ColonnesCourbure, profils});
}
