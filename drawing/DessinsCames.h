// Line drawings of the kinds of cams, one procedure each, centred on whatever surface they get.
#pragma once

class Dessin;

void DessineCamePlateBras(Dessin& dessin);              ///< plane cam, roller on an oscillating arm
void DessineCamePlateTranslation(Dessin& dessin);       ///< plane cam, translating follower
void DessineCamesConjuguees(Dessin& dessin);            ///< pair of plane cams, double arm
void DessineIndexeurConjugue(Dessin& dessin);           ///< pair of plane cams, wheel of rollers
void DessineCameCylindriqueTranslation(Dessin& dessin); ///< barrel cam with a groove, translating follower
void DessineCameCylindriqueBras(Dessin& dessin);        ///< barrel cam with a groove, swinging arm
void DessineIndexeurCylindrique(Dessin& dessin);        ///< barrel cam with ribs, turret of rollers
void DessineOscillateurGlobique(Dessin& dessin);        ///< globoidal cam, oscillating rollers
void DessineIndexeurGlobique(Dessin& dessin);           ///< globoidal cam, turret of rollers
