// Text numbers that the drum cam adds to the catalogue, in one place.
#pragma once

enum TextesIndexeurCyl {
    TexteEpaisseurProfil = 844, ///< the rib counts a roller alone in engagement, and in the dwell some that have left
    TexteEpaisseurGauche = 845, ///< on a cam to the left the rib is no mirror of that to the right
    TexteScriptCourt = 873,     ///< the script ends with its first row
    TexteLargeurCentres = 874,  ///< the width that the roller centres use
    TexteTropLarge = 875,       ///< wider than the casing takes
    TexteSansNervure = 876,     ///< rollers that leave no rib between them
    TexteDeveloppee = 877,
};
