#include "cylindrical/DonneesCyl.h"

#include <algorithm>
#include <cmath>

std::optional<FauteDonnee> ChercheFauteDuree() {
    constexpr LimiteSaisie limites[] = {{{&DonneesEtude::VitesseCame, 200}, Nul}};
    return ChercheFaute(limites);
}

std::optional<FauteDonnee> ChercheFauteCylindrique() {
    constexpr LimiteSaisie limites[] = {{{&DonneesEtude::DiametreCame, 419}, NulOuNegatif},
                                        {{&DonneesEtude::RayonGalet, 201}, NulOuNegatif},
                                        {{&DonneesEtude::VitesseCame, 200}, Nul}};
    return ChercheFaute(limites);
}

std::optional<FauteDonnee> ChercheFauteOscillation() {
    constexpr LimiteSaisie limites[] = {{{&DonneesEtude::RayonO1P, 202}, NulOuNegatif}};
    const auto faute = ChercheFaute(limites);
    return faute ? faute : ChercheFauteCylindrique();
}

double ProposeCoteA() {
    double amax = 0;
    for (long z = 1; z <= etude.donnees.NombreZones; ++z)
        amax = std::max(amax, std::abs(etude.donnees.Zones[z].AngleFinal));
    return Val(Format(etude.donnees.RayonO1P * (1.0 + std::cos(amax * Pi / 180.0)) / 2.0, "###.##"));
}
