#include "planecams/CamesPlates.h"

#include "cams/Courbure.h"
#include "cams/Pipeline.h"
#include "planecams/ForcesCame.h"
#include "planecams/GeometrieCame.h"
#include "planecams/MouvementCame.h"

void CalculeCameAngulaire() {
    DerouleEtapes({.bras = true},
                  {CalculeMouvementBras, CalculeProfil, ControleBrasCentre, ControleCourbure, CalculeForcesBras});
}

void CalculeCameLineaire() {
    DerouleEtapes({.bras = false}, {CalculeMouvementLineaire, CalculeProfil, ControleCourbure, CalculeForcesLineaire});
}
