#include "cams/Pente.h"

#include "core/Etude.h"

double Pente(double angleTangent) {
    return angleTangent * 180.0 / Pi - (etude.resultats.Developpee ? 0.0 : 90.0);
}

double PenteMaxi() {
    return Pente(etude.resultats.AngleTangentMax);
}
