// Numbers of the texts that several files of the main window use.
#pragma once

enum TextesApp {
    TextePret = 119,
    TexteEtudeOuverte = 122,
    TexteTitreOuvrir = 125,
    TexteLectureImpossible = 128,
    TexteReprendre = 930,
    TexteFichiersRecents = 931,
    TexteEtudeReprise = 932,
    TexteRepriseOfferte = 933,
    TexteRepriseImpossible = 934,
    TexteExemples = 939,
    TexteOuvertureAttend = 990,
};
