#include "cams/Passes.h"

#include <utility>

void PasseEnVue::Echange() {
    std::swap(etude.donnees.RayonO1P, passe_.RayonO1P);
    std::swap(etude.donnees.RayonGalet, passe_.RayonGalet);
    std::swap(etude.donnees.Zones, passe_.Zones);
    std::swap(etude.resultats, passe_.resultats);
    std::swap(etude.durables, passe_.durables);
    std::swap<DrapeauxEtude>(etude.resultats, passe_.resultats);
}
