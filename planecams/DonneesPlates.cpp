#include "planecams/DonneesPlates.h"

std::optional<FauteDonnee> ChercheFauteAngulaire() {
    constexpr LimiteSaisie limites[] = {{{&DonneesEtude::CoteA, 197}, Nul},
                                        {{&DonneesEtude::RayonO1P, 202}, Nul},
                                        {{&DonneesEtude::RayonGalet, 201}, NulOuNegatif},
                                        {{&DonneesEtude::VitesseCame, 200}, Nul}};
    return ChercheFaute(limites);
}

std::optional<FauteDonnee> ChercheFauteLineaire() {
    constexpr LimiteSaisie limites[] = {{{&DonneesEtude::RayonGalet, 201}, NulOuNegatif},
                                        {{&DonneesEtude::VitesseCame, 200}, Nul}};
    return ChercheFaute(limites);
}
