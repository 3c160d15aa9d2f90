#include "cams/LimitesSaisie.h"

#include "data/Textes.h"
#include "laws/CalculLois.h"
#include "laws/FichierLoi.h"

#include <algorithm>

std::optional<FauteZone> ChercheFauteZone(const Zone& zone) {
    if (zone.CoefSymetrie < 0.0 || zone.CoefSymetrie > 1.0)
        return FauteZone{ChampZone::Symetrie, Texte(522) + " 0 <= C <=1"};
    if (!EstLoiSpe(zone.NomLoi) && ChercheLoi(zone.NomLoi) == 0)
        return FauteZone{ChampZone::NomLoi, AvecLoisRemplacees(Texte(511))};
    if (!(zone.AngleCame > 0.0)) return FauteZone{ChampZone::AngleCame, Texte(204)};
    return {};
}

std::optional<std::string> NomLoiPersonnelle(double pourcentage) {
    if (!(pourcentage >= 1.0 && pourcentage <= 99.0)) return {};
    return std::string(NomLoiSpe) + "_" + Str(pourcentage);
}

bool EstPointsParDegre(const std::string& texte) {
    return std::any_of(std::begin(PointsParDegrePermis), std::end(PointsParDegrePermis),
                       [&](std::int16_t p) { return texte == std::to_string(p); });
}

int FautePoints(std::int16_t pointsParDegre) {
    double points = 0, decalage = 0, dernier = 0;
    for (int z = 1; z <= etude.donnees.NombreZones; ++z) {
        const double n = etude.donnees.Zones[z].AngleCame * pointsParDegre;
        points += Arrondi(n);
        dernier = decalage + Int(n);
        decalage = Arrondi(decalage + n);
    }
    if (points > 32767.0) return 205;
    return dernier == points && points > 0.0 ? 0 : 794;
}
