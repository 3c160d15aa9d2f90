#include "planecams/CamesPlates.h"

#include "planecams/ForcesCame.h"
#include "planecams/GeometrieCame.h"
#include "planecams/MouvementCame.h"
#include "planecams/Pipeline.h"

void CalculeCameAngulaire() {
    DerouleEtapes(true, {CalculeMouvementBras, CalculeProfil, ControleBrasCentre, ControleCourbure, CalculeForcesBras});
}

void CalculeCameLineaire() {
    DerouleEtapes(false, {CalculeMouvementLineaire, CalculeProfil, ControleCourbure, CalculeForcesLineaire});
}
