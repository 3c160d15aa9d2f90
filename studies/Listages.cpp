#include "studies/Listages.h"

#include "cams/Pente.h"
#include "core/ValeurPoint.h"
#include "data/Textes.h"

#include <span>

namespace {

constexpr const char* M3 = "###.###";
constexpr const char* M3Court = "##.###";
constexpr const char* M2 = "###.##";

struct Colonne {
    int texte; ///< text number of the heading
    int unite; ///< text number of the unit
    double (*valeur)(long point);
    const char* masque;
    int texteDeveloppee = 0; ///< the heading on a developed cam, where it is another
};

/// Pressure angle in degrees: 0 where the follower rests.
double AnglePression(long i) {
    return Pente(etude.resultats.Profil[i].AngleTangent);
}

constexpr Colonne angle = {245, 19, DuPoint<&Point::Angle>, "##0"};

const Colonne galet[] = {
    angle,
    {247, 18, DuPoint<&Point::Rayon>, M3, 244},
    {225, 27, DuPoint<&Point::VitesseRayon>, M3Court},
    {226, 28, DuPoint<&Point::AccelRayon>, M2},
    {261, 21, DuPoint<&Point::VitesseGalet>, M2},
};
const Colonne bras[] = {
    angle,
    {246, 19, DuMouvement<&PointLoi::Course>, M3},
    {248, 29, DuMouvement<&PointLoi::Vitesse>, M3Court},
    {249, 30, DuMouvement<&PointLoi::Accel>, M2},
    {262, 18, DuPoint<&Point::XA>, M3},
    {263, 18, DuPoint<&Point::YA>, M3},
    {264, 27, DuPoint<&Point::VxA>, M3Court},
    {265, 27, DuPoint<&Point::VyA>, M3Court},
    {266, 27, DuPoint<&Point::VA>, M3Court},
    {271, 28, DuPoint<&Point::AxA>, M2},
    {272, 28, DuPoint<&Point::AyA>, M2},
    {273, 28, DuPoint<&Point::AA>, M2},
};
const Colonne efforts[] = {
    angle,
    {251, 25, DuPoint<&Point::ForceGalet>, M2},
    {252, 26, DuPoint<&Point::Couple>, M3},
    {253, 19, AnglePression, M2},
};
const Colonne came[] = {
    angle,
    {253, 19, AnglePression, M2},
    {254, 18, DuProfil<&PointProfil::RayonCourbure>, M2},
    {255, 18, DuProfil<&PointProfil::RayonCourbureInterieur>, M2},
    {256, 18, DuProfil<&PointProfil::RayonCourbureExterieur>, M2},
    {259, 18, DuProfil<&PointProfil::XInterieur>, M3},
    {260, 18, DuProfil<&PointProfil::YInterieur>, M3},
    {257, 18, DuProfil<&PointProfil::XExterieur>, M3},
    {258, 18, DuProfil<&PointProfil::YExterieur>, M3},
};

TableTexte FaitTable(std::span<const Colonne> colonnes) {
    TableTexte table;
    if (!etude.resultats.Points.Vide()) table.lignes = etude.resultats.NombrePoints / etude.donnees.PointsParDegre + 1;
    for (const Colonne& c : colonnes) {
        const int titre = c.texteDeveloppee != 0 && etude.resultats.Developpee ? c.texteDeveloppee : c.texte;
        table.colonnes.push_back(ColonneNombres(
            Texte(titre), Texte(c.unite),
            [&c](int ligne) { return c.valeur(static_cast<long>(ligne) * etude.donnees.PointsParDegre); }, c.masque));
    }
    return table;
}

} // namespace

TableTexte TableGalet() {
    return FaitTable(galet);
}
TableTexte TableBras(bool pointA) {
    constexpr std::size_t mouvement = 4; // the cam angle and the motion of the arm
    return FaitTable(std::span<const Colonne>(bras).first(pointA ? std::size(bras) : mouvement));
}
TableTexte TableEfforts() {
    return FaitTable(efforts);
}
TableTexte TableCame() {
    return FaitTable(came);
}
