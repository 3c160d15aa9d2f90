#include "cylindrical/CamesCylindriques.h"

#include "cylindrical/ForcesCyl.h"
#include "cylindrical/GeometrieCyl.h"
#include "cylindrical/MouvementCyl.h"
#include "planecams/GeometrieCame.h"
#include "planecams/Pipeline.h"

void CalculeCameCylindrique() {
    DerouleEtapes(false, {MouvementCyl, GeometrieCyl, ControleCourbure, ControleSpires, ForcesCyl});
}

void CalculeCameCylOsc() {
    DerouleEtapes(true, {MouvementCylOsc, GeometrieCyl, ControleCourbure, ForcesCylOsc});
}
