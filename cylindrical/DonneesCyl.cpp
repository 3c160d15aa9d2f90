#include "cylindrical/DonneesCyl.h"

#include <algorithm>
#include <cmath>

std::optional<FauteDonnee> ChercheFauteDuree() {
    constexpr LimiteSaisie limites[] = {{{&Etude::VitesseCame, 200}, Nul}};
    return ChercheFaute(limites);
}

std::optional<FauteDonnee> ChercheFauteCylindrique() {
    constexpr LimiteSaisie limites[] = {{{&Etude::DiametreCame, 419}, NulOuNegatif},
                                        {{&Etude::RayonGalet, 201}, NulOuNegatif},
                                        {{&Etude::VitesseCame, 200}, Nul}};
    return ChercheFaute(limites);
}

std::optional<FauteDonnee> ChercheFauteOscillation() {
    constexpr LimiteSaisie limites[] = {{{&Etude::RayonO1P, 202}, NulOuNegatif}};
    const auto faute = ChercheFaute(limites);
    return faute ? faute : ChercheFauteCylindrique();
}

double ProposeCoteA() {
    double amax = 0;
    for (long z = 1; z <= etude.NombreZones; ++z) amax = std::max(amax, std::abs(etude.Zones[z].AngleFinal));
    return Val(Format(etude.RayonO1P * (1.0 + std::cos(amax * Pi / 180.0)) / 2.0, "###.##"));
}
