#include "core/Etude.h"

#include <utility>

Etude etude;

void VideEtude() {
    Etude ancienne = std::exchange(etude, Etude{});
    etude.ListeLois = std::move(ancienne.ListeLois);
    etude.NombreLois = ancienne.NombreLois;
    etude.LoiChoisie = std::move(ancienne.LoiChoisie);
    etude.LoiUnite = std::move(ancienne.LoiUnite);
    etude.LoiCourseMax = ancienne.LoiCourseMax;
    etude.LoiVitesseMax = ancienne.LoiVitesseMax;
    etude.LoiVitesseMaxAngle = ancienne.LoiVitesseMaxAngle;
    etude.LoiAccelMax = ancienne.LoiAccelMax;
    etude.LoiAccelMaxAngle = ancienne.LoiAccelMaxAngle;
    etude.VitesseGaletMax = ancienne.VitesseGaletMax;
}
