// Numbers of the texts that several files of the main window use.
#pragma once

enum TextesApp {
    TextePret = 119,
    TexteEtudeOuverte = 122,
    TexteTitreOuvrir = 125,
    TexteLectureImpossible = 128,
    TexteReprendre = 802,
    TexteFichiersRecents = 803,
    TexteEtudeReprise = 804,
    TexteRepriseOfferte = 805,
    TexteRepriseImpossible = 806,
    TexteExemples = 811,
};
