// Numbers of the texts of the help window.
#pragma once

enum TextesAide {
    TexteAide = 6,
    TexteGroupePlates = 143,
    TexteGroupeCylindriques = 144,
    TexteGroupeGlobiques = 145,
    TexteGroupeResultats = 330,
    TexteGroupeInertie = 437,
    TexteGroupeConjuguees = 463,
    TexteTrouvePrecedent = 16,
    TexteTrouveSuivant = 17,
    TexteGrossir = 698,
    TexteReduire = 699,
    TexteGroupePriseEnMain = 951,
    TexteGroupeLois = 952,
    TexteGroupeProgramme = 953,
    TexteChercher = 954,
    TexteAucunePage = 955,
    TexteTrouver = 956,
    TextePageArriere = 957,
    TextePageAvant = 958,
};
