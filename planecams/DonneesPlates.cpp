#include "planecams/DonneesPlates.h"

std::optional<FauteDonnee> ChercheFauteAngulaire() {
    constexpr LimiteSaisie limites[] = {{{&Etude::CoteA, 197}, Nul},
                                        {{&Etude::RayonO1P, 202}, Nul},
                                        {{&Etude::RayonGalet, 201}, NulOuNegatif},
                                        {{&Etude::VitesseCame, 200}, Nul}};
    return ChercheFaute(limites);
}

std::optional<FauteDonnee> ChercheFauteLineaire() {
    constexpr LimiteSaisie limites[] = {{{&Etude::RayonGalet, 201}, NulOuNegatif}, {{&Etude::VitesseCame, 200}, Nul}};
    return ChercheFaute(limites);
}
