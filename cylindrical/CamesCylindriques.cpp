#include "cylindrical/CamesCylindriques.h"

#include "cams/Courbure.h"
#include "cams/Pipeline.h"
#include "cylindrical/ForcesCyl.h"
#include "cylindrical/GeometrieCyl.h"
#include "cylindrical/MouvementCyl.h"

void CalculeCameCylindrique() {
    DerouleEtapes({.bras = false, .developpee = true},
                  {MouvementCyl, GeometrieCyl, ControleCourbure, ControleSpires, ForcesCyl});
}

void CalculeCameCylOsc() {
    DerouleEtapes({.bras = true, .developpee = true}, {MouvementCylOsc, GeometrieCyl, ControleCourbure, ForcesCylOsc});
}
