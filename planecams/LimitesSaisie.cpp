#include "planecams/LimitesSaisie.h"

#include "data/Textes.h"
#include "laws/CalculLois.h"

#include <algorithm>

namespace {

std::optional<FauteDonnee> ChercheNul(std::span<const FauteDonnee> nonNuls) {
    for (const auto& faute : nonNuls)
        if (etude.*faute.membre == 0.0) return faute;
    return {};
}

} // namespace

std::optional<FauteDonnee> ChercheFauteAngulaire() {
    constexpr FauteDonnee nonNuls[] = {
        {&Etude::CoteA, 197}, {&Etude::RayonO1P, 202}, {&Etude::RayonGalet, 201}, {&Etude::VitesseCame, 200}};
    return ChercheNul(nonNuls);
}

std::optional<FauteDonnee> ChercheFauteLineaire() {
    constexpr FauteDonnee nonNuls[] = {{&Etude::RayonGalet, 201}, {&Etude::VitesseCame, 200}};
    return ChercheNul(nonNuls);
}

std::optional<FauteZone> ChercheFauteZone(const Zone& zone) {
    if (zone.CoefSymetrie < 0.0 || zone.CoefSymetrie > 1.0)
        return FauteZone{ChampZone::Symetrie, Texte(522) + " 0 <= C <=1"};
    if (zone.NomLoi != NomLoiFichier && !EstLoiSpe(zone.NomLoi) && ChercheLoi(zone.NomLoi) == 0)
        return FauteZone{ChampZone::NomLoi, Texte(511)};
    if (!(zone.AngleCame > 0.0)) return FauteZone{ChampZone::AngleCame, Texte(204)};
    return {};
}

std::optional<std::string> NomLoiPersonnelle(double pourcentage) {
    if (!(pourcentage >= 1.0 && pourcentage <= 99.0)) return {};
    return std::string(NomLoiPourcentage) + "_" + Str(pourcentage);
}

bool EstPointsParDegre(const std::string& texte) {
    return std::any_of(std::begin(PointsParDegrePermis), std::end(PointsParDegrePermis),
                       [&](std::int16_t p) { return texte == std::to_string(p); });
}

bool TropDePoints(std::int16_t pointsParDegre) {
    double points = 0;
    for (std::int16_t z = 1; z <= etude.NombreZones; ++z) points += Arrondi(etude.Zones[z].AngleCame * pointsParDegre);
    return points > 32767.0;
}
