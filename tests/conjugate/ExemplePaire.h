// A pair of conjugate cams for tests: the arms stand on either side of the line from the cam centre to the pivot.
#pragma once

#include "outils/Catalogue.h"

inline void PosePaire() {
    etude.donnees.TypeCame = "ConjuguesOscillation";
    etude.donnees.NomFichier = "Paire";
    etude.donnees.CoteA = 100.5;
    etude.donnees.CoteB = 60.25;
    etude.donnees.RayonBrasR1 = 99.75;
    etude.donnees.RayonGaletG1 = 15.5;
    etude.donnees.RayonBrasR2 = 104.125;
    etude.donnees.RayonGaletG2 = 18.25;
    etude.donnees.VitesseCame = 137.5;
    etude.donnees.AngleBras = 74.3;
    etude.donnees.InertieO1 = 0.352;
    etude.donnees.PointsParDegre = 2;
    PoseZones(
        {{61.7, 73.4, 110.5, "MS", 0.45}, {73.4, 73.4, 69.5, "MS"}, {73.4, 61.7, 120, "CYC"}, {61.7, 61.7, 60, "SHM"}});
}
